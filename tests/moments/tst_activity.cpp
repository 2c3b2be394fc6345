// Where something happened in parked footage: people crossing chosen
// cameras of a scene with sensor noise and changing light are found second
// by second, quiet cameras stay quiet, the cache answers until a clip
// changes, and a damaged or hanging clip costs only its own seconds.

#include "drive/TeslaCamParser.h"
#include "moments/ActivityReader.h"
#include "support/DriveBuilder.h"
#include "support/FaultyFs.h"
#include "support/HeldClip.h"
#include "support/ParkedScene.h"
#include "support/TeslaCamFixture.h"
#include "support/TestClips.h"

#include <QDateTime>
#include <QFile>
#include <QMap>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString eventFolder = QStringLiteral("2026-05-02_10-00-00");
const QString firstMinute = QStringLiteral("2026-05-02_09-59-00");
const QString secondMinute = QStringLiteral("2026-05-02_10-00-00");

struct CameraScene {
    QString suffix;
    QString stamp;
    ParkedScene::Options scene;
};

// Two crossings of the front camera (one in its second minute), two of the
// left side with little noise, none on the rear (heavy noise) or the right
// side (little noise): light and noise alone must raise nothing.
std::vector<CameraScene> scenes()
{
    return {
        {QStringLiteral("front"), firstMinute, {40, 12, {{12, 16}}}},
        {QStringLiteral("front"), secondMinute, {40, 12, {{5, 9}}}},
        {QStringLiteral("left_repeater"), firstMinute, {40, 3, {{20, 23}, {30, 35}}}},
        {QStringLiteral("back"), firstMinute, {40, 12, {}}},
        {QStringLiteral("right_repeater"), firstMinute, {40, 3, {}}},
    };
}

TeslaEvent onlyEvent(const QString &root)
{
    const DriveScan scan = TeslaCamParser::scan(root);
    if (scan.events.size() != 1)
        throw std::runtime_error("expected one event");
    return scan.events.front();
}

// Sets a file's modification time, so its bytes can change behind an unchanged one.
bool setModified(const QString &path, const QDateTime &time)
{
    QFile f(path);
    return f.open(QIODevice::ReadWrite) && f.setFileTime(time, QFileDevice::FileModificationTime);
}

QSet<int> secondsOf(const std::vector<ActivityBurst> &bursts, Camera camera)
{
    QSet<int> seconds;
    for (const ActivityBurst &b : bursts)
        if (b.camera == camera)
            for (int s = int(b.start); s < int(b.end); ++s)
                seconds.insert(s);
    return seconds;
}

} // namespace

class TestActivity : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;
    QString root_;
    QString eventPath_;
    // Per camera, the seconds of the event's axis in which someone moves.
    QMap<QString, QSet<int>> truth_;

private Q_SLOTS:
    void initTestCase()
    {
        if (!TestClips::ffmpegAvailable())
            QSKIP("the ffmpeg tool is needed to make test clips");
        TeslaCamFixture fixture(dir_.filePath(QStringLiteral("drive/TeslaCam")));
        root_ = fixture.root();
        eventPath_ = fixture.addEvent(QStringLiteral("SentryClips"), eventFolder,
                                      TeslaCamFixture::eventJson(QStringLiteral("2026-05-02T10:00:00"),
                                                                 QStringLiteral("sentry_aware_object_detection")),
                                      false);
        for (const CameraScene &c : scenes()) {
            const QString made = dir_.filePath(c.suffix + c.stamp + QStringLiteral(".mp4"));
            ParkedScene::generate(c.scene, made);
            fixture.addClip(eventPath_, c.stamp, c.suffix, 0, made);
            const int offset = c.stamp == secondMinute ? 60 : 0;
            for (int s : ParkedScene::movingSeconds(c.scene))
                truth_[c.suffix].insert(s + offset);
        }
    }

    // At one-second resolution, over every camera.
    void findsWhoCrossedAndNothingElse()
    {
        const TeslaEvent event = onlyEvent(root_);
        const EventActivity activity = ActivityReader::load(event, {});
        int found = 0, right = 0, moving = 0;
        for (const Camera camera : event.cameras()) {
            const QSet<int> detected = secondsOf(activity.bursts, camera);
            const QSet<int> truth = truth_.value(camera.rawValue());
            found += int(detected.size());
            right += int(QSet<int>(detected).intersect(truth).size());
            moving += int(truth.size());
            if (truth.isEmpty())
                QVERIFY2(detected.isEmpty(), qPrintable(camera.rawValue() + QStringLiteral(" is quiet")));
        }
        const double precision = found ? double(right) / found : 0, recall = moving ? double(right) / moving : 0;
        qInfo("activity: %d seconds found, %d of %d moving seconds; precision %.2f, recall %.2f", found, right, moving,
              precision, recall);
        QVERIFY(precision >= 0.9 && recall >= 0.9);

        // The rows follow the grid; the second minute lies a minute on.
        QCOMPARE(activity.cameras.size(), size_t(4));
        QCOMPARE(activity.cameras.front().camera, Camera(Camera::front));
        QVERIFY(activity.duration >= 99 && activity.duration <= 101);
        const auto &front = activity.cameras.front().levels;
        QVERIFY(front[66] >= EventActivity::levelOfRatio(EventActivity::burstRatio));
        QCOMPARE(front[50], 0.0f); // between the minutes nothing was recorded

        // What the list names: each camera's strongest, by time.
        const auto named = activity.highlights(3);
        QCOMPARE(named.size(), size_t(2));
        QVERIFY(named[0].start < named[1].start);
        // N and Shift+N between them: the player screen's whereSomethingHappened.
    }

    void cacheAnswersUntilTheClipChanges()
    {
        // The drive's event, its left side's clip a copy this test may spoil.
        QTemporaryDir copy;
        const QString clip = copy.filePath(firstMinute + QStringLiteral("-left_repeater.mp4"));
        QVERIFY(QFile::copy(eventPath_ + QLatin1Char('/') + firstMinute + QStringLiteral("-left_repeater.mp4"), clip));
        TeslaEvent teslaEvent = onlyEvent(root_);
        std::erase_if(teslaEvent.clips, [](const ClipRef &c) { return c.camera != Camera::leftRepeater; });
        teslaEvent.clips.front().url = clip;
        const QString cacheFile = copy.filePath(QStringLiteral("activity-cache.bin"));
        {
            ActivityCache cache(cacheFile);
            const EventActivity first = ActivityReader::load(teslaEvent, {&cache});
            QVERIFY(!secondsOf(first.bursts, Camera::leftRepeater).isEmpty());
            QCOMPARE(cache.size(), 1);
        }
        // The same size and time, other bytes: a later run answers from the file.
        const QDateTime modified = QFileInfo(clip).lastModified();
        TeslaCamFixture::writeFile(clip, QByteArray(QFileInfo(clip).size(), 'x'));
        QVERIFY(setModified(clip, modified));
        ActivityCache reopened(cacheFile);
        const EventActivity cached = ActivityReader::load(teslaEvent, {&reopened});
        QVERIFY(!secondsOf(cached.bursts, Camera::leftRepeater).isEmpty());
        // Without the cache those bytes are no movie: the camera has nothing.
        const EventActivity read = ActivityReader::load(teslaEvent, {});
        QVERIFY(secondsOf(read.bursts, Camera::leftRepeater).isEmpty());
        // A new time is a new clip: read again, and found to be nothing.
        QVERIFY(setModified(clip, modified.addSecs(60)));
        const EventActivity changed = ActivityReader::load(teslaEvent, {&reopened});
        QVERIFY(secondsOf(changed.bursts, Camera::leftRepeater).isEmpty());
        // A torn cache file is no cache, not a failure.
        QVERIFY(QFile::resize(cacheFile, QFileInfo(cacheFile).size() / 2));
        QCOMPARE(ActivityCache(cacheFile).size(), 0);
    }

    // A clip cut short and one that stops answering cost their own cameras.
    void badClipsCostOnlyThemselves()
    {
        KEELHOLD_FAULTY_FS(drive, mount);
        const QString folder = QStringLiteral("TeslaCam/SentryClips/") + eventFolder + QLatin1Char('/');
        const QByteArray walkedBytes =
            DriveBuilder::readQuietly(dir_.filePath(QStringLiteral("left_repeater") + firstMinute + QStringLiteral(".mp4")));
        drive.addFile(folder + firstMinute + QStringLiteral("-left_repeater.mp4"), walkedBytes);
        drive.addFile(folder + firstMinute + QStringLiteral("-back.mp4"), walkedBytes.left(walkedBytes.size() / 3));
        const QByteArray held = HeldClip::indexFirst(20, 36);
        HeldClip::add(drive, folder + firstMinute + QStringLiteral("-front.mp4"), held, held.size() / 2);

        ActivityReader::Options options;
        options.clipTimeout = std::chrono::milliseconds(1500);
        const EventActivity activity = ActivityReader::load(onlyEvent(drive.mountPoint() + QStringLiteral("/TeslaCam")), options);
        drive.release();
        const QSet<int> left = secondsOf(activity.bursts, Camera::leftRepeater);
        QVERIFY(left.size() >= truth_.value(QStringLiteral("left_repeater")).size() * 9 / 10);
        QVERIFY(secondsOf(activity.bursts, Camera::front).isEmpty());
        QVERIFY(secondsOf(activity.bursts, Camera::back).isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestActivity)

#include "tst_activity.moc"
