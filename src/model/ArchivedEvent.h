#pragma once

#include "model/Date.h"
#include "model/EventKind.h"
#include "model/ArchivedFile.h"

#include <QJsonObject>
#include <QString>
#include <optional>
#include <vector>

// One kept event as recorded in the Vault's manifest.json.
struct ArchivedEvent {
    QString eventID;      // the TeslaEvent id: "<kind>|<folder name>"
    EventKind kind = EventKind::sentry;
    QString folderName;
    Date timestamp;
    std::vector<ArchivedFile> files; // really copied, in copy order
    Date archivedAt;
    QString sourceVolume; // "Unknown Drive" when the name could not be read
    QString relativePath; // "<year>/<kind>/<folder name>" from the Vault root
    // How many files the run meant to copy for the event. Nothing in records
    // written before it was kept: unknown, so such a record is taken as whole.
    std::optional<int> expectedFileCount;
    // The car's encrypted footage, kept byte for byte; written only when true.
    bool encrypted = false;

    const QString &id() const { return eventID; }

    // kind|folder|file count|total bytes|sorted names joined with ",".
    // Digests take no part: a returning drive is recognised without hashing.
    QString dedupeKey() const;
    qint64 totalBytes() const;
    // Some of the files the run meant to copy never arrived.
    bool isIncomplete() const { return expectedFileCount && int(files.size()) < *expectedFileCount; }

    bool operator==(const ArchivedEvent &) const = default;

    QJsonObject toJson() const;
    static ArchivedEvent fromJson(const QJsonValue &value);

    // The drive's name a person reads: the stored stand-in for an unreadable
    // name (kept in English in manifest.json) in the loaded language.
    QString sourceVolumeText() const;

    //: Stands for the name of a drive that could not be read
    static inline const QString unknownDrive = QString::fromUtf8(QT_TRANSLATE_NOOP("ArchivedEvent", "Unknown Drive"));
};

size_t qHash(const ArchivedEvent &e, size_t seed = 0) noexcept;
