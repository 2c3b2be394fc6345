#pragma once

#include <QObject>

// The overlay's two choices, kept in the user's settings and shared by every
// player screen and by the keys: whether it shows, and the speed unit.
class DrivingDataPreferences : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool showOverlay READ showOverlay WRITE setShowOverlay NOTIFY showOverlayChanged)
    Q_PROPERTY(bool useMiles READ useMiles WRITE setUseMiles NOTIFY useMilesChanged)

public:
    static inline const QString showOverlayKey = QStringLiteral("KHShowDrivingData");
    // "mph" or "km/h"; absent until the user picks, when the locale decides.
    static inline const QString speedUnitKey = QStringLiteral("KHSpeedUnit");

    static DrivingDataPreferences *shared();

    bool showOverlay() const;
    void setShowOverlay(bool value);
    Q_INVOKABLE void toggleOverlay() { setShowOverlay(!showOverlay()); }
    bool useMiles() const;
    void setUseMiles(bool value);
    Q_INVOKABLE void toggleUnit() { setUseMiles(!useMiles()); }

Q_SIGNALS:
    void showOverlayChanged();
    void useMilesChanged();

private:
    explicit DrivingDataPreferences(QObject *parent = nullptr);
};
