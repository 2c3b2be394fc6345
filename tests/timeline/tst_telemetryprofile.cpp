// The strip's slices from an event's records: no holes between frames, no
// data where the axis has no footage, and hard braking told from a gentle
// stop and from slowing without the brake.

#include "timeline/TelemetryProfile.h"

#include <QTest>
#include <functional>

namespace {

constexpr double fps = 10;

// One clip of seconds × fps frames; record(t) for each frame, or none.
TelemetryTrack track(double seconds, const std::function<std::optional<TelemetryRecord>(double)> &record)
{
    TelemetryTrack t;
    t.duration = seconds;
    for (int i = 0; i < int(seconds * fps); ++i) {
        const double time = i / fps;
        t.frameTimes.push_back(time);
        if (auto r = record(time)) {
            r->mediaTime = time;
            r->frameIndex = i;
            t.records.push_back(*r);
        }
    }
    return t;
}

TelemetryRecord driving(float speed, bool brake = false)
{
    TelemetryRecord r;
    r.speed = speed;
    r.brakeApplied = brake;
    r.gear = TelemetryRecord::Gear::drive;
    return r;
}

} // namespace

class TestTelemetryProfile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Two clips with a lost stretch between (2 s to 4 s), cut into slices
    // finer than the frames; the second clip's first second has no records.
    void slicesCoverTheFootageAndOnlyIt()
    {
        EventTelemetry telemetry;
        telemetry.tracks.push_back(track(2, [](double) { return driving(10); }));
        telemetry.tracks.push_back(track(2, [](double t) { return t < 1 ? std::nullopt : std::optional(driving(20)); }));
        telemetry.pieces = {{0, 0, 0, 2}, {1, 4, 0, 2}};
        const auto profile = TelemetryProfile::make(telemetry, 6, 240); // 25 ms a slice
        QCOMPARE(profile.slices.size(), size_t(240));
        QCOMPARE(profile.topSpeed, 20.0f);
        for (size_t i = 0; i < profile.slices.size(); ++i) {
            const double t = (i + 0.5) * 6 / 240;
            const bool expected = t < 2 || t >= 5;
            QVERIFY2(profile.slices[i].hasData == expected, qPrintable(QString::number(t)));
            if (expected)
                QCOMPARE(profile.slices[i].topSpeed, t < 2 ? 10.0f : 20.0f);
        }
    }

    void hardBrakingIsTheSpeedFallingAtFourTenthsOfAG()
    {
        // From 2 s to 4 s: slowing at 1 m/s² with the brake, at 5 m/s² with
        // it, at 3.5 m/s² (a firm stop, short of 0.4 g), or at 5 m/s² with
        // no brake reported (the car braking by itself).
        struct Case {
            const char *name;
            double deceleration;
            bool brake;
            bool braking;
            bool hard;
        };
        for (const Case &c : {Case{"gentle", 1, true, true, false}, Case{"firm", 5, true, true, true},
                              Case{"firm, short of hard", 3.5, true, true, false},
                              Case{"no brake", 5, false, false, true}}) {
            EventTelemetry telemetry;
            telemetry.tracks.push_back(track(6, [&](double t) {
                const bool stopping = t >= 2 && t < 4;
                const double speed = 20 - c.deceleration * std::clamp(t - 2, 0.0, 2.0);
                return driving(float(speed), stopping && c.brake);
            }));
            telemetry.pieces = {{0, 0, 0, 6}};
            const auto profile = TelemetryProfile::make(telemetry, 6, 60);
            for (size_t i = 0; i < profile.slices.size(); ++i) {
                const double t = (i + 0.5) / 10;
                const bool inside = t > 2.3 && t < 3.7;
                const bool outside = t < 1.7 || t > 4.3;
                const auto &s = profile.slices[i];
                if (inside)
                    QVERIFY2(s.braking == c.braking && s.hardBraking == c.hard, c.name);
                else if (outside)
                    QVERIFY2(!s.braking && !s.hardBraking, c.name);
            }
        }
    }
};

QTEST_APPLESS_MAIN(TestTelemetryProfile)

#include "tst_telemetryprofile.moc"
