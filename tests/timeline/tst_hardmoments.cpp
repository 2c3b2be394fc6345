// The hard moments of a drive, from scripted driving records: every one the
// script holds is found near its time, and the ordinary driving around them
// (cruising with a wobbling wheel, a firm stop at a light, a curve, a flicker
// of the assistance, a missing stretch) raises none.

#include "timeline/HardMoments.h"

#include <QTest>
#include <cmath>
#include <functional>

namespace {

constexpr double fps = 36;
using Kind = HardMoment::Kind;
using Assist = TelemetryRecord::AutopilotState;

struct State {
    double speed = 0;
    double steering = 0;
    double heading = 0;
    Assist assist = Assist::none;
};

// One clip of the drive; the car's records wobble a little, as a real
// car's speed and wheel do.
EventTelemetry drive(double seconds, const std::function<State(double)> &at, std::vector<EventTelemetry::Piece> pieces = {})
{
    TelemetryTrack t;
    t.duration = seconds;
    for (int i = 0; i < int(seconds * fps); ++i) {
        const double time = i / fps;
        const State s = at(time);
        TelemetryRecord r;
        r.mediaTime = time;
        r.frameIndex = i;
        r.gear = TelemetryRecord::Gear::drive;
        r.speed = float(std::max(0.0, s.speed + (s.speed > 0.5 ? 0.05 * std::sin(i * 1.7) : 0.0)));
        r.steeringAngle = float(s.steering + 2.0 * std::sin(time * 2 * M_PI));
        r.heading = std::fmod(s.heading + 360.0, 360.0);
        r.latitude = 59.9;
        r.longitude = 10.7;
        r.autopilot = s.assist;
        r.brakeApplied = false;
        t.frameTimes.push_back(time);
        t.records.push_back(r);
    }
    EventTelemetry telemetry;
    telemetry.tracks.push_back(t);
    telemetry.pieces = pieces.empty() ? std::vector<EventTelemetry::Piece>{{0, 0, 0, seconds}} : pieces;
    return telemetry;
}

// Linear between two speeds over [from, to].
double ramp(double t, double from, double to, double v0, double v1)
{
    return v0 + (v1 - v0) * std::clamp((t - from) / (to - from), 0.0, 1.0);
}

} // namespace

class TestHardMoments : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void scriptedDriveFindsEveryMomentAndInventsNone()
    {
        const auto script = [](double t) {
            State s;
            s.assist = t < 10 ? Assist::autosteer : Assist::none;
            s.speed = 20;
            if (t >= 20)
                s.speed = ramp(t, 20, 22.5, 20, 8); // 4.8 m/s², 0.49 g
            if (t >= 40)
                s.speed = ramp(t, 40, 42.67, 8, 0); // a firm stop at a light, 0.3 g
            if (t >= 45)
                s.speed = ramp(t, 45, 50, 0, 10);
            if (t >= 52)
                s.speed = ramp(t, 52, 52.6, 10, 0); // into something
            // The wheel thrown over and back at 300°/s.
            if (t >= 30 && t < 30.6)
                s.steering = t < 30.3 ? (t - 30) * 300 : (30.6 - t) * 300;
            // A curve: 5°/s of heading at 20 m/s is 0.18 g.
            if (t >= 33)
                s.heading = std::min(t - 33, 5.0) * 5;
            // Cruise control on for a moment, and off again.
            if (t >= 55 && t < 55.4)
                s.assist = Assist::trafficAwareCruise;
            return s;
        };
        const auto moments = HardMoments::find(drive(60, script), {}, 60);
        // Each kind, and the time it should be found near.
        const std::vector<std::pair<Kind, double>> expected{{Kind::autopilotOff, 10}, {Kind::hardBraking, 20},
                                                            {Kind::swerve, 30},       {Kind::hardBraking, 52},
                                                            {Kind::suddenStop, 52.6}};
        QCOMPARE(moments.size(), expected.size());
        for (size_t i = 0; i < expected.size(); ++i) {
            QCOMPARE(moments[i].kind, expected[i].first);
            QVERIFY2(std::abs(moments[i].time - expected[i].second) < 0.5, qPrintable(QString::number(moments[i].time)));
        }
        // The hard brake's and the assistance's figures are the moments command's test.
        QVERIFY(moments[2].steeringRate > 250);
        QVERIFY(moments[4].speed >= 9);
    }

    void sidewaysPullIsASwerveButACurveOrAGapIsNot()
    {
        TeslaEvent event;
        // 30°/s of heading at 20 m/s pulls at 10.5 m/s², over 1 g.
        const auto sharp = HardMoments::find(drive(10, [](double t) {
            return State{20, 0, t >= 4 && t < 5 ? (t - 4) * 30 : t >= 5 ? 30 : 0};
        }), event, 10);
        QCOMPARE(sharp.size(), size_t(1));
        QCOMPARE(sharp[0].kind, Kind::swerve);
        QVERIFY(sharp[0].lateralAcceleration > 9);
        // Across north, 358° to 2°, is a turn of 4°, not of 356°.
        QVERIFY(HardMoments::find(drive(10, [](double t) { return State{20, 0, 358 + t * 0.5}; }), event, 10).empty());
        // Parking: the wheel turns fast, the car barely moves.
        QVERIFY(HardMoments::find(drive(10, [](double t) {
            return State{1.0, t >= 3 && t < 4 ? (t - 3) * 400 : 0, 0};
        }), event, 10).empty());
        // A minute the car didn't write lies between 20 m/s and standing: no
        // braking is made up across it.
        QVERIFY(HardMoments::find(drive(20, [](double t) { return State{t < 10 ? 20.0 : 0.0, 0, 0}; },
                                        {{0, 0, 0, 9.99}, {0, 70, 10.0, 10}}),
                                  event, 80).empty());
    }

    // The car's own emergency braking marks its trigger, with records or without.
    void theCarsEmergencyBrakingMarksItsMoment()
    {
        TeslaEvent event;
        event.kind = EventKind::saved;
        event.reasonRaw = HardMoments::emergencyBrakingReason;
        event.missingEventJSON = false;
        ClipRef clip;
        clip.startDate = Date::fromUnixSeconds(1'780'000'000);
        event.clips.push_back(clip);
        event.timestamp = clip.startDate.addingTimeInterval(42);
        const auto moments = HardMoments::find(EventTelemetry{}, event, 60);
        QCOMPARE(moments.size(), size_t(1));
        QCOMPARE(moments[0].kind, Kind::emergencyBraking);
        QVERIFY(std::abs(moments[0].time - 42) < 1.01);
    }
};

QTEST_APPLESS_MAIN(TestHardMoments)

#include "tst_hardmoments.moc"
