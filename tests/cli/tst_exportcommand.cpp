#include "support/CliRun.h"
#include "support/FaultyFs.h"
#include "support/HeldClip.h"
#include "support/MovieFacts.h"
#include "support/TeslaCamFixture.h"
#include "support/TestClips.h"
#include "support/TreeSnapshot.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>

namespace {
const QString eventId = QStringLiteral("sentry|2024-06-01_15-05-00");
const QString twoCameraEventId = QStringLiteral("saved|2024-06-01_16-05-00");

// Exports a saved event from the failing drive; however the test ends the drive lets go, or the tool can't end.
struct DriveExport {
    static inline const QString folder = QStringLiteral("TeslaCam/SavedClips/2024-06-02_10-00-00/");

    ~DriveExport()
    {
        fs.release();
        process.waitForFinished(60000);
    }
    // options: what to make of the event, e.g. --camera front.
    bool start(const QString &output, const QStringList &options)
    {
        process.start(QStringLiteral(KEELHOLD_CLI_PATH),
                      QStringList{"export", mountPoint.filePath("TeslaCam"), "--event", "saved|2024-06-02_10-00-00",
                                  "-o", output} + options);
        return process.waitForStarted();
    }

    QTemporaryDir mountPoint;
    FaultyFs fs{mountPoint.path()};
    QProcess process;
};

// Reads stderr into err until it holds needle; false if the tool ended or the limit passed first.
bool readErrorsUntil(QProcess &process, QByteArray &err, const char *needle, int limitMs)
{
    const QDeadlineTimer limit(limitMs);
    while (!err.contains(needle) && !limit.hasExpired()) {
        if (!process.waitForReadyRead(100) && process.state() != QProcess::Running)
            break;
        err += process.readAllStandardError();
    }
    err += process.readAllStandardError();
    return err.contains(needle);
}

CliRun::Result runCli(const QStringList &arguments)
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("TZ"), QStringLiteral("UTC"));
    return CliRun::run(QStringList{QStringLiteral("export")} + arguments, env);
}
} // namespace

class TestExportCommand : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;
    QString root_;

    QString out(const QString &name) const { return dir_.path() + QStringLiteral("/out/") + name; }

private Q_SLOTS:
    void initTestCase()
    {
        if (!TestClips::ffmpegAvailable())
            QSKIP("the ffmpeg tool is needed to make test clips");
        const QString clip = TestClips::clip(); // two seconds
        TeslaCamFixture fixture(dir_.path() + QStringLiteral("/TeslaCam"));
        root_ = fixture.root();
        const QString event = fixture.addEvent(
            "SentryClips", "2024-06-01_15-05-00", TeslaCamFixture::eventJson("2024-06-01T15:05:00", "sentry_aware_object_detection"));
        fixture.addClip(event, "2024-06-01_15-03-00", "front", 0, clip);
        fixture.addClip(event, "2024-06-01_15-04-00", "front", 0, clip);
        fixture.addClip(event, "2024-06-01_15-04-00", "left_repeater", 4096); // not a movie
        const QString saved = fixture.addEvent(
            "SavedClips", "2024-06-01_16-05-00", TeslaCamFixture::eventJson("2024-06-01T16:04:01", "user_interaction_honk"));
        fixture.addClip(saved, "2024-06-01_16-04-00", "front", 0, clip);
        fixture.addClip(saved, "2024-06-01_16-04-00", "back", 0, clip);
        QDir().mkpath(dir_.path() + QStringLiteral("/out"));
    }

    // Every camera in one new movie of the size asked for, with frames,
    // speed and time left on the way.
    void exportsAllCamerasAsOneMovie()
    {
        const TreeSnapshot before = TreeSnapshot::take(root_);
        const QString file = out(QStringLiteral("grid.mp4"));
        const CliRun::Result run = runCli(
            {root_, "--event", twoCameraEventId, "--layout", "grid", "--size", "720", "--overlay", "time,names", "-o", file});
        QVERIFY2(run.exitCode == 0, qPrintable(run.err));
        QCOMPARE(QString::fromUtf8(run.out).trimmed(), file);
        QVERIFY(run.err.contains(QStringLiteral(" fps")));
        QVERIFY2(run.err.trimmed().split(QLatin1Char('\n')).last().startsWith(QStringLiteral("Exporting\u2026 100% (72 of 72 frames")),
                 qPrintable(run.err));
        // (Its index before its samples: the combined export's own test.)
        const MovieFacts::Stream video = *MovieFacts::read(file).firstOf(QStringLiteral("video"));
        QCOMPARE(std::pair(QSize(video.width, video.height), video.decodedFrames), std::pair(QSize(1280, 720), 72));
        QCOMPARE(before.differences(TreeSnapshot::take(root_)), QString());

        const QString folder = dir_.path() + QStringLiteral("/combined-named");
        QDir().mkpath(folder);
        const CliRun::Result named = runCli(
            {root_, "--event", twoCameraEventId, "--layout", "front-sides", "--size", "720", "--from", "1", "-o", folder});
        QCOMPARE(named.exitCode, 0);
        const QString expected = folder + QStringLiteral("/Tesla Saved 2024-06-01 4.04 PM \u2014 Front and Sides.mp4");
        QCOMPARE(QString::fromUtf8(named.out).trimmed(), expected);
        QCOMPARE(MovieFacts::read(expected).firstOf(QStringLiteral("video"))->decodedFrames, 36);
    }

    // One camera, open-ended stretch, a folder: bare, a copy of its samples, the drive untouched; drawn on, a new one.
    void oneCameraIsACopyUnlessSomethingIsDrawn()
    {
        const TreeSnapshot before = TreeSnapshot::take(root_);
        const QString folder = dir_.path() + QStringLiteral("/named");
        QDir().mkpath(folder);
        const CliRun::Result run =
            runCli({root_, "--event", eventId, "--camera", "front", "--overlay", "none", "-o", folder, "--from", "3"});
        QVERIFY2(run.exitCode == 0, qPrintable(run.err));
        const QString expected = folder + QStringLiteral("/Tesla Sentry 2024-06-01 3.05 PM \u2014 Front.mp4");
        QCOMPARE(QString::fromUtf8(run.out).trimmed(), expected);
        QVERIFY(run.err.contains(QStringLiteral("Exporting\u2026 100%")));
        const auto video = [](const MovieFacts &facts) { return *facts.firstOf(QStringLiteral("video")); };
        const MovieFacts copied = MovieFacts::read(expected, false);
        QVERIFY(std::abs(copied.duration - 1.0) < 0.05);
        QCOMPARE(std::pair(video(copied).width, video(copied).extradata),
                 std::pair(320, video(MovieFacts::read(TestClips::clip(), false)).extradata));
        QCOMPARE(before.differences(TreeSnapshot::take(root_)), QString());

        const QString drawn = out(QStringLiteral("time.mp4"));
        QCOMPARE(runCli({root_, "--event", eventId, "--camera", "front", "--overlay", "time", "-o", drawn}).exitCode, 0);
        const MovieFacts::Stream made = video(MovieFacts::read(drawn, false));
        QCOMPARE(QSize(made.width, made.height), QSize(1440, 1080));
    }

    // Said in one sentence with exit code 2, and no movie is begun.
    void failuresSayWhyInOneSentence_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("sentence"); // none: any one sentence
        const QString e = QStringLiteral("--event"), c = QStringLiteral("--camera"), l = QStringLiteral("--layout");
        const QStringList event{root_, e, eventId}, twoCameras{root_, e, twoCameraEventId};
        QTest::newRow("unknown event") << QStringList{root_, e, "sentry|2020-01-01_00-00-00", c, "front"}
                                       << "There is no event \u201csentry|2020-01-01_00-00-00\u201d in this TeslaCam folder.";
        QTest::newRow("unknown camera") << event + QStringList{c, "roof"}
                                        << "\u201croof\u201d is not a camera; use one of front, back, left_repeater, "
                                           "right_repeater, left_pillar, right_pillar, rear_backup.";
        QTest::newRow("camera without clips") << event + QStringList{c, "back"}
                                              << "The Rear camera has no playable footage in this event.";
        QTest::newRow("bad number") << event + QStringList{c, "front", "--from", "soon"}
                                    << "--from and --to take a number of seconds, such as 12.5.";
        QTest::newRow("no such folder") << QStringList{"/nonexistent/TeslaCam", e, eventId, c, "front"} << QString();
        QTest::newRow("layout") << twoCameras + QStringList{l, "diagonal"}
                                << "\u201cdiagonal\u201d is not a layout; use grid, front-sides or single.";
        QTest::newRow("size") << twoCameras + QStringList{l, "grid", "--size", "4k"}
                              << "\u201c4k\u201d is not a size; use 720, 1080 or full.";
        QTest::newRow("overlay") << twoCameras + QStringList{l, "grid", "--overlay", "time,weather"}
                                 << "--overlay takes time, names, reason and telemetry joined with commas, or none.";
        QTest::newRow("camera with grid") << twoCameras + QStringList{l, "grid", c, "front"}
                                          << "--camera picks the one camera of --layout single; grid and front-sides "
                                             "show every camera.";
        QTest::newRow("no camera") << twoCameras + QStringList{"--size", "720"}
                                   << "Name the camera with --camera, or choose --layout grid or front-sides.";
        QTest::newRow("single without footage") << twoCameras + QStringList{l, "single", c, "left_pillar"}
                                                << "The Left Pillar camera has no playable footage in this event.";
        QTest::newRow("stretch outside") << twoCameras + QStringList{l, "grid", "--from", "30"}
                                         << "The chosen stretch lies outside this event's footage.";
    }
    void failuresSayWhyInOneSentence()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, sentence);
        const QString file = out(QStringLiteral("refused.mp4"));
        const CliRun::Result run = runCli(arguments + QStringList{"-o", file});
        QCOMPARE(run.exitCode, 2);
        const QString last = run.err.trimmed().split(QLatin1Char('\n')).last();
        if (!sentence.isEmpty())
            QCOMPARE(last, sentence);
        QVERIFY(last.endsWith(QLatin1Char('.')));
        QVERIFY(!QFile::exists(file));
    }

    // Ctrl-C or a systemd stop acts like the app's Stop and leaves nothing, not even a hidden part. The drive stops
    // answering mid front clip; the signal comes once the movie is being written and the read is held.
    void interruptStopsAndLeavesNothing_data()
    {
        QTest::addColumn<int>("signal");
        QTest::addColumn<double>("seconds");
        QTest::addColumn<int>("fps");
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QByteArray>("writing"); // what the tool says once it writes
        QTest::newRow("combined, Ctrl-C") << int(SIGINT) << 8.0 << 10
                                          << QStringList{"--layout", "grid", "--size", "720"} << QByteArray(" frames");
        QTest::newRow("one camera, stopped") << int(SIGTERM) << 4.0 << 36 << QStringList{"--camera", "front"}
                                             << QByteArray("Exporting");
    }
    void interruptStopsAndLeavesNothing()
    {
        if (!FaultyFs::available())
            QSKIP("needs root and /dev/fuse");
        QFETCH(int, signal);
        QFETCH(double, seconds);
        QFETCH(int, fps);
        QFETCH(QStringList, options);
        QFETCH(QByteArray, writing);
        DriveExport run;
        QVERIFY(run.fs.isMounted());
        const QByteArray clip = HeldClip::indexFirst(seconds, fps);
        const qint64 pictures = TestClips::topLevelBoxOffset(clip, "mdat");
        QVERIFY(pictures > 0);
        run.fs.addFile(DriveExport::folder + QStringLiteral("event.json"),
                       TeslaCamFixture::eventJson(QStringLiteral("2024-06-02T09:59:30"), QStringLiteral("user_interaction_honk")));
        HeldClip::add(run.fs, DriveExport::folder + QStringLiteral("2024-06-02_09-59-00-front.mp4"), clip,
                      pictures + (clip.size() - pictures) / 2);
        run.fs.addFile(DriveExport::folder + QStringLiteral("2024-06-02_09-59-00-back.mp4"), clip);
        const QString outputs = dir_.path() + QStringLiteral("/interrupted-") + QString::number(signal);
        QDir().mkpath(outputs);
        const auto left = [&] { return QDir(outputs).entryList(QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot); };

        QVERIFY(run.start(outputs, options));
        QVERIFY2(run.fs.waitUntilHeld(1, std::chrono::seconds(60)), "the export never reached the held pictures");
        // Clips are read ahead, so the hold may come before the movie is begun; the signal waits for both.
        QByteArray err;
        QVERIFY2(readErrorsUntil(run.process, err, writing.constData(), 60000), err.constData());
        QVERIFY(!left().isEmpty());
        ::kill(pid_t(run.process.processId()), signal);
        // Said while the read is still held: a process can't end while the
        // kernel waits on the drive for it, so it ends once the drive lets go.
        QVERIFY2(readErrorsUntil(run.process, err, "The export was stopped.", 60000), err.constData());
        QCOMPARE(QString::fromUtf8(err).trimmed().split(QLatin1Char('\n')).last(), QStringLiteral("The export was stopped."));
        QCOMPARE(left(), QStringList());
        run.fs.release();
        QVERIFY(run.process.waitForFinished(60000));
        QCOMPARE(run.process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(run.process.exitCode(), 2);
        QCOMPARE(left(), QStringList());
    }
};

QTEST_GUILESS_MAIN(TestExportCommand)
#include "tst_exportcommand.moc"
