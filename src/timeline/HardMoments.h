#pragma once

// The moments of a drive worth a look, found in the driving data the clips
// carry: hard braking, a swerve, Autopilot letting go, a sudden stop, and
// the car's own emergency braking. Each is a point on the event's axis with
// what the car read then.

#include "model/EventTelemetry.h"
#include "model/TeslaEvent.h"

#include <QString>
#include <optional>
#include <vector>

struct HardMoment {
    enum class Kind { hardBraking, swerve, autopilotOff, suddenStop, emergencyBraking };

    Kind kind = Kind::hardBraking;
    double time = 0; // on the event's axis, where it began
    // What the car read: speed at the start; the hardest deceleration of a
    // braking or stop; the fastest steering and the strongest sideways pull
    // of a swerve (m/s, m/s², degrees/s, m/s²; 0 where not measured).
    double speed = 0;
    double deceleration = 0;
    double steeringRate = 0;
    double lateralAcceleration = 0;
    // For autopilotOff, what was on until then.
    TelemetryRecord::AutopilotState assistance = TelemetryRecord::AutopilotState::none;

    // "hardBraking", …: for the command line and JSON.
    static QString kindName(Kind kind);
    // The word the timeline shows: "Hard braking", "Autosteer off", …
    QString displayName() const;

    bool operator==(const HardMoment &) const = default;
};

namespace HardMoments {

inline constexpr double standardGravity = 9.80665; // m/s²

// Hard braking: the speed falling at 0.4 g or more, measured over
// decelerationWindow. Everyday firm stops stay near 0.3 g; fleet telematics
// and naturalistic-driving studies count 0.4 g and beyond as a hard brake.
// The car's acceleration axes are undocumented, so the speed is the measure.
inline constexpr double hardBrakingDeceleration = 0.4 * standardGravity;
inline constexpr double decelerationWindow = 0.5; // s, centred on each frame

// A swerve: the wheel turned at 200°/s or faster while moving at 8 m/s
// (about 30 km/h) or more. Lane changes turn it at well under 100°/s;
// evasive steering in driving-simulator studies runs 200–500°/s.
inline constexpr double swerveSteeringRate = 200.0; // degrees of wheel a second
inline constexpr double swerveMinimumSpeed = 8.0;   // m/s
// A swerve throws the wheel over and back within half a second, so its
// rate is measured over a quarter of one.
inline constexpr double steeringWindow = 0.25; // s
// Or a sideways pull of 0.5 g (speed × turning rate of the GPS heading):
// ordinary curves stay below 0.3 g, and 0.5 g is near the tyres' grip.
inline constexpr double swerveLateralAcceleration = 0.5 * standardGravity;

// A sudden stop: from 4.2 m/s (15 km/h) or more to standing within one
// second, a stop no one makes by choice (a calm stop from that speed takes
// three or more).
inline constexpr double suddenStopFromSpeed = 4.2;  // m/s
inline constexpr double standstillSpeed = 0.3;      // m/s
inline constexpr double suddenStopWithin = 1.0;     // s

// Autopilot switching off counts once it had been on this long, so a
// flicker of the state at a clip's seam is no event.
inline constexpr double assistanceSettled = 1.0; // s

// A kind fires again only after its condition has been false this long.
inline constexpr double rearmAfter = 1.5; // s

// The car's own reason for saving an emergency braking.
inline const QString emergencyBrakingReason = QStringLiteral("vehicle_auto_emergency_braking");

// Every moment within [0, duration) of the axis, by time. The car's
// emergency-braking reason marks its trigger moment even without records.
std::vector<HardMoment> find(const EventTelemetry &telemetry, const TeslaEvent &event, double duration);

// The deceleration (m/s²) at each of the given frames with records,
// over decelerationWindow; 0 where the window spans a gap.
std::vector<double> decelerations(const std::vector<EventTelemetry::Sample> &samples);

} // namespace HardMoments
