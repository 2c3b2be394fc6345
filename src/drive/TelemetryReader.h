#pragma once

#include "model/ClipRef.h"
#include "model/TelemetryTrack.h"

#include <optional>
#include <stop_token>

// Reads the driving data the car wrote into a clip: the clip's video packets
// are read through libavformat and searched for the car's records, and no
// picture is decoded. Blocking; run it under the I/O watchdog.
namespace TelemetryReader {

// Null when the clip can't be read as a movie with video. A clip without
// records gives a track with frames and no records; a damaged record costs
// its frame only, and a read that fails part-way keeps the frames before it.
// Throws CancellationError once stop is requested.
std::optional<TelemetryTrack> readClip(const ClipRef &clip, std::stop_token stop = {});

} // namespace TelemetryReader
