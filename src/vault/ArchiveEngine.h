#pragma once

#include "model/ArchiveProgress.h"
#include "model/ArchiveReport.h"
#include "model/TeslaEvent.h"
#include "vault/ArchivePlan.h"
#include "model/ArchivedFile.h"
#include "vault/VaultIndex.h"

#include <QString>
#include <chrono>
#include <exception>
#include <stop_token>
#include <string>
#include <vector>

// The one place where footage leaves the car's drive: each file is copied
// under a temporary name while its SHA-256 is taken from the bytes as read,
// its size is checked, and only then is it moved into place. A run never
// fails as a whole; what went wrong is told in its report.
namespace ArchiveEngine {

class ArchiveEngineError : public std::exception {
public:
    enum Case {
        sizeMismatch,
        cannotCreateFile,
        // The Vault's side: its disk is full, or the folder has gone (an
        // unplugged Vault drive).
        vaultFull,
        vaultUnavailable,
        // A link, FIFO or device where the car writes only files.
        notRegularFile,
    };
    ArchiveEngineError(Case c, const QString &path);
    Case errorCase() const { return case_; }
    // The source path (sizeMismatch, notRegularFile) or the Vault side's path.
    const QString &path() const { return path_; }
    const char *what() const noexcept override { return text_.c_str(); }

private:
    Case case_;
    QString path_;
    std::string text_;
};

inline constexpr std::chrono::milliseconds defaultTimeoutPerFile{10000};
inline constexpr qint64 chunkSize = 1048576;
inline constexpr double progressThrottleSeconds = 0.1;

// Sorts new events from those the Vault already holds with the same files.
// Reads only file sizes on the drive; never fails.
ArchivePlan plan(const std::vector<TeslaEvent> &events, const VaultIndex &vault);

// Copies every new item of the plan into the Vault and merges the records
// into manifest.json at the end, also when stopped. Blocking; requesting
// stop on the token cancels it between events, files and 1 MiB blocks.
ArchiveReport run(const ArchivePlan &plan, const QString &vaultURL, const ArchiveProgressCallback &progress = {},
                  std::chrono::milliseconds timeoutPerFile = defaultTimeoutPerFile, std::stop_token stop = {});

// What a run copies for one event: its clips, then event.json and the
// thumbnail when they exist now.
std::vector<QString> sourceFiles(const TeslaEvent &event);

// "<year>/<kind>/<folder name>", the year taken in the local time zone now.
QString relativePath(const TeslaEvent &event);

// One file, under the watchdog's limit. Raises on any failure; CancellationError
// when stop was requested.
ArchivedFile copyFileWithHash(const QString &from, const QString &to, std::chrono::milliseconds timeout,
                              std::stop_token stop = {});

// The sentence the user reads for a file that failed.
QString friendlyReason(const std::exception_ptr &error);

// The English sources of the sentences friendlyReason() gives, translated
// there (context "ArchiveEngine").
namespace Reason {
inline constexpr const char16_t *timedOut =
    u"" QT_TRANSLATE_NOOP("ArchiveEngine", "This file took too long to read \u2014 the drive may be failing.");
inline constexpr const char16_t *cannotCreateFile =
    u"" QT_TRANSLATE_NOOP("ArchiveEngine", "Couldn't create a file in your Vault folder.");
inline constexpr const char16_t *sizeMismatch = u"" QT_TRANSLATE_NOOP(
    "ArchiveEngine", "This file changed size while copying \u2014 the drive may have been disconnected.");
inline constexpr const char16_t *unreadable = u"" QT_TRANSLATE_NOOP("ArchiveEngine", "This file couldn't be read.");
inline constexpr const char16_t *vaultFull =
    u"" QT_TRANSLATE_NOOP("ArchiveEngine", "There isn't enough space in your Vault folder.");
inline constexpr const char16_t *vaultUnavailable =
    u"" QT_TRANSLATE_NOOP("ArchiveEngine", "The Vault folder is no longer available.");
inline constexpr const char16_t *notRegularFile = u"" QT_TRANSLATE_NOOP(
    "ArchiveEngine", "This isn't an ordinary file (it is a link or a special file), so it was left alone.");
inline constexpr const char16_t *indexNotSaved = u"" QT_TRANSLATE_NOOP(
    "ArchiveEngine",
    "The Vault's list of kept events couldn't be saved, so nothing from this run is recorded as kept.");
} // namespace Reason

} // namespace ArchiveEngine
