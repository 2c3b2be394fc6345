#include "timeline/TelemetryProfile.h"

#include "timeline/HardMoments.h"

#include <algorithm>
#include <cmath>

namespace TelemetryProfile {

namespace {
constexpr double window = HardMoments::decelerationWindow / 2; // each side of a frame
// A record holds until the next frame's, unless that is further away than
// this: then the stretch between shows no data.
constexpr double longestHold = 1.0;
constexpr double lastHold = 1.0 / 30;
}

Profile make(const EventTelemetry &telemetry, double duration, int count)
{
    Profile profile;
    profile.duration = duration;
    if (count <= 0 || !(duration > 0))
        return profile;
    std::vector<EventTelemetry::Sample> samples;
    for (const auto &s : telemetry.frames())
        if (s.record)
            samples.push_back(s);
    if (samples.empty())
        return profile;
    profile.slices.resize(size_t(count));
    // Two cursors walk the samples behind and ahead of each frame, so the
    // speed half a second apart is found in one pass.
    size_t behind = 0, ahead = 0;
    for (size_t i = 0; i < samples.size(); ++i) {
        const auto &s = samples[i];
        const TelemetryRecord &r = *s.record;
        if (s.time < 0 || s.time >= duration)
            continue;
        while (samples[behind].time < s.time - window)
            ++behind;
        while (ahead + 1 < samples.size() && samples[ahead + 1].time <= s.time + window)
            ++ahead;
        const double span = samples[ahead].time - samples[behind].time;
        const double deceleration =
            span > 0 ? (samples[behind].record->speed - samples[ahead].record->speed) / span : 0.0;
        const float speed = std::isfinite(r.speed) ? std::max(0.0f, r.speed) : 0.0f;
        const bool hard = deceleration >= HardMoments::hardBrakingDeceleration;
        // Every slice the frame's record covers, so slices finer than the
        // frame rate leave no holes.
        // The last frame before a gap lasts one frame's time.
        const double step = i > 0 && s.time - samples[i - 1].time <= longestHold ? s.time - samples[i - 1].time : lastHold;
        const double next = i + 1 < samples.size() ? samples[i + 1].time : s.time + step;
        const double end = std::min(duration, next - s.time <= longestHold ? next : s.time + step);
        const int first = std::clamp(int(s.time / duration * count), 0, count - 1);
        const int last = std::clamp(int(std::ceil(end / duration * count - 1e-9)) - 1, first, count - 1);
        for (int k = first; k <= last; ++k) {
            Slice &slice = profile.slices[size_t(k)];
            slice.hasData = true;
            slice.topSpeed = std::max(slice.topSpeed, speed);
            slice.braking = slice.braking || r.brakeApplied;
            slice.hardBraking = slice.hardBraking || hard;
        }
        profile.topSpeed = std::max(profile.topSpeed, speed);
    }
    return profile;
}

} // namespace TelemetryProfile
