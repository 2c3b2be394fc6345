#include "SpeedStrip.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

SpeedStrip::SpeedStrip(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    connect(this, &QQuickItem::widthChanged, this, [this] { update(); });
    connect(this, &QQuickItem::heightChanged, this, [this] { update(); });
}

void SpeedStrip::setProfile(const QVariant &value) { setProfile(value.value<TelemetryProfile::Profile>()); }

void SpeedStrip::setProfile(const TelemetryProfile::Profile &profile)
{
    profile_ = profile;
    Q_EMIT profileChanged();
    update();
}

void SpeedStrip::setDuration(double value)
{
    if (value == duration_)
        return;
    duration_ = value;
    Q_EMIT durationChanged();
    update();
}

void SpeedStrip::setInset(double value)
{
    if (value == inset_)
        return;
    inset_ = value;
    Q_EMIT insetChanged();
    update();
}

void SpeedStrip::setSpeedColor(const QColor &c)
{
    speedColor_ = c;
    Q_EMIT colorsChanged();
    update();
}

void SpeedStrip::setTrackColor(const QColor &c)
{
    trackColor_ = c;
    Q_EMIT colorsChanged();
    update();
}

QRectF SpeedStrip::sliceRect(int index) const
{
    const int count = int(profile_.slices.size());
    if (count == 0 || !(duration_ > 0))
        return {};
    const double usable = std::max(0.0, width() - 2 * inset_);
    const double sliceSeconds = profile_.duration / count;
    const double left = inset_ + std::min(1.0, index * sliceSeconds / duration_) * usable;
    const double right = inset_ + std::min(1.0, (index + 1) * sliceSeconds / duration_) * usable;
    return QRectF(left, 0, right - left, height());
}

void SpeedStrip::paint(QPainter *painter)
{
    const double w = width(), h = height();
    if (w <= 0 || h <= 0)
        return;
    painter->setRenderHint(QPainter::Antialiasing, true);
    painter->setPen(Qt::NoPen);
    painter->setBrush(trackColor_);
    painter->drawRoundedRect(QRectF(inset_, 0, std::max(0.0, w - 2 * inset_), h), 2, 2);
    if (profile_.isEmpty() || !(duration_ > 0))
        return;
    const int count = int(profile_.slices.size());
    const double top = std::max(profile_.topSpeed, 1.0f);
    const double brakeLine = std::max(2.0, h / 5);
    // The speed as one filled outline; slices without data fall to zero.
    QPainterPath area;
    area.moveTo(sliceRect(0).left(), h);
    for (int i = 0; i < count; ++i) {
        const auto &s = profile_.slices[size_t(i)];
        const QRectF r = sliceRect(i);
        const double y = h - (s.hasData ? s.topSpeed / top * (h - 1) : 0.0);
        area.lineTo(r.left(), y);
        area.lineTo(r.right(), y);
    }
    area.lineTo(sliceRect(count - 1).right(), h);
    area.closeSubpath();
    QColor fill = speedColor_;
    fill.setAlphaF(0.75f);
    painter->setBrush(fill);
    painter->drawPath(area);
    // Hard braking over it, full height: the one thing to spot at a glance.
    // Runs of slices go as one band each, so no seams show between them.
    auto drawRuns = [&](auto wanted, double y, double height) {
        for (int i = 0; i < count;) {
            if (!wanted(profile_.slices[size_t(i)])) {
                ++i;
                continue;
            }
            const double left = sliceRect(i).left();
            while (i < count && wanted(profile_.slices[size_t(i)]))
                ++i;
            const double right = std::max(sliceRect(i - 1).right(), left + 1.5);
            painter->drawRect(QRectF(left, y, right - left, height));
        }
    };
    painter->setBrush(hardBrakingColor);
    drawRuns([](const TelemetryProfile::Slice &s) { return s.hardBraking; }, 0, h);
    // Any other braking, as a line along the bottom.
    painter->setBrush(brakingColor);
    drawRuns([](const TelemetryProfile::Slice &s) { return s.braking && !s.hardBraking; }, h - brakeLine, brakeLine);
}
