// Gives a sample clip the driving records a car of late 2025 writes into
// its footage: the clip is copied with a record before every frame, from a
// scripted drive. Deterministic: the same arguments give the same bytes.
// Usage: keelhold-sample-telemetry DRIVE CLIP_START IN.mp4 OUT.mp4
//   DRIVE       one of the drives below
//   CLIP_START  seconds from the drive's start to the clip's first frame

#include "support/TelemetryClipWriter.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <utility>
#include <vector>

namespace {

using Message = TelemetryClipWriter::Message;
using Keys = std::vector<std::pair<double, double>>; // (seconds, value), linear between
using Spans = std::vector<std::pair<double, double>>; // [from, to)

constexpr double pi = 3.14159265358979323846;
constexpr double metresPerDegree = 111320.0;
constexpr double step = 0.01; // seconds per step of the dead reckoning

struct Drive {
    const char *name;
    double anchorTime; // where the car is at this time of the drive:
    double anchorLat;
    double anchorLon;
    Keys speed;   // m/s, along the heading (backwards in reverse)
    Keys heading; // degrees
    Spans reverse;
    Spans park;
    Spans leftBlinker;
    Spans rightBlinker;
    Spans autosteer;
    Spans trafficAwareCruise;
    Spans selfDriving;
};

// Three drives past the places of the sample events: a honk in Georgetown
// after a hard brake, a save by hand at a red light in Pflugerville after a
// right turn, and a morning's drive out of a driveway onto the highway.
const Drive drives[] = {
    // The honk's brake sheds 11 m/s in 2.2 s (5 m/s^2), past the 0.4 g of a hard brake.
    {"honk", 91.0, 30.6333, -97.6770,
     {{0, 13}, {20, 15}, {88.8, 15}, {91, 4}, {96, 4}, {110, 12}, {120, 13}},
     {{0, 180}, {40, 180}, {48, 270}, {120, 270}},
     {}, {}, {{100, 106}}, {{34, 41}}, {{50, 86}}, {}, {}},
    {"tapped", 72.0, 30.4394, -97.6200,
     {{0, 18}, {45, 18}, {55, 8}, {62, 8}, {68, 0}, {90, 0}, {100, 10}, {120, 14}},
     {{0, 0}, {55, 0}, {62, 90}, {120, 90}},
     {}, {}, {}, {{50, 58}}, {}, {{5, 45}}, {}},
    {"commute", 0.0, 30.5220, -97.6720,
     {{0, 0}, {6, 0}, {9, 1.5}, {14, 1.5}, {16, 0}, {18, 0}, {40, 20}, {90, 27}, {140, 27}, {150, 15}, {160, 27},
      {300, 25}, {330, 12}, {360, 10}},
     {{0, 0}, {18, 0}, {30, 190}, {200, 190}, {215, 205}, {360, 205}},
     {{6, 16}}, {{0, 6}}, {{62, 68}}, {{318, 326}}, {{70, 135}}, {}, {{170, 290}}},
};

double at(const Keys &keys, double t)
{
    if (t <= keys.front().first)
        return keys.front().second;
    for (size_t i = 1; i < keys.size(); ++i)
        if (t < keys[i].first) {
            const auto &[t0, v0] = keys[i - 1];
            const auto &[t1, v1] = keys[i];
            return v0 + (v1 - v0) * (t - t0) / (t1 - t0);
        }
    return keys.back().second;
}

bool in(const Spans &spans, double t)
{
    for (const auto &[from, to] : spans)
        if (t >= from && t < to)
            return true;
    return false;
}

class Course {
public:
    Course(const Drive &drive, double until) : drive_(drive)
    {
        // Dead reckoning from the drive's start, then moved so that the car
        // stands at the anchor at the anchor's time.
        const int steps = int(std::ceil(until / step)) + 2;
        north_.resize(size_t(steps));
        east_.resize(size_t(steps));
        for (int i = 1; i < steps; ++i) {
            const double t = (i - 1) * step;
            const double v = at(drive.speed, t) * (in(drive.reverse, t) ? -1.0 : 1.0);
            const double h = at(drive.heading, t) * pi / 180.0;
            north_[size_t(i)] = north_[size_t(i - 1)] + v * std::cos(h) * step;
            east_[size_t(i)] = east_[size_t(i - 1)] + v * std::sin(h) * step;
        }
        anchorNorth_ = position(drive.anchorTime).first;
        anchorEast_ = position(drive.anchorTime).second;
    }

    Message record(double t) const
    {
        const Drive &d = drive_;
        const double v = at(d.speed, t);
        const double dv = (at(d.speed, t + 0.25) - at(d.speed, t - 0.25)) / 0.5;
        // Over two seconds: a driver winds the wheel into a turn, not in a
        // blink (that would read as a swerve).
        const double yawRate = (at(d.heading, t + 1.0) - at(d.heading, t - 1.0)) / 2.0; // degrees a second
        const auto [north, east] = position(t);
        const double lat = d.anchorLat + (north - anchorNorth_) / metresPerDegree;
        const double lon = d.anchorLon + (east - anchorEast_) / (metresPerDegree * std::cos(d.anchorLat * pi / 180.0));
        const bool parked = in(d.park, t);

        Message m;
        m.set_version(1);
        m.set_gear_state(parked ? Message::GEAR_PARK : in(d.reverse, t) ? Message::GEAR_REVERSE : Message::GEAR_DRIVE);
        m.set_frame_seq_no(quint64(std::llround(t * 10.0)));
        m.set_vehicle_speed_mps(float(v));
        const bool braking = !parked && (dv < -0.8 || v < 0.05);
        m.set_brake_applied(braking);
        // Percent of travel.
        m.set_accelerator_pedal_position(braking || parked ? 0.0f : float(std::clamp(12.0 + dv * 25.0, 0.0, 100.0)));
        m.set_steering_wheel_angle(float(std::round(yawRate * 10.0 * 10.0) / 10.0));
        m.set_blinker_on_left(in(d.leftBlinker, t));
        m.set_blinker_on_right(in(d.rightBlinker, t));
        m.set_autopilot_state(in(d.selfDriving, t)        ? Message::SELF_DRIVING
                                  : in(d.autosteer, t)    ? Message::AUTOSTEER
                                  : in(d.trafficAwareCruise, t) ? Message::TRAFFIC_AWARE_CRUISE_CONTROL
                                                                : Message::NONE);
        m.set_latitude_deg(std::round(lat * 1e7) / 1e7);
        m.set_longitude_deg(std::round(lon * 1e7) / 1e7);
        m.set_heading_deg(std::fmod(at(d.heading, t) + 360.0, 360.0));
        m.set_linear_acceleration_mps2_x(std::round(dv * 100.0) / 100.0);
        m.set_linear_acceleration_mps2_y(std::round(v * yawRate * pi / 180.0 * 100.0) / 100.0);
        m.set_linear_acceleration_mps2_z(0.02);
        return m;
    }

private:
    std::pair<double, double> position(double t) const
    {
        const size_t i = std::min(size_t(std::max(0.0, t) / step + 1), north_.size() - 1);
        return {north_[i], east_[i]};
    }

    const Drive &drive_;
    std::vector<double> north_{0.0};
    std::vector<double> east_{0.0};
    double anchorNorth_ = 0;
    double anchorEast_ = 0;
};

} // namespace

int main(int argc, char **argv)
{
    if (argc != 5) {
        std::fprintf(stderr, "usage: keelhold-sample-telemetry DRIVE CLIP_START IN.mp4 OUT.mp4\n");
        return 64;
    }
    const Drive *drive = nullptr;
    for (const Drive &d : drives)
        if (std::strcmp(d.name, argv[1]) == 0)
            drive = &d;
    if (!drive) {
        std::fprintf(stderr, "keelhold-sample-telemetry: no drive named %s\n", argv[1]);
        return 64;
    }
    const double clipStart = std::atof(argv[2]);
    try {
        const Course course(*drive, std::max(clipStart, drive->anchorTime) + 120.0);
        TelemetryClipWriter::remux(QString::fromLocal8Bit(argv[3]), QString::fromLocal8Bit(argv[4]),
                                   [&](int, double time) {
                                       return TelemetryClipWriter::FrameRecord{course.record(clipStart + time)};
                                   });
    } catch (const std::exception &e) {
        std::fprintf(stderr, "keelhold-sample-telemetry: %s\n", e.what());
        return 1;
    }
    return 0;
}
