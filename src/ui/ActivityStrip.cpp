#include "ActivityStrip.h"

#include "playback/SyncPlayerController.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

ActivityStrip::ActivityStrip(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    connect(this, &QQuickItem::widthChanged, this, [this] { update(); });
    connect(this, &QQuickItem::heightChanged, this, [this] { update(); });
    connect(this, &ActivityStrip::activityChanged, this,
            [this] { setImplicitHeight(rowCount() > 0 ? rowCount() * (rowHeight + rowGap) - rowGap : 0); });
}

void ActivityStrip::setActivity(const QVariant &value) { setActivity(value.value<EventActivity>()); }

void ActivityStrip::setActivity(const EventActivity &activity)
{
    if (activity == activity_)
        return;
    activity_ = activity;
    Q_EMIT activityChanged();
    update();
}

void ActivityStrip::setDuration(double value)
{
    if (value == duration_)
        return;
    duration_ = value;
    Q_EMIT durationChanged();
    update();
}

void ActivityStrip::setInset(double value)
{
    if (value == inset_)
        return;
    inset_ = value;
    Q_EMIT insetChanged();
    update();
}

void ActivityStrip::setActiveColor(const QColor &c)
{
    if (c == activeColor_)
        return;
    activeColor_ = c;
    Q_EMIT colorsChanged();
    update();
}

void ActivityStrip::setTrackColor(const QColor &c)
{
    if (c == trackColor_)
        return;
    trackColor_ = c;
    Q_EMIT colorsChanged();
    update();
}

QRectF ActivityStrip::rowRect(int row) const
{
    return QRectF(inset_, row * (rowHeight + rowGap), std::max(0.0, width() - 2 * inset_), rowHeight);
}

QColor ActivityStrip::colorOf(float level) const
{
    if (level < faintestLevel)
        return Qt::transparent;
    QColor c = activeColor_;
    // A burst is drawn solid; below it the colour fades with the level.
    const float burst = EventActivity::levelOfRatio(EventActivity::burstRatio);
    c.setAlphaF(level >= burst ? 1.0f : 0.25f + 0.5f * (level - faintestLevel) / std::max(0.01f, burst - faintestLevel));
    return c;
}

double ActivityStrip::timeAt(double x) const
{
    const double usable = width() - 2 * inset_;
    if (usable <= 0 || !(duration_ > 0))
        return 0;
    return std::clamp((x - inset_) / usable, 0.0, 1.0) * duration_;
}

QString ActivityStrip::tipAt(double x, double y) const
{
    const int row = int(std::floor(y / (rowHeight + rowGap)));
    if (row < 0 || row >= rowCount())
        return tr("Movement in front of each camera: the stronger the colour, the more changed. Click to go there.");
    const auto &camera = activity_.cameras[size_t(row)];
    const double t = timeAt(x);
    const size_t second = size_t(std::max(0.0, t));
    const bool active = second < camera.levels.size() && camera.levels[second] >= faintestLevel;
    //: %1 is a camera's name, %2 a time into the event
    return active ? tr("%1: movement at %2").arg(camera.camera.displayName(), SyncPlayerController::timeString(t))
                  : tr("%1: quiet at %2").arg(camera.camera.displayName(), SyncPlayerController::timeString(t));
}

void ActivityStrip::paint(QPainter *painter)
{
    if (width() <= 0 || height() <= 0 || !(duration_ > 0))
        return;
    painter->setPen(Qt::NoPen);
    for (int row = 0; row < rowCount(); ++row) {
        const QRectF r = rowRect(row);
        painter->setBrush(trackColor_);
        painter->drawRect(r);
        const auto &levels = activity_.cameras[size_t(row)].levels;
        // Runs of one colour go as one rectangle, so no seams show.
        for (size_t s = 0; s < levels.size();) {
            const QColor c = colorOf(levels[s]);
            size_t end = s + 1;
            while (end < levels.size() && colorOf(levels[end]) == c)
                ++end;
            if (c.alpha() > 0) {
                const double left = r.left() + std::min(1.0, double(s) / duration_) * r.width();
                const double right = r.left() + std::min(1.0, double(end) / duration_) * r.width();
                painter->setBrush(c);
                painter->drawRect(QRectF(left, r.top(), std::max(1.5, right - left), r.height()));
            }
            s = end;
        }
    }
}
