#include "DrivingDataPreferences.h"

#include "model/DrivingDataText.h"

#include <QCoreApplication>
#include <QSettings>

DrivingDataPreferences::DrivingDataPreferences(QObject *parent) : QObject(parent) {}

DrivingDataPreferences *DrivingDataPreferences::shared()
{
    static DrivingDataPreferences *instance = new DrivingDataPreferences(QCoreApplication::instance());
    return instance;
}

bool DrivingDataPreferences::showOverlay() const { return QSettings().value(showOverlayKey, true).toBool(); }

void DrivingDataPreferences::setShowOverlay(bool value)
{
    if (value == showOverlay())
        return;
    QSettings().setValue(showOverlayKey, value);
    Q_EMIT showOverlayChanged();
}

bool DrivingDataPreferences::useMiles() const
{
    const QString stored = QSettings().value(speedUnitKey).toString();
    if (stored == QLatin1String("mph"))
        return true;
    if (stored == QLatin1String("km/h"))
        return false;
    return DrivingDataText::milesByDefault();
}

void DrivingDataPreferences::setUseMiles(bool value)
{
    if (value == useMiles() && QSettings().contains(speedUnitKey))
        return;
    const bool changed = value != useMiles();
    QSettings().setValue(speedUnitKey, DrivingDataText::speedUnit(value));
    if (changed)
        Q_EMIT useMilesChanged();
}
