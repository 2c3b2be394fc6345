#include "model/TelemetryTrack.h"

#include <algorithm>
#include <cmath>

TelemetryTrack TelemetryTrack::make(const ClipRef &clip, double duration, std::vector<Frame> frames)
{
    // Packets come in decoding order; a frame shows at its presentation time.
    std::stable_sort(frames.begin(), frames.end(),
                     [](const Frame &a, const Frame &b) { return a.mediaTime < b.mediaTime; });
    TelemetryTrack track;
    track.clip = clip;
    track.duration = duration;
    track.frameTimes.reserve(frames.size());
    for (Frame &frame : frames) {
        if (!std::isfinite(frame.mediaTime))
            continue;
        const int index = int(track.frameTimes.size());
        track.frameTimes.push_back(frame.mediaTime);
        if (frame.record) {
            frame.record->mediaTime = frame.mediaTime;
            frame.record->frameIndex = index;
            track.records.push_back(*frame.record);
        }
    }
    return track;
}

std::optional<int> TelemetryTrack::frameAt(double mediaTime) const
{
    if (frameTimes.empty() || !(mediaTime >= frameTimes.front()))
        return std::nullopt;
    // The last frame lasts to the clip's end, or one frame's time when the
    // clip's length is unknown or shorter.
    const double last = frameTimes.back();
    const double step = frameTimes.size() > 1 ? (last - frameTimes.front()) / double(frameTimes.size() - 1) : 0.0;
    if (mediaTime > last && mediaTime >= std::max(duration, last + step))
        return std::nullopt;
    const auto after = std::upper_bound(frameTimes.begin(), frameTimes.end(), mediaTime);
    return int(after - frameTimes.begin()) - 1;
}

const TelemetryRecord *TelemetryTrack::recordOfFrame(int frameIndex) const
{
    const auto it = std::lower_bound(records.begin(), records.end(), frameIndex,
                                     [](const TelemetryRecord &r, int index) { return r.frameIndex < index; });
    return it != records.end() && it->frameIndex == frameIndex ? &*it : nullptr;
}

const TelemetryRecord *TelemetryTrack::recordAt(double mediaTime) const
{
    const std::optional<int> frame = frameAt(mediaTime);
    return frame ? recordOfFrame(*frame) : nullptr;
}
