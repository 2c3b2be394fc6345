#pragma once

#include "model/Date.h"

#include <QHash>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

// What the last re-reading of each kept event found, and when, kept in a
// hidden file of the Vault beside manifest.json (never inside it: the
// manifest records what was copied, this what was found later). Written by
// the app and by `vault verify` alike; a file that can't be read is an
// empty log, and one that can't be written is dropped.
struct EventCheck {
    QString eventID;
    Date checkedAt;
    int verified = 0;
    QStringList changed;    // size or digest differs from the newest record that lists it
    QStringList missing;    // no regular file under that name
    QStringList unreadable; // there, but reading it failed
    // Files the newest keep meant to copy, and how many of them arrived.
    std::optional<int> expectedFiles;
    int keptFiles = 0;

    bool incomplete() const { return expectedFiles && keptFiles < *expectedFiles; }
    bool ok() const { return changed.isEmpty() && missing.isEmpty() && unreadable.isEmpty() && !incomplete(); }

    bool operator==(const EventCheck &) const = default;

    QJsonObject toJson() const;
    static EventCheck fromJson(const QJsonValue &value);
};

struct VerificationLog {
    static inline const QString fileName = QStringLiteral(".keelhold-verified.json");

    // Latest check per event id.
    QHash<QString, EventCheck> events;
    // When every kept event was last re-read in one go.
    std::optional<Date> wholeVaultCheckedAt;

    // Newer checks replace older ones of the same event.
    void record(const std::vector<EventCheck> &checks);
    const EventCheck *find(const QString &eventID) const;

    static VerificationLog load(const QString &vaultURL) noexcept;
    bool save(const QString &vaultURL) const;

    bool operator==(const VerificationLog &) const = default;
};
