#pragma once

// Reads the activity of an event's clips: each clip from the cache when its
// size and time match, from its header otherwise, one at a time and each
// under the watchdog, so a clip that hangs or is damaged costs its own
// seconds only.

#include "moments/ActivityCache.h"
#include "moments/EventActivity.h"

#include <chrono>
#include <stop_token>

namespace ActivityReader {

// Only the header is read, but a slow stick may need a while for it.
inline constexpr std::chrono::milliseconds defaultClipTimeout{10000};

struct Options {
    ActivityCache *cache = nullptr; // none: every clip read
    std::chrono::milliseconds clipTimeout = defaultClipTimeout;
    // Lets the reads the user waits on (an event opening) go first.
    bool background = false;
};

// Blocking; throws CancellationError once stop is requested. Saves the
// cache when it learned something.
EventActivity load(const TeslaEvent &event, const Options &options, std::stop_token stop = {});

// Whether an event is one whose activity is worth working out ahead of
// time: parked footage (Sentry) and saved events, not recent driving.
bool isWorthAhead(const TeslaEvent &event);

} // namespace ActivityReader
