#include "timeline/TelemetryTimeline.h"

#include "base/IOWatchdog.h"
#include "crypt/DecryptingClipReader.h"
#include "drive/TelemetryReader.h"
#include "base/CancellationError.h"
#include "timeline/Composition.h"

#include <QHash>
#include <algorithm>

namespace TelemetryTimeline {

EventTelemetry place(const TeslaEvent &event, Camera camera, std::vector<TelemetryTrack> tracks)
{
    std::stable_sort(tracks.begin(), tracks.end(), [](const TelemetryTrack &a, const TelemetryTrack &b) {
        return a.clip.startDate < b.clip.startDate;
    });
    EventTelemetry result;
    result.camera = camera;
    Composition::Track axis;
    QHash<QString, int> trackOfFile;
    for (const TelemetryTrack &track : tracks) {
        if (track.duration > 0 && axis.placeClip(track.clip.url, track.duration, event.timelineOffset(track.clip)))
            trackOfFile.insert(track.clip.url, int(result.tracks.size()));
        result.tracks.push_back(track);
    }
    for (const Composition::Segment &segment : axis.segments)
        result.pieces.push_back({trackOfFile.value(segment.file), segment.timelineStart.seconds(),
                                 segment.sourceStart.seconds(), segment.duration.seconds()});
    return result;
}

EventTelemetry load(const TeslaEvent &event, Camera camera, std::stop_token stop,
                    std::chrono::milliseconds clipTimeout)
{
    std::vector<TelemetryTrack> tracks;
    for (const ClipRef &clip : event.clips) {
        if (clip.camera != camera)
            continue;
        if (stop.stop_requested())
            throw CancellationError();
        if (!DecryptingClipReader::opens(clip, clipTimeout, stop))
            continue;
        try {
            auto track = IOWatchdog::run(
                clipTimeout, [clip](std::stop_token watch) { return TelemetryReader::readClip(clip, watch); }, stop);
            if (track)
                tracks.push_back(std::move(*track));
        } catch (const IOWatchdog::TimedOut &) {
            // This clip only.
        }
    }
    if (stop.stop_requested())
        throw CancellationError();
    return place(event, camera, std::move(tracks));
}

} // namespace TelemetryTimeline
