#pragma once

#include <QJsonObject>
#include <QString>
#include <QtGlobal>

// The car's state at one frame of a clip, as the car wrote it just before
// the frame. Fields the car left out (it leaves out every zero) read as zero,
// false, park and none.
struct TelemetryRecord {
    enum class Gear : int { park = 0, drive = 1, reverse = 2, neutral = 3 };
    enum class AutopilotState : int { none = 0, selfDriving = 1, autosteer = 2, trafficAwareCruise = 3 };

    double mediaTime = 0.0; // the frame's time in the clip, first frame at 0
    int frameIndex = 0;     // the frame's place in the clip, in presentation order

    quint32 version = 0;
    Gear gear = Gear::park; // a newer car may send a value we have no name for
    quint64 frameSequenceNumber = 0;
    float speed = 0.0f;            // metres per second
    float acceleratorPedal = 0.0f; // as the car gives it
    float steeringAngle = 0.0f;    // degrees
    bool blinkerLeft = false;
    bool blinkerRight = false;
    bool brakeApplied = false;
    AutopilotState autopilot = AutopilotState::none;
    double latitude = 0.0;  // degrees
    double longitude = 0.0; // degrees
    double heading = 0.0;   // degrees
    double accelerationX = 0.0; // metres per second squared
    double accelerationY = 0.0;
    double accelerationZ = 0.0;

    // A usable GPS fix: finite, on the globe, and not 0,0, which is what a
    // car without a fix leaves (nothing on the wire).
    bool hasPosition() const;

    // Names as the command line and JSON write them.
    static QString gearName(Gear gear);
    static QString autopilotName(AutopilotState state);
    // Words the user reads.
    static QString gearDisplayName(Gear gear);
    static QString autopilotDisplayName(AutopilotState state);

    // A float written as a double keeps the float's error (0.1f is
    // 0.10000000149…); this is the shortest decimal that reads back as the
    // same float, which is what the car meant.
    static double plainFloat(float value);

    // Every field of the car's record, without the frame's place.
    QJsonObject fieldsToJson() const;

    bool operator==(const TelemetryRecord &) const = default;
};
