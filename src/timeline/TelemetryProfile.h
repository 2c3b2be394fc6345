#pragma once

#include "model/EventTelemetry.h"

#include <QMetaType>
#include <vector>

// The driving data of a whole event squeezed into equal slices of the
// timeline, for the strip under the scrubber: how fast, and where the car
// braked and braked hard.
namespace TelemetryProfile {

struct Slice {
    bool hasData = false; // a frame with a record lies in the slice
    float topSpeed = 0;   // m/s, the highest in the slice
    bool braking = false;
    bool hardBraking = false;
    bool operator==(const Slice &) const = default;
};

struct Profile {
    double duration = 0; // of the timeline the slices divide
    std::vector<Slice> slices;
    float topSpeed = 0; // of the whole event
    bool isEmpty() const { return slices.empty(); }
};

// count slices of [0, duration). A frame counts as hard braking where the
// timeline's marks find it: the speed over the half second around it
// falling at HardMoments::hardBrakingDeceleration or more.
Profile make(const EventTelemetry &telemetry, double duration, int count);

} // namespace TelemetryProfile

Q_DECLARE_METATYPE(TelemetryProfile::Profile)
