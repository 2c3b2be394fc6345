#include "drive/TeslaCamParser.h"

#include "drive/ClipCalendar.h"
#include "drive/ClipNames.h"
#include "drive/EcryptfsHeader.h"
#include "drive/EventJSONPayload.h"
#include "base/ReadOnlyFs.h"
#include "drive/ReasonMapper.h"
#include "drive/VolumeInfo.h"

#include <QCoreApplication>

#include <algorithm>
#include <cerrno>
#include <set>

namespace TeslaCamParser {

// what() keeps the English source for the log; message() translates it.
const char *ParserError::what() const noexcept
{
    switch (case_) {
    case rootNotFound: return QT_TRANSLATE_NOOP("TeslaCamParser", "The TeslaCam folder could not be found.");
    case rootNotAFolder: return QT_TRANSLATE_NOOP("TeslaCamParser", "The selected item is not a folder.");
    }
    return QT_TRANSLATE_NOOP("TeslaCamParser", "The TeslaCam folder could not be read.");
}

QString ParserError::message() const { return QCoreApplication::translate("TeslaCamParser", what()); }

namespace {
//: %1 is the folder's full path
const char *const accessDeniedText = QT_TRANSLATE_NOOP("TeslaCamParser",
                                                       "Keelhold isn't allowed to read the folder \u201c%1\u201d. "
                                                       "Check the folder's permissions and try again.");
} // namespace

ScanError::ScanError(const QString &path)
    : path_(path), text_(QString::fromUtf8(accessDeniedText).arg(path).toStdString())
{
}

QString ScanError::message() const
{
    return QCoreApplication::translate("TeslaCamParser", accessDeniedText).arg(path_);
}

namespace {

constexpr qint64 maxEventJSONBytes = 1 << 20;

std::optional<ClipRef> clipFromName(const QString &fileURL, QStringView name, std::vector<ScanIssue> &issues,
                                    std::optional<qint64> knownSize)
{
    const auto groups = ClipNames::matchClipViews(name);
    if (!groups)
        return std::nullopt;
    const auto camera = Camera::fromFileSuffix(groups->suffix);
    if (!camera) {
        issues.push_back(ScanIssue{ScanIssue::Kind::unknownCameraSuffix, fileURL});
        return std::nullopt;
    }
    const auto start = ClipNames::parseTimestamp(groups->date, groups->time);
    if (!start)
        return std::nullopt;
    qint64 size = 0;
    if (knownSize) {
        size = *knownSize;
    } else {
        const auto info = ReadOnlyFs::stat(fileURL);
        size = info.exists ? info.size : 0;
    }
    ClipRef clip;
    clip.url = fileURL;
    clip.camera = *camera;
    clip.startDate = *start;
    clip.fileSize = size;
    clip.health = ClipHealth::unknown;
    return clip;
}

void report(const ScanProgressCallback &progress, const char *phase, int folders, int events, int clips)
{
    if (progress)
        progress(ScanProgress{QCoreApplication::translate("TeslaCamParser", phase), folders, events, clips});
}

QString childPath(const QString &folder, const QString &name)
{
    QString path;
    path.reserve(folder.size() + 1 + name.size());
    path.append(folder);
    if (!folder.endsWith(QLatin1Char('/')))
        path.append(QLatin1Char('/'));
    path.append(name);
    return path;
}

QString lastComponent(const QString &path)
{
    return path.section(QLatin1Char('/'), -1, -1, QString::SectionSkipEmpty);
}

// Throws accessDenied when the folder refuses listing for lack of
// permission; any other failure is left for the real listing to report.
void assertReadable(const QString &folder)
{
    const ReadOnlyFs::Listing listing = ReadOnlyFs::list(folder, ReadOnlyFs::namesOnly);
    if (!listing.ok() && ReadOnlyFs::isPermissionDenied(listing.error))
        throw ScanError(folder);
}

bool exists(const QString &path)
{
    return ReadOnlyFs::stat(path).exists;
}

// A top folder that is there, or that can't even be looked at (a failing
// drive), in which case only its listing can tell more.
bool present(const QString &path)
{
    const ReadOnlyFs::PathInfo info = ReadOnlyFs::stat(path);
    return info.exists || info.error != ENOENT;
}

// SentryClips, SavedClips and RecentClips under base (the TeslaCam folder,
// or its EncryptedClips folder).
void scanLayout(const QString &base, const ScanProgressCallback &progress, int &foldersScanned,
                std::vector<TeslaEvent> &events, std::vector<ScanIssue> &issues)
{
    struct EventFolder {
        const char *name;
        EventKind kind;
        const char *phase;
    };
    for (const EventFolder &f : {EventFolder{"SentryClips", EventKind::sentry, Phase::sentry},
                                 EventFolder{"SavedClips", EventKind::saved, Phase::saved}}) {
        const QString folder = childPath(base, QLatin1String(f.name));
        if (!present(folder))
            continue;
        assertReadable(folder);
        report(progress, f.phase, foldersScanned, int(events.size()), 0);
        // A folder that fails its listing for any other reason than a
        // refusal (a failing drive) costs itself only.
        const ReadOnlyFs::Listing listing = ReadOnlyFs::list(folder, ReadOnlyFs::directoryFlag);
        if (!listing.ok()) {
            issues.push_back(ScanIssue{ScanIssue::Kind::unreadableFolder, folder});
            continue;
        }
        for (const auto &entry : listing.entries) {
            const QString path = childPath(folder, entry.name);
            if (!entry.isDirectory) {
                if (!ClipNames::isIgnoredName(entry.name))
                    issues.push_back(ScanIssue{ScanIssue::Kind::unknownFile, path});
                continue;
            }
            ++foldersScanned;
            const auto groups = ClipNames::matchFolderName(entry.name);
            if (!groups)
                continue;
            const auto timestamp = ClipNames::parseTimestamp(groups->date, groups->time);
            if (!timestamp)
                continue;
            auto event = parseEventFolder(path, f.kind, *timestamp, issues);
            if (!event) {
                issues.push_back(ScanIssue{ScanIssue::Kind::unreadableFolder, path});
                continue;
            }
            events.push_back(std::move(*event));
            report(progress, f.phase, foldersScanned, int(events.size()), 0);
        }
    }

    const QString recentFolder = childPath(base, QStringLiteral("RecentClips"));
    if (present(recentFolder)) {
        assertReadable(recentFolder);
        report(progress, Phase::recent, foldersScanned, int(events.size()), 0);
        if (auto clips = parseFlatClipsDirectory(recentFolder, issues)) {
            for (auto &e : groupIntoRecentEvents(*clips, recentFolder, recentGapTolerance))
                events.push_back(std::move(e));
        } else {
            issues.push_back(ScanIssue{ScanIssue::Kind::unreadableFolder, recentFolder});
        }
    }
}

} // namespace

std::optional<ClipRef> parseClipFilename(const QString &fileURL, std::vector<ScanIssue> &issues,
                                         std::optional<qint64> knownSize)
{
    const qsizetype slash = fileURL.lastIndexOf(QLatin1Char('/'));
    return clipFromName(fileURL, QStringView(fileURL).mid(slash + 1), issues, knownSize);
}

std::optional<TeslaEvent> parseEventFolder(const QString &folderURL, EventKind kind, Date folderTimestamp,
                                           std::vector<ScanIssue> &issues)
{
    const ReadOnlyFs::Listing listing =
        ReadOnlyFs::list(folderURL, ReadOnlyFs::fileSize | ReadOnlyFs::directoryFlag);
    if (!listing.ok())
        return std::nullopt;

    std::vector<ClipRef> clips;
    std::optional<EventJSONPayload> payload;
    std::optional<QString> thumbURL;
    bool missingEventJSON = true;
    bool encryptedEventJSON = false;

    for (const auto &entry : listing.entries) {
        const QString path = childPath(folderURL, entry.name);
        if (entry.name == QLatin1String("event.json")) {
            missingEventJSON = false;
            const auto data = ReadOnlyFs::readFile(path, maxEventJSONBytes);
            // The car encrypts event.json with a key it keeps to itself: not a
            // broken file, just one that can't be read off the car.
            if (data && Ecryptfs::hasMarker(*data))
                encryptedEventJSON = true;
            else if (data)
                payload = EventJSONPayload::decode(*data);
            if (!payload && !encryptedEventJSON)
                issues.push_back(ScanIssue{ScanIssue::Kind::badEventJSON, path});
        } else if (entry.name == QLatin1String("thumb.png")) {
            thumbURL = path;
        } else {
            if (auto clip = clipFromName(path, entry.name, issues, entry.size.value_or(0))) {
                clips.push_back(std::move(*clip));
            } else if (!ClipNames::matchClipViews(entry.name) && !ClipNames::isIgnoredName(entry.name)) {
                issues.push_back(ScanIssue{ScanIssue::Kind::unknownFile, path});
            }
        }
    }
    ClipOrder::sort(clips);

    TeslaEvent event;
    event.kind = kind;
    event.folderURL = folderURL;
    event.folderName = lastComponent(folderURL);
    event.timestamp = folderTimestamp;
    if (payload) {
        if (const auto t = payload->parsedTimestamp())
            event.timestamp = *t;
        event.city = payload->city;
        event.street = payload->street;
        event.latitude = payload->estLat;
        event.longitude = payload->estLon;
        event.reasonRaw = payload->reason;
        event.triggerCameraRaw = payload->cameraRaw;
    }
    event.reason = ReasonMapper::map(event.reasonRaw);
    event.clips = std::move(clips);
    event.thumbURL = thumbURL;
    event.missingEventJSON = missingEventJSON;
    if (encryptedEventJSON)
        markEncrypted(event);
    return event;
}

std::optional<std::vector<ClipRef>> parseFlatClipsDirectory(const QString &folderURL, std::vector<ScanIssue> &issues)
{
    const ReadOnlyFs::Listing listing = ReadOnlyFs::list(folderURL, ReadOnlyFs::fileSize);
    if (!listing.ok())
        return std::nullopt;
    std::vector<ClipRef> clips;
    clips.reserve(listing.entries.size());
    for (const auto &entry : listing.entries) {
        const QString path = childPath(folderURL, entry.name);
        if (auto clip = clipFromName(path, entry.name, issues, entry.size.value_or(0)))
            clips.push_back(std::move(*clip));
        else if (!ClipNames::matchClipViews(entry.name) && !ClipNames::isIgnoredName(entry.name))
            issues.push_back(ScanIssue{ScanIssue::Kind::unknownFile, path});
    }
    return clips;
}

std::vector<TeslaEvent> groupIntoRecentEvents(const std::vector<ClipRef> &clips, const QString &folderURL,
                                              double gapTolerance)
{
    std::vector<TeslaEvent> events;
    if (clips.empty())
        return events;

    std::vector<Date> dates;
    dates.reserve(clips.size());
    for (const auto &c : clips)
        dates.push_back(c.startDate);
    std::sort(dates.begin(), dates.end());
    dates.erase(std::unique(dates.begin(), dates.end()), dates.end());

    std::vector<std::vector<Date>> groups{{dates.front()}};
    for (size_t i = 1; i < dates.size(); ++i) {
        if (dates[i].timeIntervalSince(groups.back().back()) > gapTolerance)
            groups.push_back({});
        groups.back().push_back(dates[i]);
    }

    std::vector<ClipRef> sorted = clips;
    ClipOrder::sort(sorted);
    auto next = sorted.begin();
    for (const auto &group : groups) {
        TeslaEvent event;
        event.kind = EventKind::recent;
        event.folderURL = folderURL;
        event.timestamp = group.front();
        event.folderName = QStringLiteral("recent_") + ClipCalendar::folderNameString(group.front());
        event.reason = ReasonMapper::recentDrive();
        event.missingEventJSON = true;
        // Groups are ascending and disjoint, so the sorted clips split in runs.
        const Date last = group.back();
        while (next != sorted.end() && next->startDate <= last)
            event.clips.push_back(*next++);
        events.push_back(std::move(event));
    }
    return events;
}

void markEncrypted(TeslaEvent &event)
{
    event.encrypted = true;
    for (ClipRef &clip : event.clips)
        clip.health = ClipHealth::encrypted;
}

VolumeFormat volumeFormat(const std::optional<QString> &description)
{
    if (!description)
        return VolumeFormat::unknown;
    const QString lower = description->toLower();
    if (lower.contains(QLatin1String("exfat")))
        return VolumeFormat::exFAT;
    if (lower.contains(QLatin1String("fat32")) || lower.contains(QLatin1String("ms-dos"))
        || lower.contains(QLatin1String("fat")))
        return VolumeFormat::fat32;
    if (lower.contains(QLatin1String("apfs")))
        return VolumeFormat::apfs;
    return VolumeFormat::makeOther(*description);
}

DriveScan scan(const QString &rootIn, const ScanProgressCallback &progress)
{
    QString root = rootIn;
    while (root.size() > 1 && root.endsWith(QLatin1Char('/')))
        root.chop(1);

    // The chosen folder may be reached through a link; nothing under it is.
    const ReadOnlyFs::PathInfo rootInfo = ReadOnlyFs::stat(root, ReadOnlyFs::Links::followed);
    if (!rootInfo.exists)
        throw ParserError(ParserError::rootNotFound);
    if (!rootInfo.isDirectory)
        throw ParserError(ParserError::rootNotAFolder);
    assertReadable(root);

    std::vector<ScanIssue> issues;
    std::vector<TeslaEvent> events;
    int foldersScanned = 0;
    report(progress, Phase::reading, 0, 0, 0);

    // The car's encrypted footage lies under EncryptedClips in the same
    // layout, read by the same rules; its clips are taken as encrypted by
    // where they lie, without opening them.
    const QString encryptedRoot = childPath(root, QStringLiteral("EncryptedClips"));
    const bool encryptedClipsPresent = exists(encryptedRoot);
    for (const QString &base : {root, encryptedRoot}) {
        const bool encrypted = base == encryptedRoot;
        if (encrypted && !encryptedClipsPresent)
            break;
        const size_t firstEvent = events.size();
        scanLayout(base, progress, foldersScanned, events, issues);
        if (encrypted) {
            for (size_t i = firstEvent; i < events.size(); ++i)
                markEncrypted(events[i]);
        }
    }

    EventOrder::sortNewestFirst(events);

    const auto volume = VolumeInfo::query(root);
    int clipCount = 0;
    for (const auto &e : events)
        clipCount += int(e.clips.size());
    report(progress, Phase::complete, foldersScanned, int(events.size()), clipCount);

    DriveScan result;
    result.teslaCamURL = root;
    result.volumeName = (volume && volume->name) ? *volume->name : lastComponent(root);
    result.format = volumeFormat(volume ? volume->formatDescription : std::nullopt);
    if (volume) {
        result.capacityBytes = volume->capacityBytes;
        result.freeBytes = volume->freeBytes;
        result.onSystemDisk = volume->onSystemDisk;
    }
    result.events = std::move(events);
    result.encryptedClipsPresent = encryptedClipsPresent;
    result.issues = std::move(issues);
    result.scannedAt = Date::now();
    return result;
}

} // namespace TeslaCamParser
