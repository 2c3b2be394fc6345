#pragma once

#include "model/Camera.h"
#include "model/TelemetryTrack.h"

#include <optional>
#include <vector>

// The driving data of one camera of an event, laid on the event's shared
// time axis the way the player lays that camera's clips.
struct EventTelemetry {
    // A stretch of one clip on the axis.
    struct Piece {
        int track = 0;            // index into tracks
        double timelineStart = 0; // seconds on the axis
        double sourceStart = 0;   // seconds in the clip
        double duration = 0;
        double timelineEnd() const { return timelineStart + duration; }
        bool operator==(const Piece &) const = default;
    };

    // One frame on the axis.
    struct Sample {
        double time = 0; // on the axis
        const TelemetryTrack *track = nullptr;
        int frameIndex = 0;
        double mediaTime = 0;                     // in the clip
        const TelemetryRecord *record = nullptr; // null when the frame carried none
    };

    struct RoutePoint {
        double time = 0; // on the axis
        double latitude = 0;
        double longitude = 0;
        double heading = 0;
        float speed = 0;
        TelemetryRecord::AutopilotState autopilot = TelemetryRecord::AutopilotState::none;
        bool operator==(const RoutePoint &) const = default;
    };

    Camera camera = Camera::front;
    std::vector<TelemetryTrack> tracks; // the camera's clips that could be read, in start order
    std::vector<Piece> pieces;          // ascending timelineStart, never overlapping

    bool hasRecords() const;
    // The frame on screen at a time of the axis, found by halving (the
    // player asks many times a second); none where the axis shows nothing.
    std::optional<Sample> sampleAt(double time) const;
    const TelemetryRecord *recordAt(double time) const;
    // Every frame on the axis, in order, with or without a record.
    std::vector<Sample> frames() const;
    // The frames with a GPS fix, in order: the route driven.
    std::vector<RoutePoint> route() const;
    std::optional<RoutePoint> firstPosition() const;
};
