#pragma once

#include "model/Date.h"
#include "model/DriveScan.h"
#include "model/EventKind.h"
#include "model/ScanIssue.h"
#include "model/ScanProgress.h"
#include "model/TeslaEvent.h"
#include "model/VolumeFormat.h"

#include <QString>
#include <exception>
#include <optional>
#include <vector>

// Reads a TeslaCam folder into a DriveScan. Names, sizes and each event's
// small event.json only; never opens a clip and never writes to the drive.
namespace TeslaCamParser {

class ParserError : public std::exception {
public:
    enum Case { rootNotFound, rootNotAFolder };
    explicit ParserError(Case c) : case_(c) {}
    Case errorCase() const { return case_; }
    const char *what() const noexcept override;
    // The sentence for the user, in the loaded language.
    QString message() const;

private:
    Case case_;
};

class ScanError : public std::exception {
public:
    // accessDenied(path:), the only case: the chosen folder itself refuses
    // listing. Any folder below it that does becomes a ScanIssue instead.
    explicit ScanError(const QString &path);
    const QString &path() const { return path_; }
    // The sentence for the user, in the loaded language; what() is English.
    QString message() const;
    const char *what() const noexcept override { return text_.c_str(); }

private:
    QString path_;
    std::string text_;
};

DriveScan scan(const QString &root, const ScanProgressCallback &progress = {});

std::optional<TeslaEvent> parseEventFolder(const QString &folderURL, EventKind kind, Date folderTimestamp,
                                           std::vector<ScanIssue> &issues);
std::optional<std::vector<ClipRef>> parseFlatClipsDirectory(const QString &folderURL, std::vector<ScanIssue> &issues);
// knownSize skips the size read when a listing already fetched it.
std::optional<ClipRef> parseClipFilename(const QString &fileURL, std::vector<ScanIssue> &issues,
                                         std::optional<qint64> knownSize = std::nullopt);
// Recent clips further apart than this (seconds) are two drives.
inline constexpr double recentGapTolerance = 150.0;
std::vector<TeslaEvent> groupIntoRecentEvents(const std::vector<ClipRef> &clips, const QString &folderURL,
                                              double gapTolerance);
VolumeFormat volumeFormat(const std::optional<QString> &description);
// An event of the car's encrypted footage: flagged, and every clip taken as
// encrypted until a probe or a key says more.
void markEncrypted(TeslaEvent &event);

// Progress texts, in order of appearance: the English sources, translated
// when reported (context "TeslaCamParser").
namespace Phase {
inline constexpr const char *reading = QT_TRANSLATE_NOOP("TeslaCamParser", "Reading your Tesla drive\u2026");
//: Scan progress: reading the SentryClips folder
inline constexpr const char *sentry = QT_TRANSLATE_NOOP("TeslaCamParser", "Reading Sentry events\u2026");
//: Scan progress: reading the SavedClips folder
inline constexpr const char *saved = QT_TRANSLATE_NOOP("TeslaCamParser", "Reading Saved clips\u2026");
//: Scan progress: reading the RecentClips folder
inline constexpr const char *recent = QT_TRANSLATE_NOOP("TeslaCamParser", "Reading Recent driving\u2026");
inline constexpr const char *complete = QT_TRANSLATE_NOOP("TeslaCamParser", "Scan complete.");
} // namespace Phase

} // namespace TeslaCamParser
