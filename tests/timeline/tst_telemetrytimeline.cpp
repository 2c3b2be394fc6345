#include "drive/TeslaCamParser.h"
#include "timeline/TelemetryTimeline.h"
#include "support/TelemetryClipWriter.h"
#include "support/TeslaCamFixture.h"
#include "support/TestClips.h"

#include <QTemporaryDir>
#include <QTest>

using Message = TelemetryClipWriter::Message;
using FrameRecord = TelemetryClipWriter::FrameRecord;

namespace {

// A record that names its clip and frame, with a GPS fix from frame 5 on.
TelemetryClipWriter::RecordFor recordsOfClip(int clip)
{
    return [clip](int frame, double) {
        Message m;
        m.set_frame_seq_no(quint64(clip * 1000 + frame));
        m.set_vehicle_speed_mps(float(clip));
        m.set_gear_state(Message::GEAR_DRIVE);
        if (clip > 1 || frame >= 5) {
            m.set_latitude_deg(30.0 + clip + frame * 1e-4);
            m.set_longitude_deg(-97.0);
        }
        return FrameRecord{m};
    };
}

} // namespace

class TestTelemetryTimeline : public QObject {
    Q_OBJECT

    QTemporaryDir tmp_;
    TeslaEvent event_;

private Q_SLOTS:
    // One saved event, 2-second clips at 36 frames a second. The back camera
    // starts a second before the front, so the front stands a second into
    // the axis; front minute 10:00:04 is damaged, 10:00:06 is followed a
    // second later by a clip that starts before it ends.
    void initTestCase()
    {
        if (!TestClips::ffmpegAvailable())
            QSKIP("needs the ffmpeg tool to make clips");
        TestClips::ClipOptions options;
        options.width = 160;
        options.height = 120;
        const QString plain = TestClips::clip(options);
        TeslaCamFixture drive(tmp_.filePath(QStringLiteral("TeslaCam")));
        const QString folder = drive.addEvent(
            QStringLiteral("SavedClips"), QStringLiteral("2024-06-02_10-00-05"),
            TeslaCamFixture::eventJson(QStringLiteral("2024-06-02T10:00:05"), QStringLiteral("user_interaction_honk")));
        const QStringList stamps{QStringLiteral("10-00-00"), QStringLiteral("10-00-02"), QStringLiteral("10-00-04"),
                                 QStringLiteral("10-00-06"), QStringLiteral("10-00-07")};
        for (int i = 0; i < stamps.size(); ++i) {
            const QString source = tmp_.filePath(QStringLiteral("source-%1.mp4").arg(i));
            TelemetryClipWriter::remux(plain, source, recordsOfClip(i + 1));
            drive.addClip(folder, QStringLiteral("2024-06-02_") + stamps[i], QStringLiteral("front"), 0, source);
        }
        drive.addClip(folder, QStringLiteral("2024-06-02_09-59-59"), QStringLiteral("back"), 0, plain);
        const DriveScan scan = TeslaCamParser::scan(drive.root());
        QCOMPARE(scan.events.size(), size_t(1));
        event_ = scan.events.front();
        for (ClipRef &clip : event_.clips)
            if (clip.url.endsWith(QLatin1String("10-00-04-front.mp4")))
                clip.health = ClipHealth::truncated;
    }

    void framesAndRouteStandWhereThePlayerShowsThem()
    {
        const EventTelemetry telemetry = TelemetryTimeline::load(event_, Camera::front);
        QCOMPARE(telemetry.camera, Camera::front);
        QCOMPARE(telemetry.tracks.size(), size_t(4)); // the damaged clip is not opened
        QVERIFY(telemetry.hasRecords());

        auto seqAt = [&](double t) -> qint64 {
            const TelemetryRecord *r = telemetry.recordAt(t);
            return r ? qint64(r->frameSequenceNumber) : -1;
        };
        const double frame = 1.0 / 36;
        // Only the back camera before 1 s; the next clip back to back at 3 s;
        // the damaged minute empty. The clip at 10:00:07 starts inside the one
        // before: it is spliced in at 8 s, and the rest of the earlier clip plays after it.
        QCOMPARE(QList<qint64>({seqAt(0.5), seqAt(1.0), seqAt(1.0 + 10.5 * frame), seqAt(3.0 + 0.5 * frame), seqAt(5.5),
                                seqAt(7.0 + 35.5 * frame), seqAt(8.0 + 0.5 * frame), seqAt(10.0 + 0.5 * frame),
                                seqAt(10.999), seqAt(11.5)}),
                 QList<qint64>({-1, 1000, 1010, 2000, -1, 4035, 5000, 4036, 4071, -1}));

        const auto sample = telemetry.sampleAt(1.0 + 10.5 * frame);
        QVERIFY(sample);
        QCOMPARE(sample->frameIndex, 10);
        QVERIFY(sample->track->clip.url.endsWith(QLatin1String("10-00-00-front.mp4")));
        QVERIFY(qAbs(sample->time - (1.0 + 10 * frame)) < 1e-9);
        QCOMPARE(sample->track->wallClock(sample->mediaTime),
                 sample->track->clip.startDate.addingTimeInterval(10 * frame));

        // Every frame on the axis once, in order.
        const std::vector<EventTelemetry::Sample> frames = telemetry.frames();
        QCOMPARE(frames.size(), size_t(4 * 72));
        QVERIFY(std::is_sorted(frames.begin(), frames.end(),
                               [](const auto &a, const auto &b) { return a.time < b.time; }));
        QVERIFY(std::all_of(frames.begin(), frames.end(), [](const auto &s) { return s.record; }));

        // The route starts at the first fix.
        const auto first = telemetry.firstPosition();
        QVERIFY(first);
        QCOMPARE(first->latitude, 31.0 + 5 * 1e-4);
        QVERIFY(qAbs(first->time - (1.0 + 5.0 / 36)) < 1e-9);
        const auto route = telemetry.route();
        QCOMPARE(route.size(), size_t(4 * 72 - 5));
        QCOMPARE(route.front(), *first);

        // The back camera's clip carries no records; the left one has no clips.
        const EventTelemetry back = TelemetryTimeline::load(event_, Camera::back);
        QCOMPARE(back.tracks.size(), size_t(1));
        QVERIFY(!back.hasRecords());
        QVERIFY(!back.firstPosition());
        QVERIFY(!TelemetryTimeline::load(event_, Camera::leftRepeater).hasRecords());
        // A stopped load: engine_tst_telemetryengine's cancellingStopsAStuckLoad.
    }
};

QTEST_GUILESS_MAIN(TestTelemetryTimeline)
#include "tst_telemetrytimeline.moc"
