#pragma once

#include "model/Camera.h"
#include "model/EventTelemetry.h"
#include "model/TeslaEvent.h"

#include <chrono>
#include <stop_token>
#include <vector>

// The driving data of one camera of an event on the event's shared time
// axis, where the player shows that camera's frames.
namespace TelemetryTimeline {

// A clip is read whole; a slow stick needs some seconds for a large one.
inline constexpr std::chrono::milliseconds defaultClipTimeout{20000};

// Lays the tracks of one camera's clips out on the event's axis exactly as
// the player lays those clips out.
EventTelemetry place(const TeslaEvent &event, Camera camera, std::vector<TelemetryTrack> tracks);

// Reads the clips of one camera that the player would open, one at a time,
// each under the watchdog. A clip that can't be read or doesn't answer in
// time is left out and the rest go on. Blocking; throws CancellationError
// once stop is requested.
EventTelemetry load(const TeslaEvent &event, Camera camera, std::stop_token stop = {},
                    std::chrono::milliseconds clipTimeout = defaultClipTimeout);

} // namespace TelemetryTimeline
