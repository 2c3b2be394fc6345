#pragma once

#include "timeline/TelemetryProfile.h"

#include <QColor>
#include <QQuickPaintedItem>
#include <QVariant>

// The thin strip under the scrubber: the event's speed as a filled area,
// braking as a line along the bottom and hard braking as red bands, drawn
// in one go from the slices made when the event's data was read.
class SpeedStrip : public QQuickPaintedItem {
    Q_OBJECT
    Q_PROPERTY(QVariant profile READ profileForQml WRITE setProfile NOTIFY profileChanged)
    // The timeline's length, over which the slices are laid.
    Q_PROPERTY(double duration READ duration WRITE setDuration NOTIFY durationChanged)
    // Left and right gaps, so the strip lines up with the slider's thumb travel.
    Q_PROPERTY(double inset READ inset WRITE setInset NOTIFY insetChanged)
    Q_PROPERTY(QColor speedColor READ speedColor WRITE setSpeedColor NOTIFY colorsChanged)
    Q_PROPERTY(QColor trackColor READ trackColor WRITE setTrackColor NOTIFY colorsChanged)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY profileChanged)

public:
    static inline const QColor hardBrakingColor{0xe0, 0x30, 0x2a};
    static inline const QColor brakingColor{0xf0, 0x8a, 0x80};

    explicit SpeedStrip(QQuickItem *parent = nullptr);

    QVariant profileForQml() const { return QVariant::fromValue(profile_); }
    void setProfile(const QVariant &value);
    void setProfile(const TelemetryProfile::Profile &profile);
    const TelemetryProfile::Profile &profile() const { return profile_; }
    bool isEmpty() const { return profile_.isEmpty(); }
    double duration() const { return duration_; }
    void setDuration(double value);
    double inset() const { return inset_; }
    void setInset(double value);
    QColor speedColor() const { return speedColor_; }
    void setSpeedColor(const QColor &c);
    QColor trackColor() const { return trackColor_; }
    void setTrackColor(const QColor &c);

    // The slice's horizontal extent in the item.
    QRectF sliceRect(int index) const;

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void profileChanged();
    void durationChanged();
    void insetChanged();
    void colorsChanged();

private:
    TelemetryProfile::Profile profile_;
    double duration_ = 0;
    double inset_ = 0;
    QColor speedColor_{0x4a, 0x90, 0xd9};
    QColor trackColor_{0x80, 0x80, 0x80, 0x30};
};
