#pragma once

// Where something happened in front of each camera of an event, second by
// second on the event's axis: each camera's change of picture measured
// against that camera's own quiet level, so a busy street and an empty
// garage are each judged by themselves, and the stretches well above it
// as bursts.

#include "model/Camera.h"
#include "model/ClipRef.h"
#include "model/TeslaEvent.h"
#include "moments/ClipActivity.h"

#include <QMetaType>
#include <utility>
#include <vector>

struct ActivityBurst {
    Camera camera = Camera::front;
    double start = 0; // seconds on the axis
    double end = 0;
    float peak = 0; // the highest level within, 0–1
    bool operator==(const ActivityBurst &) const = default;
};

struct EventActivity {
    struct CameraLevels {
        Camera camera = Camera::front;
        std::vector<float> levels; // each second of the axis, 0 (quiet) to 1; 0 where nothing was recorded
        bool operator==(const CameraLevels &) const = default;
    };

    // The quiet level is the 20th percentile of the seconds within a minute
    // each side: a light that slowly changes moves it along, and someone
    // who lingers for a while still stands out against it.
    static constexpr double quietPercentile = 0.2;
    static constexpr int quietWindow = 60; // seconds each side
    // The encoder alone moves a still picture's most changed blocks by up
    // to 5 steps between key frames (measured on clean test footage): a
    // quiet level under this would make that look like news.
    static constexpr double leastQuiet = 2.5;
    // A second is active when its picture changed this many times the
    // quiet level. On the tests' footage sensor noise and a slow change of
    // light stayed under twice it; a shape crossing the view rose 8 to 40
    // times.
    static constexpr double burstRatio = 3.0;
    // The ratio shown as the strongest colour.
    static constexpr double fullRatio = 20.0;
    // Active seconds this close together are one burst.
    static constexpr int joinGap = 1;

    double duration = 0;              // the axis the levels cover
    std::vector<CameraLevels> cameras; // grid order, every camera read
    std::vector<ActivityBurst> bursts; // by start, then grid order

    bool isEmpty() const { return bursts.empty(); }
    // Levels of one camera's seconds from their change (negative for none).
    static std::vector<float> levelsOf(const std::vector<float> &changePerSecond);
    static float levelOfRatio(double ratio);
    static std::vector<ActivityBurst> burstsOf(Camera camera, const std::vector<float> &levels);
    // The clips' activity laid on the event's axis the way the player lays
    // the clips out.
    static EventActivity make(const TeslaEvent &event, const std::vector<std::pair<ClipRef, ClipActivity>> &clips);

    // The strongest burst of each camera, by time; at most `count`.
    std::vector<ActivityBurst> highlights(int count) const;

    bool operator==(const EventActivity &) const = default;
};

Q_DECLARE_METATYPE(EventActivity)
