#pragma once

#include "model/ArchivedEvent.h"

#include <QJsonObject>
#include <QString>
#include <optional>
#include <vector>

// The result of an archive run. A run never fails as a whole: every file
// that could not be kept is listed here with a sentence for the user.
struct ArchiveReport {
    struct FailedFile {
        QString path;   // the source file, or the event's Vault folder if it couldn't be made
        QString reason; // a whole sentence for the user

        bool operator==(const FailedFile &) const = default;

        QJsonObject toJson() const;
        static FailedFile fromJson(const QJsonValue &value);
    };

    // Why the run ended before its plan did, when it wasn't asked to stop.
    enum class StopReason : quint8 {
        driveDisconnected, // the drive that held the events went away mid-run
    };
    static QString rawValue(StopReason reason);
    static std::optional<StopReason> stopReasonFromRawValue(const QString &raw);

    std::vector<ArchivedEvent> archivedEvents; // records made in this run, in order
    int skippedDuplicates = 0;
    std::vector<FailedFile> failedFiles;       // in order of failure
    // Every file copied, including those of an event cut off by cancelling.
    qint64 bytesCopied = 0;
    bool cancelled = false;
    std::optional<StopReason> stoppedBecause;
    // The plan's new events: what "all of them kept" is counted against.
    int plannedEvents = 0;

    // Records whose every planned file arrived.
    int completeEvents() const;

    bool operator==(const ArchiveReport &) const = default;

    QJsonObject toJson() const;
    static ArchiveReport fromJson(const QJsonValue &value);
};

size_t qHash(const ArchiveReport::FailedFile &f, size_t seed = 0) noexcept;
