// The driving data through the engine: the live engine reads it off a real
// drive, and stops when asked.

#include "engine/LiveEngine.h"
#include "support/FaultyFs.h"
#include "support/IsolatedHome.h"
#include "support/TelemetryClipWriter.h"
#include "support/TeslaCamFixture.h"
#include "support/TestClips.h"

#include <QTemporaryDir>
#include <QTest>

using Message = TelemetryClipWriter::Message;

class TestTelemetryEngine : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;
    LiveEngine live_;
    EngineFacade &engine_ = live_;
    TeslaEvent saved_;

    QString drivePath() const { return dir_.filePath(QStringLiteral("drive/TeslaCam")); }

private Q_SLOTS:
    void initTestCase()
    {
        if (!TestClips::ffmpegAvailable())
            QSKIP("needs the ffmpeg tool to make clips");
        TestClips::ClipOptions options;
        options.width = 160;
        options.height = 120;
        const QString withRecords = dir_.filePath(QStringLiteral("records.mp4"));
        TelemetryClipWriter::remux(TestClips::clip(options), withRecords, [](int frame, double) {
            Message m;
            m.set_frame_seq_no(quint64(100 + frame));
            m.set_vehicle_speed_mps(12.5f);
            m.set_latitude_deg(30.6075);
            m.set_longitude_deg(-97.4812);
            return TelemetryClipWriter::FrameRecord{m};
        });
        TeslaCamFixture drive(drivePath());
        const QString folder = drive.addEvent(
            QStringLiteral("SavedClips"), QStringLiteral("2024-06-02_09-00-00"),
            TeslaCamFixture::eventJson(QStringLiteral("2024-06-02T09:00:00"), QStringLiteral("user_interaction_honk")));
        drive.addClip(folder, QStringLiteral("2024-06-02_08-59-00"), QStringLiteral("front"), 0, withRecords);
        const DriveScan scan = engine_.scanDrive(drivePath(), {}).result();
        QCOMPARE(scan.events.size(), size_t(1));
        saved_ = scan.events.front();
    }

    // Loader rules are the telemetry timeline's test; a Vault copy and the untouched drive, the telemetry command's.
    void fromTheDrive()
    {
        const EventTelemetry fromDrive = engine_.loadTelemetry(saved_, Camera::front).result();
        QVERIFY(fromDrive.hasRecords());
        QCOMPARE(fromDrive.firstPosition()->latitude, 30.6075);
    }

    // A clip the drive never answers for: cancelling ends the load at once, not at the clip's time limit.
    void cancellingStopsAStuckLoad()
    {
        KEELHOLD_FAULTY_FS(fs, mountPoint);
        const QString held = fs.addHeldFile(
            QStringLiteral("TeslaCam/SavedClips/2024-06-05_10-00-00/2024-06-05_09-59-00-front.mp4"),
            QByteArray(100000, 'x'));
        TeslaEvent stuck = saved_;
        stuck.clips.front().url = held;
        QFuture<EventTelemetry> load = engine_.loadTelemetry(stuck, Camera::front);
        QVERIFY(fs.waitUntilHeld(1));
        QVERIFY(!load.isFinished());
        load.cancel();
        // Far below the twenty seconds the clip's limit allows.
        QTRY_VERIFY_WITH_TIMEOUT(load.isFinished(), 5000);
        fs.release();
    }
};

KEELHOLD_ISOLATED_TEST_MAIN(TestTelemetryEngine)
#include "tst_telemetryengine.moc"
