#include "model/TelemetryTrack.h"

#include <QTest>

#include <cmath>
#include <limits>

namespace {

TelemetryRecord withSequence(quint64 n)
{
    TelemetryRecord r;
    r.frameSequenceNumber = n;
    return r;
}

// Frames at 0, 0.1, … 0.9 s; every frame but the fourth has a record
// numbered after it. Given in decoding order, as packets come.
TelemetryTrack tenFrames(const QString &file, double duration = 1.0)
{
    std::vector<TelemetryTrack::Frame> frames;
    for (int i : {0, 2, 1, 3, 5, 4, 6, 7, 9, 8})
        frames.push_back({i / 10.0, i == 3 ? std::nullopt : std::optional(withSequence(quint64(i)))});
    ClipRef clip;
    clip.url = file;
    return TelemetryTrack::make(clip, duration, frames);
}

} // namespace

class TestTelemetryModel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theFrameOnScreenAtATime()
    {
        const TelemetryTrack track = tenFrames(QStringLiteral("a.mp4"));
        const double nan = std::numeric_limits<double>::quiet_NaN();
        QCOMPARE((std::vector{track.frameAt(0.0), track.frameAt(0.25), track.frameAt(0.99), track.frameAt(1.0),
                              track.frameAt(-0.001), track.frameAt(nan)}),
                 (std::vector<std::optional<int>>{0, 2, 9, std::nullopt, std::nullopt, std::nullopt}));
        QVERIFY(!track.recordAt(0.35)); // the frame without a record
        QCOMPARE(track.recordAt(0.45)->frameSequenceNumber, quint64(4));
        // A length the header doesn't give: the last frame lasts one frame.
        const TelemetryTrack unknownLength = tenFrames(QStringLiteral("b.mp4"), 0.0);
        QCOMPARE(unknownLength.frameAt(0.95), std::optional(9));
        QVERIFY(!unknownLength.frameAt(1.05));
        QVERIFY(!TelemetryTrack().frameAt(0.0));
    }

    void aFixIsOnTheGlobeAndNotZeroZero()
    {
        TelemetryRecord r;
        QVERIFY(!r.hasPosition());
        r.latitude = 30.5;
        QVERIFY(r.hasPosition());
        r.longitude = 181.0;
        QVERIFY(!r.hasPosition());
        r.longitude = std::numeric_limits<double>::quiet_NaN();
        QVERIFY(!r.hasPosition());
        QCOMPARE(TelemetryRecord::plainFloat(0.1f), 0.1);
        QCOMPARE(TelemetryRecord::plainFloat(12.5f), 12.5);
    }
};

QTEST_GUILESS_MAIN(TestTelemetryModel)
#include "tst_telemetrymodel.moc"
