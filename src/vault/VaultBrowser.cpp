#include "vault/VaultBrowser.h"

#include "base/ReadOnlyFs.h"
#include "drive/ClipProber.h"
#include "drive/ClipNames.h"
#include "drive/TeslaCamParser.h"
#include "model/ClipRef.h"

#include <algorithm>

namespace VaultBrowser {

namespace {

// Sub-folders of a folder; a listing that fails is an empty branch, so
// one damaged folder never hides the rest.
std::vector<QString> subfolders(const QString &folder)
{
    std::vector<QString> names;
    for (const auto &entry : ReadOnlyFs::list(folder, ReadOnlyFs::directoryFlag).entries)
        if (entry.isDirectory)
            names.push_back(entry.name);
    return names;
}

std::optional<TeslaEvent> recentEvent(const QString &folder, const QString &name, std::vector<ScanIssue> &issues)
{
    auto clips = TeslaCamParser::parseFlatClipsDirectory(folder, issues);
    if (!clips || clips->empty())
        return std::nullopt;
    ClipOrder::sort(*clips);
    TeslaEvent event;
    event.kind = EventKind::recent;
    event.folderURL = folder;
    event.folderName = name;
    const auto earliest = std::min_element(clips->begin(), clips->end(), [](const ClipRef &a, const ClipRef &b) {
        return a.startDate < b.startDate;
    });
    event.timestamp = earliest->startDate;
    event.reason = PlainReason{ReasonCategory::recentDrive, std::nullopt, std::nullopt};
    event.clips = std::move(*clips);
    event.missingEventJSON = true;
    return event;
}

// A kept copy of the car's encrypted footage. Sentry and saved events say so
// through their encrypted event.json; the rest by their first clip's header.
void noteEncryption(TeslaEvent &event)
{
    if (!event.encrypted && !event.clips.empty() && ClipProber::sniffEcryptfs(event.clips.front().url))
        TeslaCamParser::markEncrypted(event);
}

} // namespace

std::vector<TeslaEvent> scanVault(const QString &url)
{
    const ReadOnlyFs::PathInfo root = ReadOnlyFs::stat(url, ReadOnlyFs::Links::followed);
    if (!root.exists || !root.isDirectory)
        throw VaultBrowserError(VaultBrowserError::vaultNotFound);

    std::vector<TeslaEvent> events;
    // The Vault has no issue list: parser findings are dropped.
    std::vector<ScanIssue> issues;
    for (const QString &year : subfolders(url)) {
        const QString yearFolder = url + QLatin1Char('/') + year;
        for (const QString &kindName : subfolders(yearFolder)) {
            const auto kind = EventKind::fromRawValue(kindName);
            if (!kind)
                continue;
            const QString kindFolder = yearFolder + QLatin1Char('/') + kindName;
            for (const QString &name : subfolders(kindFolder)) {
                const QString folder = kindFolder + QLatin1Char('/') + name;
                if (*kind == EventKind::recent) {
                    if (auto event = recentEvent(folder, name, issues)) {
                        noteEncryption(*event);
                        events.push_back(std::move(*event));
                    }
                    continue;
                }
                const auto groups = ClipNames::matchFolderName(name);
                if (!groups)
                    continue;
                const auto stamp = ClipNames::parseTimestamp(groups->date, groups->time);
                if (!stamp)
                    continue;
                auto event = TeslaCamParser::parseEventFolder(folder, *kind, *stamp, issues);
                if (event && event->missingEventJSON)
                    noteEncryption(*event);
                // A keep cut off before its first file arrived leaves an
                // empty folder (or one with only a hidden partial copy):
                // nothing was kept, so there is no event to show.
                if (event && (!event->clips.empty() || !event->missingEventJSON || event->thumbURL)) {
                    events.push_back(std::move(*event));
                }
            }
        }
    }
    EventOrder::sortNewestFirst(events);
    return events;
}

} // namespace VaultBrowser
