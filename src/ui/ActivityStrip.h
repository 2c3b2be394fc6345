#pragma once

#include "moments/EventActivity.h"

#include <QColor>
#include <QQuickPaintedItem>
#include <QVariant>

// One thin row per camera under the scrubber, in the grid's order: each
// second coloured by how much changed in front of that camera, so where to
// look in ten minutes of six cameras shows at a glance.
class ActivityStrip : public QQuickPaintedItem {
    Q_OBJECT
    Q_PROPERTY(QVariant activity READ activityForQml WRITE setActivity NOTIFY activityChanged)
    Q_PROPERTY(double duration READ duration WRITE setDuration NOTIFY durationChanged)
    // Left and right gaps, so the rows line up with the slider's thumb travel.
    Q_PROPERTY(double inset READ inset WRITE setInset NOTIFY insetChanged)
    Q_PROPERTY(QColor activeColor READ activeColor WRITE setActiveColor NOTIFY colorsChanged)
    Q_PROPERTY(QColor trackColor READ trackColor WRITE setTrackColor NOTIFY colorsChanged)
    Q_PROPERTY(int rowCount READ rowCount NOTIFY activityChanged)

public:
    static constexpr double rowHeight = 4;
    static constexpr double rowGap = 2;
    // Seconds quieter than this stay uncoloured: the encoder's small
    // wobble is no news.
    static constexpr float faintestLevel = 0.12f;

    explicit ActivityStrip(QQuickItem *parent = nullptr);

    QVariant activityForQml() const { return QVariant::fromValue(activity_); }
    void setActivity(const QVariant &value);
    void setActivity(const EventActivity &activity);
    double duration() const { return duration_; }
    void setDuration(double value);
    double inset() const { return inset_; }
    void setInset(double value);
    QColor activeColor() const { return activeColor_; }
    void setActiveColor(const QColor &c);
    QColor trackColor() const { return trackColor_; }
    void setTrackColor(const QColor &c);
    int rowCount() const { return int(activity_.cameras.size()); }

    // The time under x and the camera of the row under y, for the click and the tooltip.
    Q_INVOKABLE double timeAt(double x) const;
    Q_INVOKABLE QString tipAt(double x, double y) const;
    // The row's rectangle; its colour of a second, for the tests.
    QRectF rowRect(int row) const;
    QColor colorOf(float level) const;

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void activityChanged();
    void durationChanged();
    void insetChanged();
    void colorsChanged();

private:
    EventActivity activity_;
    double duration_ = 0;
    double inset_ = 0;
    QColor activeColor_{0xf0, 0x8a, 0x24};
    QColor trackColor_{0x80, 0x80, 0x80, 0x30};
};
