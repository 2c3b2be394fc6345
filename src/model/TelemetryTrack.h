#pragma once

#include "model/ClipRef.h"
#include "model/TelemetryRecord.h"

#include <optional>
#include <vector>

// The driving data of one clip: every frame's time, and the car's record
// for each frame that carried one.
struct TelemetryTrack {
    // One frame as the clip's packets give it, in file order.
    struct Frame {
        double mediaTime = 0.0;
        std::optional<TelemetryRecord> record; // its time and index are set by make()
    };

    ClipRef clip;
    double duration = 0.0;              // the clip's media length in seconds
    std::vector<double> frameTimes;     // every frame, ascending
    std::vector<TelemetryRecord> records; // ascending frameIndex, at most one a frame
    // When the clip began by the car's GPS clock, from its header: the one
    // time of the clip that is known to be UTC. The name's is the car's own.
    std::optional<Date> headerStart;

    // Puts the frames in presentation order and numbers them.
    static TelemetryTrack make(const ClipRef &clip, double duration, std::vector<Frame> frames);

    bool hasRecords() const { return !records.empty(); }
    // The frame on screen at a time of the clip: the last one that starts
    // at or before it. None before the first frame or past the clip's end.
    std::optional<int> frameAt(double mediaTime) const;
    // That frame's record; null when the frame carried none.
    const TelemetryRecord *recordAt(double mediaTime) const;
    const TelemetryRecord *recordOfFrame(int frameIndex) const;
    // When the frame was taken: the clip's start plus its time.
    Date wallClock(double mediaTime) const { return clip.startDate.addingTimeInterval(mediaTime); }
    // The same by the GPS clock; none when the header gives no start.
    std::optional<Date> utcTime(double mediaTime) const
    {
        if (!headerStart)
            return std::nullopt;
        return headerStart->addingTimeInterval(mediaTime);
    }

    bool operator==(const TelemetryTrack &) const = default;
};
