#include "support/CliRun.h"
#include "support/DriveBuilder.h"
#include "support/TelemetryClipWriter.h"
#include "support/TeslaCamFixture.h"
#include "support/TestClips.h"
#include "support/TreeSnapshot.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

using Message = TelemetryClipWriter::Message;
using FrameRecord = TelemetryClipWriter::FrameRecord;

namespace {

const QString savedId = QStringLiteral("saved|2024-06-02_09-00-00");
const QString sentryId = QStringLiteral("sentry|2024-06-01_15-05-00");

// 12.5 m/s in the first clip, a new GPS fix every fourth frame, standing in the second. In every clip frame 7 holds
// a record the car mangled, frame 9 none, and frame 0 is parked (so it sends neither speed nor gear).
std::optional<FrameRecord> record(int clip, int frame)
{
    if (frame == 9)
        return std::nullopt;
    Message m;
    if (frame > 0) {
        m.set_version(1);
        m.set_gear_state(Message::GEAR_DRIVE);
        m.set_vehicle_speed_mps(12.5f);
        m.set_steering_wheel_angle(-3.25f);
        m.set_brake_applied(frame == 20);
        m.set_autopilot_state(Message::AUTOSTEER);
    }
    m.set_frame_seq_no(quint64(clip * 100 + frame));
    m.set_latitude_deg(30.5 + clip * 0.01 + (clip == 0 ? (frame / 4) * 1e-4 : 0.0));
    m.set_longitude_deg(-97.75);
    m.set_heading_deg(0.5);
    FrameRecord r{m};
    if (frame == 7)
        r.damage = TelemetryClipWriter::Damage::badProtobuf;
    return r;
}

CliRun::Result cli(const QStringList &arguments)
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("TZ"), QStringLiteral("UTC"));
    return CliRun::run(QStringList{QStringLiteral("telemetry")} + arguments, env);
}

} // namespace

class TestTelemetryCommand : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;
    QString root_;
    TreeSnapshot before_;

    QString path(const QString &name) const { return dir_.filePath(name); }

private Q_SLOTS:
    // A saved event: two 3 s front clips 10 s apart with records, a back clip without; a Sentry event without records.
    void initTestCase()
    {
        if (!TestClips::ffmpegAvailable())
            QSKIP("the ffmpeg tool is needed to make test clips");
        const QString plain = TestClips::clip({.seconds = 3.0, .width = 160, .height = 120});
        TeslaCamFixture fixture(path(QStringLiteral("drive/TeslaCam")));
        root_ = fixture.root();
        const QString saved = fixture.addEvent(
            "SavedClips", "2024-06-02_09-00-00", TeslaCamFixture::eventJson("2024-06-02T09:00:00", "user_interaction_honk"));
        for (int clip = 0; clip < 2; ++clip) {
            const QString source = path(QStringLiteral("records-%1.mp4").arg(clip));
            // Clip one's header says 13:59 UTC (its name's car clock is five hours behind); clip two's says nothing.
            TelemetryClipWriter::remux(plain, source, [clip](int frame, double) { return record(clip, frame); }, false,
                                       clip ? QString() : QStringLiteral("2024-06-02T13:59:00Z"));
            fixture.addClip(saved, clip ? "2024-06-02_08-59-10" : "2024-06-02_08-59-00", "front", 0, source);
        }
        fixture.addClip(saved, "2024-06-02_08-59-00", "back", 0, plain);
        const QString sentry = fixture.addEvent(
            "SentryClips", "2024-06-01_15-05-00", TeslaCamFixture::eventJson("2024-06-01T15:05:00", "sentry_aware_object_detection"));
        fixture.addClip(sentry, QStringLiteral("2024-06-01_15-04-00"), QStringLiteral("front"), 0, plain);
        before_ = TreeSnapshot::take(root_);
    }

    void csvHasARowForEveryFrame()
    {
        const CliRun::Result run = cli({root_, QStringLiteral("--event"), savedId});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.err, QString());
        const QStringList rows = QString::fromUtf8(run.out).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        QCOMPARE(rows.size(), 1 + 2 * 108);
        QVERIFY(rows[0].startsWith(QStringLiteral("time,clip,clipTime,frame,wallClock,version,gear,")));
        const int columns = int(rows[0].count(QLatin1Char(','))) + 1;
        for (const QString &row : rows)
            QCOMPARE(int(row.count(QLatin1Char(','))) + 1, columns);

        // Frame 20 of the first clip, a thirty-sixth of a second apart.
        const QStringList frame20 = rows[1 + 20].split(QLatin1Char(','));
        QCOMPARE(frame20.mid(0, 7), (QStringList{"0.555556", "2024-06-02_08-59-00-front.mp4", "0.555556", "20",
                                                  "2024-06-02T08:59:00.555", "1", "drive"}));
        QCOMPARE(frame20.mid(7), (QStringList{"20", "12.5", "0", "-3.25", "false", "false", "true", "autosteer",
                                              "30.5005", "-97.75", "0.5", "0", "0", "0"}));
        // Left out on the wire: park at standstill.
        const QStringList parked = rows[1].split(QLatin1Char(','));
        QCOMPARE(parked.mid(5, 5), (QStringList{"0", "park", "0", "0", "0"}));
        // A mangled record and a missing one leave their rows empty.
        for (int frame : {7, 9})
            QCOMPARE(rows[1 + frame].split(QLatin1Char(',')).mid(5), QStringList(16, QString()));
        // The second clip stands ten seconds on.
        QVERIFY(rows[1 + 108].startsWith(QStringLiteral("10,2024-06-02_08-59-10-front.mp4,0,0,2024-06-02T08:59:10.000,")));
    }

    void jsonCarriesTheSameFields()
    {
        const CliRun::Result run = cli({root_, "--event", savedId, "--format", "json"});
        QCOMPARE(run.exitCode, 0);
        const QJsonObject doc = QJsonDocument::fromJson(run.out).object();
        QCOMPARE(doc.value(QStringLiteral("event")).toString(), savedId);
        QCOMPARE(doc.value(QStringLiteral("camera")).toString(), QStringLiteral("front"));
        const QJsonArray frames = doc.value(QStringLiteral("frames")).toArray();
        QCOMPARE(frames.size(), 2 * 108);
        const QJsonObject f = frames[108 + 20].toObject();
        QCOMPARE(f.value(QStringLiteral("clip")).toString(), QStringLiteral("2024-06-02_08-59-10-front.mp4"));
        QCOMPARE(f.value(QStringLiteral("frame")).toInt(), 20);
        QCOMPARE(f.value(QStringLiteral("frameSequenceNumber")).toInt(), 120);
        QCOMPARE(f.value(QStringLiteral("speed")).toDouble(), 12.5);
        QCOMPARE(f.value(QStringLiteral("autopilot")).toString(), QStringLiteral("autosteer"));
        QCOMPARE(f.value(QStringLiteral("brakeApplied")).toBool(), true);
        QCOMPARE(f.value(QStringLiteral("latitude")).toDouble(), 30.5 + 1 * 0.01 + 0.0);
        QCOMPARE(frames[0].toObject().value(QStringLiteral("gear")).toString(), QStringLiteral("park"));
        const QJsonObject missing = frames[9].toObject();
        QVERIFY(missing.contains(QStringLiteral("wallClock")));
        QVERIFY(!missing.contains(QStringLiteral("speed")));
    }

    // The route as a mapping tool reads it, written to a file named .gpx.
    void gpxIsATrackOfTheFixes()
    {
        const QString file = path(QStringLiteral("out/drive.gpx"));
        QDir().mkpath(path(QStringLiteral("out")));
        const CliRun::Result run = cli({root_, QStringLiteral("--event"), savedId, QStringLiteral("-o"), file});
        QCOMPARE(run.exitCode, 0);
        QVERIFY(run.out.isEmpty());
        QXmlStreamReader xml(DriveBuilder::readQuietly(file));
        int segments = 0;
        QStringList points, times;
        while (!xml.atEnd()) {
            if (xml.readNext() != QXmlStreamReader::StartElement)
                continue;
            if (xml.name() == QLatin1String("gpx"))
                QCOMPARE(xml.namespaceUri(), QLatin1String("http://www.topografix.com/GPX/1/1"));
            if (xml.name() == QLatin1String("trkseg"))
                ++segments;
            if (xml.name() == QLatin1String("trkpt"))
                points << xml.attributes().value(QLatin1String("lat")).toString() + QLatin1Char(' ')
                        + xml.attributes().value(QLatin1String("lon")).toString();
            if (xml.name() == QLatin1String("time"))
                times << xml.readElementText();
        }
        QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
        // One line per clip, 10 s apart; a point per new fix and one for the whole stand. Times are UTC from the
        // header, whatever the computer's zone; a clip without one gives none.
        QCOMPARE(segments, 2);
        QCOMPARE(points.size(), 27 + 1);
        QCOMPARE(points.first(), QStringLiteral("30.5 -97.75"));
        QCOMPARE(times.size(), 27);
        QCOMPARE(times.first(), QStringLiteral("2024-06-02T13:59:00.000Z"));
        QCOMPARE(times.at(1), QStringLiteral("2024-06-02T13:59:00.111Z"));
    }

    void theSameFromTheVault()
    {
        const QString vault = path(QStringLiteral("Vault"));
        const CliRun::Result kept = CliRun::run({"keep", root_, "--vault", vault, "--event", savedId});
        QCOMPARE(kept.exitCode, 0);
        const CliRun::Result fromDrive = cli({root_, QStringLiteral("--event"), savedId});
        const CliRun::Result fromVault = cli({vault, QStringLiteral("--event"), savedId});
        QCOMPARE(fromVault.exitCode, 0);
        QCOMPARE(fromVault.out, fromDrive.out);
    }

    void oneSentenceWhenThereIsNothingToGive_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("no such event") << QStringList{"--event", "saved|2020-01-01_00-00-00"}
                                       << "There is no event \u201csaved|2020-01-01_00-00-00\u201d in this folder.";
        QTest::newRow("no records") << QStringList{"--event", sentryId}
                                    << "The Front camera's clips of this event carry no driving data: cars record it "
                                       "from software 2025.44.25 on, and not in every mode.";
        QTest::newRow("a camera without clips") << QStringList{"--event", savedId, "--camera", "left_pillar"}
                                                << "The Left Pillar camera has no footage in this event.";
        QTest::newRow("no such camera") << QStringList{"--event", savedId, "--camera", "roof"}
                                        << "\u201croof\u201d is not a camera; use one of front, back, left_repeater, "
                                           "right_repeater, left_pillar, right_pillar, rear_backup.";
        QTest::newRow("no such format") << QStringList{"--event", savedId, "--format", "kml"}
                                        << "\u201ckml\u201d is not a format; use csv, json or gpx.";
        QTest::newRow("a file on the drive")
            << QStringList{"--event", savedId, "-o", root_ + "/drive.csv"}
            << "Keelhold never writes to your Tesla drive, so save the driving data somewhere else.";
    }

    void oneSentenceWhenThereIsNothingToGive()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, sentence);
        const CliRun::Result run = cli(QStringList{root_} + arguments);
        QCOMPARE(run.exitCode, 2);
        QVERIFY(run.out.isEmpty());
        QCOMPARE(run.err.trimmed(), sentence);
    }

    // Whatever was asked, the drive is as it was, access times too.
    void cleanupTestCase()
    {
        if (!root_.isEmpty()) {
            const QString changes = before_.differences(TreeSnapshot::take(root_), true);
            QVERIFY2(changes.isEmpty(), qPrintable(changes));
        }
    }
};

QTEST_GUILESS_MAIN(TestTelemetryCommand)
#include "tst_telemetrycommand.moc"
