#pragma once

#include "model/ArchivedEvent.h"

#include <QJsonObject>
#include <QSet>
#include <QString>
#include <stdexcept>
#include <vector>

// The Vault's index: what was copied, with sizes and digests, kept in
// "manifest.json" at the Vault's root. Nothing holds it in memory: every
// writer reads the file again, changes the list and writes all of it back.
struct VaultIndex {
    // Older runs first; within a run, the plan's order.
    std::vector<ArchivedEvent> events;

    // Reading, writing or trashing failed; the message names the path and cause.
    class FileError : public std::runtime_error {
    public:
        explicit FileError(const QString &message) : std::runtime_error(message.toStdString()) {}
        QString message() const { return QString::fromStdString(what()); }
    };

    static inline const QString manifestFileName = QStringLiteral("manifest.json");
    static QString manifestPath(const QString &vaultURL);

    // An event kept more than once has a record per keep; the newest one
    // says what the Vault holds of it. Null when the event has none.
    const ArchivedEvent *newestRecord(const QString &eventID) const;

    QSet<QString> dedupeKeySet() const;
    // Whether any event has the same dedupe key as the one given.
    bool contains(const ArchivedEvent &dedupeKeyOf) const;

    // An absent manifest is an empty index. Read errors raise FileError,
    // bad content JsonCoding::DecodingError.
    static VaultIndex load(const QString &vaultURL);
    // The forgiving reader: anything unreadable is an empty index.
    static VaultIndex loadOrEmpty(const QString &vaultURL) noexcept;
    // Creates the folder if needed and replaces manifest.json atomically.
    // Raises FileError.
    void save(const QString &vaultURL) const;

    // Moves the event's folder to the Trash and drops every record with
    // that id. False when no record has the id. Raises what the read,
    // decode, Trash or save raised.
    static bool removeEvent(const QString &eventID, const QString &vaultURL);

    bool operator==(const VaultIndex &) const = default;

    QJsonObject toJson() const;
    static VaultIndex fromJson(const QJsonValue &value);
};
