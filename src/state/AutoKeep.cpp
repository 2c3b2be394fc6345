#include "AutoKeep.h"

AutoKeep::AutoKeep(SettingsAccess &settings, QObject *parent) : QObject(parent), settings_(settings) {}

bool AutoKeep::isOn(const DriveIdentity &drive) const
{
    return listed(drivesKey, drive);
}

bool AutoKeep::withRecent(const DriveIdentity &drive) const
{
    return isOn(drive) && listed(recentKey, drive);
}

void AutoKeep::set(const DriveIdentity &drive, bool on, bool recent)
{
    if (isOn(drive) == on && withRecent(drive) == (on && recent))
        return;
    put(drivesKey, drive, on);
    put(recentKey, drive, on && recent);
    Q_EMIT changed();
}

bool AutoKeep::wasOffered(const DriveIdentity &drive) const
{
    return listed(offeredKey, drive);
}

void AutoKeep::markOffered(const DriveIdentity &drive)
{
    put(offeredKey, drive, true);
}

bool AutoKeep::listed(const QString &key, const DriveIdentity &drive) const
{
    return settings_.list(key).contains(drive.key());
}

void AutoKeep::put(const QString &key, const DriveIdentity &drive, bool in)
{
    QStringList drives = settings_.list(key);
    const bool there = drives.contains(drive.key());
    if (there == in)
        return;
    if (in)
        drives << drive.key();
    else
        drives.removeAll(drive.key());
    settings_.setList(key, drives);
}
