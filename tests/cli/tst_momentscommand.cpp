// keelhold-cli moments: the activity of a parked event's cameras and the
// hard moments of a drive, as JSON and CSV on the event's timeline, from
// real clips; the drive is only read.

#include "support/CliRun.h"
#include "support/ParkedScene.h"
#include "support/TelemetryClipWriter.h"
#include "support/TeslaCamFixture.h"
#include "support/TestClips.h"
#include "support/TreeSnapshot.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>
#include <cmath>

using Message = TelemetryClipWriter::Message;

namespace {

const QString sentryId = QStringLiteral("sentry|2026-05-03_22-00-00");
const QString savedId = QStringLiteral("saved|2026-05-04_08-00-00");

// Autosteer until 5 s, a hard brake 20 to 10 m/s over 10–12 s (0.51 g), the wheel thrown over and back at 20 s.
Message driving(double t)
{
    Message m;
    m.set_version(1);
    m.set_gear_state(Message::GEAR_DRIVE);
    const double speed = t < 10 ? 20 : t < 12 ? 20 - (t - 10) * 5 : 10;
    m.set_vehicle_speed_mps(float(speed));
    const double wheel = t >= 20 && t < 20.5 ? (t < 20.25 ? (t - 20) : (20.5 - t)) * 320 : 0.0;
    m.set_steering_wheel_angle(float(wheel));
    m.set_autopilot_state(t < 5 ? Message::AUTOSTEER : Message::NONE);
    m.set_latitude_deg(59.91);
    m.set_longitude_deg(10.75);
    return m;
}

CliRun::Result moments(const QStringList &arguments)
{
    return CliRun::run(QStringList{QStringLiteral("moments")} + arguments);
}

} // namespace

class TestMomentsCommand : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;
    QString root_;
    TreeSnapshot before_;

private Q_SLOTS:
    void initTestCase()
    {
        if (!TestClips::ffmpegAvailable())
            QSKIP("the ffmpeg tool is needed to make test clips");
        TeslaCamFixture fixture(dir_.filePath(QStringLiteral("drive/TeslaCam")));
        root_ = fixture.root();
        const QString sentry = fixture.addEvent(
            "SentryClips", "2026-05-03_22-00-00", TeslaCamFixture::eventJson("2026-05-03T22:00:00", "sentry_aware_object_detection"));
        const QString walked = dir_.filePath(QStringLiteral("walked.mp4"));
        const QString quiet = dir_.filePath(QStringLiteral("quiet.mp4"));
        ParkedScene::generate({20, 8, {{6, 9}}}, walked);
        ParkedScene::generate({20, 8, {}}, quiet);
        fixture.addClip(sentry, "2026-05-03_21-59-50", "left_repeater", 0, walked);
        fixture.addClip(sentry, "2026-05-03_21-59-50", "back", 0, quiet);

        const QString drivingClip = dir_.filePath(QStringLiteral("driving.mp4"));
        const QString plain = TestClips::clip({.seconds = 30, .width = 160, .height = 120});
        TelemetryClipWriter::remux(plain, drivingClip, [](int, double t) {
            return std::optional(TelemetryClipWriter::FrameRecord{driving(t)});
        });
        const QString saved = fixture.addEvent(
            "SavedClips", "2026-05-04_08-00-00", TeslaCamFixture::eventJson("2026-05-04T08:00:25", "user_interaction_honk"));
        fixture.addClip(saved, "2026-05-04_08-00-00", "front", 0, drivingClip);
        before_ = TreeSnapshot::take(root_);
    }

    void aBurstNamesItsCameraAndSeconds()
    {
        const CliRun::Result run = moments({root_, QStringLiteral("--event"), sentryId});
        QCOMPARE(run.exitCode, 0);
        const QJsonObject doc = QJsonDocument::fromJson(run.out).object();
        QCOMPARE(doc.keys(), (QStringList{"activity", "moments"}));
        const QJsonArray activity = doc.value(QStringLiteral("activity")).toArray();
        QCOMPARE(activity.size(), 1);
        const QJsonObject burst = activity.first().toObject();
        QCOMPARE(burst.value(QStringLiteral("camera")).toString(), QStringLiteral("left_repeater"));
        QVERIFY(std::abs(burst.value(QStringLiteral("start")).toDouble() - 6) <= 1);
        QVERIFY(std::abs(burst.value(QStringLiteral("end")).toDouble() - 9) <= 1);
        const double peak = burst.value(QStringLiteral("peak")).toDouble();
        QVERIFY(peak > 0 && peak <= 1);
        QVERIFY(doc.value(QStringLiteral("moments")).toArray().isEmpty());

        const CliRun::Result csv = moments({root_, "--event", sentryId, "--format", "csv"});
        QCOMPARE(csv.exitCode, 0);
        const QStringList rows = QString::fromUtf8(csv.out).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        QCOMPARE(rows.value(0), QStringLiteral("type,camera,start,end,peak,time,kind,speed_mps"));
        QCOMPARE(rows.size(), 2);
        QVERIFY(rows[1].startsWith(QStringLiteral("activity,left_repeater,")));
        QCOMPARE(rows[1].count(QLatin1Char(',')), 7);
        QVERIFY(rows[1].endsWith(QStringLiteral(",,,")));
    }

    void everyScriptedMomentOfTheDriveAndNoOther()
    {
        const CliRun::Result run = moments({root_, "--event", savedId, "--format", "json"});
        QCOMPARE(run.exitCode, 0);
        const QJsonArray found = QJsonDocument::fromJson(run.out).object().value(QStringLiteral("moments")).toArray();
        QStringList kinds;
        for (const QJsonValue &m : found)
            kinds << m.toObject().value(QStringLiteral("kind")).toString();
        QCOMPARE(kinds, (QStringList{"autopilotOff", "hardBraking", "swerve"}));
        const QJsonObject braking = found.at(1).toObject();
        QVERIFY(std::abs(braking.value(QStringLiteral("time")).toDouble() - 10) < 0.5);
        QVERIFY(braking.value(QStringLiteral("speed_mps")).toDouble() > 19);
        QVERIFY(std::abs(braking.value(QStringLiteral("deceleration_mps2")).toDouble() - 5) < 0.5);
        QCOMPARE(found.at(0).toObject().value(QStringLiteral("assistance")).toString(), QStringLiteral("autosteer"));
        QVERIFY(std::abs(found.at(2).toObject().value(QStringLiteral("time")).toDouble() - 20) < 0.5);

        const CliRun::Result csv = moments({root_, "--event", savedId, "--format", "csv"});
        const QStringList drive = QString::fromUtf8(csv.out).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        QCOMPARE(drive.size(), 4);
        QVERIFY(drive[2].startsWith(QStringLiteral("moment,,,,,")));
        QVERIFY(drive[2].contains(QStringLiteral(",hardBraking,")));
    }

    void anUnknownEventIsSaidPlainly()
    {
        const CliRun::Result missing = moments({root_, "--event", "sentry|2020-01-01_00-00-00"});
        QCOMPARE(missing.exitCode, 2);
        QVERIFY(!missing.err.isEmpty());
    }

    void cleanupTestCase()
    {
        if (!root_.isEmpty())
            QCOMPARE(before_.differences(TreeSnapshot::take(root_)), QString());
    }
};

QTEST_GUILESS_MAIN(TestMomentsCommand)

#include "tst_momentscommand.moc"
