#pragma once

#include "drive/DriveIdentity.h"
#include "engine/SettingsAccess.h"

#include <QObject>
#include <QString>

// Which drives keep themselves when they are connected, remembered by the
// drive's identity (the same rule that resumes a keep), and which of them
// take their recent driving too. Also whether a drive was already offered
// the choice, so the offer comes once.
class AutoKeep : public QObject {
    Q_OBJECT
public:
    static inline const QString drivesKey = QStringLiteral("KHAutoKeepDrives");
    static inline const QString recentKey = QStringLiteral("KHAutoKeepRecent");
    static inline const QString offeredKey = QStringLiteral("KHAutoKeepOffered");

    explicit AutoKeep(SettingsAccess &settings, QObject *parent = nullptr);

    bool isOn(const DriveIdentity &drive) const;
    bool withRecent(const DriveIdentity &drive) const;
    // Recent driving counts only while the drive keeps itself at all.
    void set(const DriveIdentity &drive, bool on, bool recent);

    bool wasOffered(const DriveIdentity &drive) const;
    void markOffered(const DriveIdentity &drive);

Q_SIGNALS:
    void changed();

private:
    bool listed(const QString &key, const DriveIdentity &drive) const;
    void put(const QString &key, const DriveIdentity &drive, bool in);

    SettingsAccess &settings_;
};
