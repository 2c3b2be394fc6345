#include "moments/ActivityReader.h"

#include "base/CancellationError.h"
#include "base/IOWatchdog.h"
#include "base/ReadOnlyFs.h"
#include "base/ReadPriority.h"
#include "crypt/DecryptingClipReader.h"

namespace ActivityReader {

bool isWorthAhead(const TeslaEvent &event)
{
    return event.kind == EventKind::sentry || event.kind == EventKind::saved;
}

EventActivity load(const TeslaEvent &event, const Options &options, std::stop_token stop)
{
    std::vector<std::pair<ClipRef, ClipActivity>> read;
    bool learned = false;
    for (const ClipRef &clip : event.clips) {
        if (stop.stop_requested())
            throw CancellationError();
        if (clip.health.isDamaged())
            continue;
        if (options.background)
            ReadPriority::yieldToUrgent(stop);
        try {
            const ReadOnlyFs::PathInfo info = IOWatchdog::run(
                options.clipTimeout, [url = clip.url](std::stop_token) { return ReadOnlyFs::stat(url); }, stop);
            if (!info.isRegularFile)
                continue;
            const ActivityCache::Key key{clip.url, info.size, info.modifiedMs};
            if (options.cache)
                if (auto known = options.cache->find(key)) {
                    read.emplace_back(clip, std::move(*known));
                    continue;
                }
            if (!DecryptingClipReader::opens(clip, options.clipTimeout, stop))
                continue;
            auto activity = IOWatchdog::run(
                options.clipTimeout, [url = clip.url](std::stop_token watch) { return ClipActivity::read(url, watch); }, stop);
            if (!activity)
                continue;
            if (options.cache) {
                options.cache->insert(key, *activity);
                learned = true;
            }
            read.emplace_back(clip, std::move(*activity));
        } catch (const IOWatchdog::TimedOut &) {
            // This clip only.
        }
    }
    if (stop.stop_requested())
        throw CancellationError();
    if (learned)
        options.cache->save();
    return EventActivity::make(event, read);
}

} // namespace ActivityReader
