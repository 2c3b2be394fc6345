#include "model/EventTelemetry.h"

#include <algorithm>

namespace {
EventTelemetry::RoutePoint routePoint(const EventTelemetry::Sample &s)
{
    const TelemetryRecord &r = *s.record;
    return {s.time, r.latitude, r.longitude, r.heading, r.speed, r.autopilot};
}
} // namespace

bool EventTelemetry::hasRecords() const
{
    return std::any_of(pieces.begin(), pieces.end(),
                       [this](const Piece &p) { return tracks.at(size_t(p.track)).hasRecords(); });
}

std::optional<EventTelemetry::Sample> EventTelemetry::sampleAt(double time) const
{
    const auto after = std::upper_bound(pieces.begin(), pieces.end(), time,
                                        [](double t, const Piece &p) { return t < p.timelineStart; });
    if (after == pieces.begin())
        return std::nullopt;
    const Piece &piece = *(after - 1);
    if (time >= piece.timelineEnd())
        return std::nullopt;
    const TelemetryTrack &track = tracks.at(size_t(piece.track));
    const double mediaTime = piece.sourceStart + (time - piece.timelineStart);
    const std::optional<int> frame = track.frameAt(mediaTime);
    if (!frame)
        return std::nullopt;
    const double frameTime = track.frameTimes[size_t(*frame)];
    return Sample{piece.timelineStart + (frameTime - piece.sourceStart), &track, *frame, frameTime,
                  track.recordOfFrame(*frame)};
}

const TelemetryRecord *EventTelemetry::recordAt(double time) const
{
    const auto sample = sampleAt(time);
    return sample ? sample->record : nullptr;
}

std::vector<EventTelemetry::Sample> EventTelemetry::frames() const
{
    std::vector<Sample> result;
    for (const Piece &piece : pieces) {
        const TelemetryTrack &track = tracks.at(size_t(piece.track));
        const double sourceEnd = piece.sourceStart + piece.duration;
        auto record = track.records.begin();
        for (size_t i = 0; i < track.frameTimes.size(); ++i) {
            const double t = track.frameTimes[i];
            if (t < piece.sourceStart || t >= sourceEnd)
                continue;
            while (record != track.records.end() && record->frameIndex < int(i))
                ++record;
            const TelemetryRecord *r = record != track.records.end() && record->frameIndex == int(i) ? &*record : nullptr;
            result.push_back(Sample{piece.timelineStart + (t - piece.sourceStart), &track, int(i), t, r});
        }
    }
    return result;
}

std::vector<EventTelemetry::RoutePoint> EventTelemetry::route() const
{
    std::vector<RoutePoint> points;
    for (const Sample &s : frames())
        if (s.record && s.record->hasPosition())
            points.push_back(routePoint(s));
    return points;
}

std::optional<EventTelemetry::RoutePoint> EventTelemetry::firstPosition() const
{
    for (const Sample &s : frames())
        if (s.record && s.record->hasPosition())
            return routePoint(s);
    return std::nullopt;
}
