#include "PlaybackClips.h"

#include "base/EnginePools.h"
#include "playback/SyncPlayerController.h"
#include "support/DamagedHeaders.h"
#include "support/DriveBuilder.h"
#include "support/FaultyFs.h"
#include "support/TeslaCamFixture.h"
#include "support/TreeSnapshot.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QVideoSink>
#include <QtConcurrent/QtConcurrentRun>
#include <QtTest>

using namespace PlaybackClips;

namespace {
const Date origin(800000000.0);
const std::vector<Camera> fourCameras{Camera::front, Camera::back, Camera::leftRepeater, Camera::rightRepeater};

// A Sentry event whose cameras each have clips at 0, 3 and 6 s, unless one is left out or given another health.
struct EventBuilder {
    QString dir;
    TeslaEvent event;

    EventBuilder(const QString &folder, double momentOffset = 5.0) : dir(folder)
    {
        event.kind = EventKind::sentry;
        event.folderName = QStringLiteral("2026-07-21_02-11-05");
        event.folderURL = dir;
        event.timestamp = origin.addingTimeInterval(momentOffset);
        event.missingEventJSON = false;
    }
    ClipRef &add(Camera camera, int clip, ClipHealth health = ClipHealth::ok)
    {
        const QString name = QString("%1-%2.mp4").arg(clip).arg(camera.rawValue());
        const QString path = place(frameClip(int(camera.value()), clip), dir, name);
        event.clips.push_back(clipRef(path, camera, origin.addingTimeInterval(clipSeconds * clip), health));
        return event.clips.back();
    }
    EventBuilder &full(const std::vector<Camera> &cameras)
    {
        for (Camera c : cameras)
            for (int k = 0; k < 3; ++k)
                add(c, k);
        ClipOrder::sort(event.clips);
        return *this;
    }
};
} // namespace

class TestSyncPlayerController : public QObject {
    Q_OBJECT

    using Tile = SyncPlayerController::Tile;
    using Outcome = SyncPlayerController::TileOutcome;
    // Per camera, its clips' starts and ids.
    using Layout = std::map<int, std::pair<std::vector<double>, std::vector<int>>>;

    QTemporaryDir tmp;
    std::vector<std::unique_ptr<QVideoSink>> sinks;

    // Paused once the event has started playing by itself; false if it never did.
    bool attachSinksAndPause(SyncPlayerController &c)
    {
        sinks.clear();
        for (const Tile &t : c.tiles()) {
            sinks.push_back(std::make_unique<QVideoSink>());
            if (t.player)
                t.player->setVideoSink(sinks.back().get());
        }
        const bool started = QTest::qWaitFor([&] { return c.isPlaying(); });
        c.pause();
        return started;
    }

    static bool waitSettled(SyncPlayerController &c)
    {
        return QTest::qWaitFor(
            [&] {
                const auto playable = c.playableTiles();
                return std::none_of(playable.begin(), playable.end(), [](const Tile &x) { return x.player->isSeeking(); });
            },
            20000);
    }

    static std::vector<double> starts3() { return {0, 3, 6}; }

    // The widest spread, in seconds, between the moments the cameras showed at once.
    double worstSkewPlayingTo(SyncPlayerController &c, double until)
    {
        const QDeadlineTimer limit(120000);
        double worst = 0;
        while (c.currentTime() < until && c.isPlaying() && !limit.hasExpired()) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 3);
            double lo = 1e9, hi = -1e9;
            for (const auto &sink : sinks) {
                const auto id = identify(sink->videoFrame());
                if (!id)
                    return 1e9;
                const double time = starts3()[size_t(id->clip)] + id->index / double(fps);
                lo = std::min(lo, time);
                hi = std::max(hi, time);
            }
            worst = std::max(worst, hi - lo);
        }
        return worst;
    }

    void verifyAllAt(SyncPlayerController &c, double t, const Layout &layout)
    {
        QVERIFY(waitSettled(c));
        for (size_t i = 0; i < c.tiles().size(); ++i) {
            const Tile &tile = c.tiles()[i];
            if (!tile.player)
                continue;
            const int cam = int(tile.camera.value());
            const auto &[starts, ids] = layout.at(cam);
            const auto expected = expectedAt(t, cam, starts, ids);
            const auto shown = identify(sinks[i]->videoFrame());
            QVERIFY2(shown == expected, qPrintable(QString("camera %1 at %2: shown %3, expected %4")
                                                       .arg(tile.camera.rawValue())
                                                       .arg(t)
                                                       .arg(describe(shown), describe(expected))));
        }
    }

    Layout fullLayout(const std::vector<Camera> &cams)
    {
        Layout m;
        for (Camera c : cams)
            m[int(c.value())] = {starts3(), {0, 1, 2}};
        return m;
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (!TestClips::ffmpegAvailable())
            QSKIP("ffmpeg is needed to make test clips");
    }

    void timeStringAndCueTargets()
    {
        const auto time = &SyncPlayerController::timeString;
        QCOMPARE((QStringList{time(59.5), time(-1), time(75 * 60)}), (QStringList{"1:00", "0:00", "1:15:00"}));
        const auto cue = &SyncPlayerController::cueTarget;
        QCOMPARE((QList<double>{cue(4.0, 200), cue(100.0, 200), cue(std::nullopt, 200), cue(100.0, 0.5), cue(100.0, 105),
                                cue(100.0, 100), cue(100.0, 90.5)}),
                 (QList<double>{0, 90, 0, 0, 90, 90, 89.5}));
    }

    void momentOfTheEvent()
    {
        EventBuilder b(tmp.path() + "/moment");
        b.add(Camera::front, 0);
        b.add(Camera::front, 1);
        SyncPlayerController c(b.event); // estimate: 3 + 60 s
        QCOMPARE(c.triggerOffset(), std::optional<double>(5.0));
        QCOMPARE(c.duration(), 63.0);

        TeslaEvent e = b.event;
        for (const double outside : {-1.0, 64.0}) { // before the first clip, past the estimate
            e.timestamp = origin.addingTimeInterval(outside);
            c.loadEvent(e);
            QCOMPARE(c.triggerOffset(), std::nullopt);
        }
        e.timestamp = origin.addingTimeInterval(5);
        e.missingEventJSON = true;
        c.loadEvent(e);
        QCOMPARE(c.triggerOffset(), std::nullopt);
        e.missingEventJSON = false;
        e.kind = EventKind::recent;
        QSignalSpy loading(&c, &SyncPlayerController::isLoadingTilesChanged);
        c.loadEvent(e);
        QCOMPARE(c.triggerOffset(), std::nullopt);
        QVERIFY(c.isLoadingTiles() || loading.count() > 0); // the build may already be done
        QTRY_VERIFY(!c.isLoadingTiles());
        // The real media decides the length once the tiles stand.
        QCOMPARE(c.duration(), 6.0);
        QTRY_VERIFY(c.isPlaying()); // cued to 0 and started by itself
    }

    void eventWithoutClipsHasNothingToPlay()
    {
        TeslaEvent e;
        e.kind = EventKind::saved;
        SyncPlayerController c(e);
        QCOMPARE(c.duration(), 1.0);
        QTRY_VERIFY(!c.isLoadingTiles());
        QVERIFY(c.tiles().empty());
        c.play();
        QVERIFY(!c.isPlaying());
        c.seek(10);
        QCOMPARE(c.currentTime(), 1.0);
    }

    void loadsSeeksAndPlaysInSync()
    {
        const QString dir = tmp.path() + "/sync";
        EventBuilder b(dir);
        b.full(fourCameras);
        const TreeSnapshot before = TreeSnapshot::take(dir);
        {
            SyncPlayerController c(b.event);
            QTRY_VERIFY(!c.isLoadingTiles());
            QStringList order;
            for (const Tile &t : c.tiles())
                order << t.camera.rawValue();
            QCOMPARE(order, QStringList({"front", "left_repeater", "right_repeater", "back"})); // the grid's order
            QCOMPARE(c.duration(), 9.0);
            QCOMPARE(c.tiles()[0].player.get(), c.primaryPlayer_.data());
            QVERIFY(attachSinksAndPause(c));
            const auto layout = fullLayout(fourCameras);

            // Exact seeks, paused.
            for (double t : {0.0, 1.0, 2.99, 3.0, 4.51, 8.98, 6.0, 0.5}) {
                c.seek(t);
                verifyAllAt(c, MediaTime::fromSeconds(t).seconds(), layout);
            }
            c.seek(-3);
            QCOMPARE(c.currentTime(), 0.0);
            c.seek(c.duration() + 10);
            QCOMPARE(c.currentTime(), 9.0);

            // Play a second of footage: the cameras never drift apart.
            c.seek(1.0);
            QVERIFY(waitSettled(c));
            c.play();
            QVERIFY(c.isPlaying());
            const double worst = worstSkewPlayingTo(c, 2.0);
            QVERIFY2(worst <= 1.0 / fps + 1e-6, qPrintable(QString("skew %1 frames").arg(worst * fps)));
            QVERIFY2(c.currentTime() >= 2.0, qPrintable(QString::number(c.currentTime())));
            c.pause();
            QVERIFY(waitSettled(c));
            verifyAllAt(c, MediaTime::fromSeconds(c.currentTime()).seconds(), layout);

            // Step frame by frame, across a clip boundary too.
            c.seek(2.98);
            QVERIFY(waitSettled(c));
            QCOMPARE(identify(sinks[0]->videoFrame())->index, 107);
            c.stepFrame(+1);
            QTRY_VERIFY(identify(sinks[0]->videoFrame())->clip == 1);
            QVERIFY(waitSettled(c));
            verifyAllAt(c, c.currentTime(), layout);
            QCOMPARE(identify(sinks[3]->videoFrame()), (std::optional<FrameId>{FrameId{0, 1, int(Camera::back)}}));
            c.stepFrame(+1);
            c.stepFrame(+1);
            QTRY_COMPARE(identify(sinks[0]->videoFrame())->index, 2);
            c.stepFrame(-1);
            QTRY_COMPARE(identify(sinks[0]->videoFrame())->index, 1);
            QVERIFY(waitSettled(c));
            verifyAllAt(c, c.currentTime(), layout);
            QVERIFY(!c.isPlaying());

            // Speed: while paused nothing starts; every player takes it up on play and on a change while playing.
            QSignalSpy playing(&c, &SyncPlayerController::isPlayingChanged);
            c.setRate(2.0f);
            QVERIFY(!c.isPlaying());
            QCOMPARE(playing.count(), 0);
            for (const Tile &t : c.tiles())
                QCOMPARE(t.player->rate(), 0.0f);
            c.seek(1.0);
            c.play();
            for (const Tile &t : c.tiles())
                QCOMPARE(t.player->rate(), 2.0f);
            QTRY_VERIFY_WITH_TIMEOUT(c.tiles()[0].player->currentSeconds() > 2.1, 20000);
            c.setRate(0.5f);
            for (const Tile &t : c.tiles())
                QCOMPARE(t.player->rate(), 0.5f);
            c.pause();
            c.setRate(1.0f);
        }
        QCOMPARE(before.differences(TreeSnapshot::take(dir)), QString());
    }

    void gapsLateStartsAndPlaceholders()
    {
        const QString dir = tmp.path() + "/gaps";
        EventBuilder b(dir, 7.5);
        // front: damaged last minute; back: lacks the middle minute;
        // left repeater: a damaged first minute; right repeater: all damaged;
        // left pillar: encrypted only; right pillar: a file that isn't a movie.
        b.add(Camera::front, 0);
        b.add(Camera::front, 1);
        b.add(Camera::front, 2, ClipHealth::truncated);
        b.add(Camera::back, 0);
        b.add(Camera::back, 2, ClipHealth::unknown);
        b.add(Camera::leftRepeater, 0, ClipHealth::truncated);
        b.add(Camera::leftRepeater, 1);
        b.add(Camera::leftRepeater, 2, ClipHealth::unreadable);
        b.add(Camera::rightRepeater, 0, ClipHealth::zeroByte);
        b.add(Camera::leftPillar, 0, ClipHealth::encrypted);
        TeslaCamFixture::writeFile(b.add(Camera::rightPillar, 0, ClipHealth::unknown).url, QByteArray(4096, 'x'));
        // A clip removed since the scan is skipped.
        QFile::remove(b.add(Camera::back, 1).url);

        SyncPlayerController c(b.event);
        QCOMPARE(c.triggerOffset(), std::optional<double>(7.5));
        QTRY_VERIFY(!c.isLoadingTiles());
        QCOMPARE(c.tiles().size(), size_t(6));
        std::map<QString, const Tile *> byCam;
        for (const Tile &t : c.tiles())
            byCam[t.camera.rawValue()] = &t;
        for (const char *playing : {"front", "back", "left_repeater"})
            QVERIFY2(byCam[playing]->player, playing);
        QCOMPARE(byCam["right_repeater"]->placeholderReason, SyncPlayerController::damagedReason);
        // The car's encrypted footage waits for its keys, under a lock.
        QCOMPARE(byCam["left_pillar"]->placeholderReason, EventTimeline::lockedReason());
        QVERIFY(byCam["left_pillar"]->locked);
        QVERIFY(!byCam["right_repeater"]->locked);
        QCOMPARE(byCam["right_pillar"]->placeholderReason, SyncPlayerController::damagedReason);
        // Back's last minute is still there; the front's damaged minute isn't.
        QCOMPARE(c.duration(), 9.0);
        // What doesn't play in the middle says why: a minute never there, a damaged one.
        using Gaps = std::vector<EventTimeline::Gap>;
        QCOMPARE(byCam["front"]->gaps, Gaps{});
        QCOMPARE(byCam["back"]->gaps, (Gaps{{3, 6, SyncPlayerController::noFootageReason}}));
        QCOMPARE(byCam["left_repeater"]->gaps, (Gaps{{0, 3, SyncPlayerController::damagedReason}}));

        QVERIFY(attachSinksAndPause(c));
        const Layout layout{{int(Camera::front), {{0, 3}, {0, 1}}},
                            {int(Camera::back), {{0, 6}, {0, 2}}},
                            {int(Camera::leftRepeater), {{3}, {1}}}};
        for (double t : {1.0, 4.0, 7.0, 0.0, 3.5}) {
            c.seek(t);
            verifyAllAt(c, t, layout);
        }
        // The focus may rest on a placeholder; an index out of range is ignored.
        c.focusCamera(3);
        QCOMPARE(c.focusedCamera(), std::optional<Camera>(c.tiles()[3].camera));
        c.focusCamera(6);
        c.focusCamera(-1);
        QCOMPARE(c.focusedCamera(), std::optional<Camera>(c.tiles()[3].camera));
        c.clearFocus();
        QCOMPARE(c.focusedCamera(), std::nullopt);
    }

    void damagedLastMinuteShortensTheTimeline()
    {
        EventBuilder b(tmp.path() + "/short", 7.5);
        // The front can't play at all: the back is primary.
        b.add(Camera::front, 0, ClipHealth::truncated);
        b.add(Camera::front, 2, ClipHealth::timedOut);
        b.add(Camera::back, 0, ClipHealth::truncated);
        b.add(Camera::back, 1);
        b.add(Camera::back, 2, ClipHealth::timedOut);
        SyncPlayerController c(b.event);
        QTRY_VERIFY(!c.isLoadingTiles());
        QCOMPARE(c.duration(), 6.0);
        QCOMPARE(c.triggerOffset(), std::optional<double>(6.0));
        QVERIFY(!c.tiles()[0].player);
        QCOMPARE(c.primaryPlayer_.data(), c.tiles()[1].player.get());
    }

    // A camera ending early doesn't stop the timeline; Play at the end starts over.
    void playbackRunsToTheEndOfTheLongestCameraAndStops()
    {
        EventBuilder b(tmp.path() + "/ends");
        b.add(Camera::front, 0);
        b.add(Camera::front, 1);
        for (int k = 0; k < 3; ++k)
            b.add(Camera::back, k);
        SyncPlayerController c(b.event);
        QTRY_VERIFY(!c.isLoadingTiles());
        QCOMPARE(c.duration(), 9.0);
        // Each tile knows where its footage ends, so it can say so past that point.
        QCOMPARE(c.tiles()[0].contentEnd, 6.0);
        QCOMPARE(c.tiles()[1].contentEnd, 9.0);
        QCOMPARE(c.tilesForQml().at(0).toMap().value("contentEnd").toDouble(), 6.0);
        QTRY_VERIFY(c.isPlaying());
        c.seek(5.5);
        QVERIFY(c.isPlaying());
        QTRY_VERIFY_WITH_TIMEOUT(c.currentTime() > 6.5, 5000);
        QVERIFY(c.isPlaying());
        QTRY_VERIFY_WITH_TIMEOUT(!c.isPlaying(), 10000);
        QCOMPARE(c.currentTime(), 9.0);
        for (const Tile &t : c.tiles())
            QCOMPARE(t.player->rate(), 0.0f);
        c.play();
        QVERIFY(c.isPlaying());
        QVERIFY(c.currentTime() < 0.5);
    }

    void switchingEventsMidLoadNeverShowsTheFirst()
    {
        const QString dir = tmp.path() + "/switch";
        KEELHOLD_FAULTY_FS(fs, mount);
        const QString held = fs.addHeldFile(QStringLiteral("1-back.mp4"), QByteArray(64 * 1024, 'x'));
        EventBuilder a(dir + "/a");
        a.add(Camera::front, 0);
        a.event.clips.push_back(clipRef(held, Camera::back, origin.addingTimeInterval(3), ClipHealth::ok));

        EventBuilder b(dir + "/b", 2.0);
        b.add(Camera::leftPillar, 0);

        SyncPlayerController c(a.event);
        std::vector<size_t> seen;
        connect(&c, &SyncPlayerController::tilesChanged, &c, [&] { seen.push_back(c.tiles().size()); });
        QTRY_VERIFY(fs.isHanging()); // the first load now hangs on the drive
        c.loadEvent(b.event);
        QCOMPARE(c.triggerOffset(), std::optional<double>(2.0));
        QTRY_VERIFY(!c.isLoadingTiles());
        QCOMPARE(c.tiles().size(), size_t(1));
        QCOMPARE(c.tiles()[0].camera, Camera(Camera::leftPillar));
        fs.release(); // the cancelled load ends; its result is dropped
        QTRY_VERIFY(!fs.isHanging());
        // Its tile build was the pool's only other work; once that returns, the end is handled at the next turn.
        QVERIFY(EnginePools::media().waitForDone(30000));
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        QCOMPARE(c.tiles().size(), size_t(1));
        QCOMPARE(c.tiles()[0].camera, Camera(Camera::leftPillar));
        QVERIFY(std::all_of(seen.begin(), seen.end(), [](size_t n) { return n <= 1; }));
        QCOMPARE(c.triggerOffset(), std::optional<double>(2.0));
    }

    // From a slow drive: answered before a byte is read, and nothing of the event's start is read or shown first.
    void opensAtTheIntendedStartFirst()
    {
        KEELHOLD_FAULTY_FS(fs, mount);
        EventBuilder b(mount.path(), 16.5);
        const std::vector<Camera> cameras{Camera::front, Camera::back};
        for (Camera camera : cameras)
            for (int k = 0; k < 6; ++k) {
                const QString name = QString("%1-%2.mp4").arg(k).arg(camera.rawValue());
                fs.addFile(name, DriveBuilder::readQuietly(frameClip(int(camera.value()), k)));
                b.event.clips.push_back(
                    clipRef(mount.path() + "/" + name, camera, origin.addingTimeInterval(clipSeconds * k)));
            }
        ClipOrder::sort(b.event.clips);
        fs.limitReadRate(1'000'000);
        const qint64 servedBefore = fs.bytesServed();

        SyncPlayerController c(b.event);
        QCOMPARE(c.tiles().size(), cameras.size());
        // What each waiting tile says: the window's hangingClipCostsOnlyItsTile.
        QVERIFY(std::ranges::all_of(c.tiles(), [](const Tile &t) { return t.waiting && !t.player; }));
        QCOMPARE(fs.bytesServed(), servedBefore);
        QVERIFY(ReadPriority::isUrgent()); // the drive's background pass waits meanwhile

        // On a slow machine the key frame may stand in as a preview, and a camera not yet ready may join later.
        struct Shown {
            double time = -1;
            double at = 0;
        };
        const auto timeOf = [](const std::optional<FrameId> &id) { return id ? id->clip * clipSeconds + id->index / double(fps) : -1.0; };
        std::map<int, Shown> first;
        std::map<int, std::vector<double>> previews;
        std::vector<std::unique_ptr<QVideoSink>> watching;
        connect(&c, &SyncPlayerController::tilesChanged, &c, [&] {
            for (const Tile &t : c.tiles()) {
                if (!t.player || t.player->videoSink())
                    continue;
                watching.push_back(std::make_unique<QVideoSink>());
                const int camera = int(t.camera.value());
                TrackPlayer *player = t.player.get();
                connect(watching.back().get(), &QVideoSink::videoFrameChanged, &c, [&, camera, player](const QVideoFrame &f) {
                    if (!f.isValid() || first.count(camera))
                        return;
                    if (player->isShowingPreview())
                        previews[camera].push_back(timeOf(identify(f)));
                    else
                        first[camera] = {timeOf(identify(f)), std::max(6.5, c.currentTime())};
                });
                t.player->setVideoSink(watching.back().get());
            }
        });
        QTRY_VERIFY_WITH_TIMEOUT(c.isPlaying(), 60000);
        QVERIFY(!ReadPriority::isUrgent());
        QCOMPARE(c.tiles().size(), cameras.size());
        const double intended = timeOf(expectedAt(6.5, 0, {0, 3, 6, 9, 12, 15}, {0, 1, 2, 3, 4, 5}));
        for (Camera camera : cameras) {
            const int id = int(camera.value());
            QVERIFY2(first.count(id), qPrintable(camera.rawValue()));
            QVERIFY2(first[id].time >= intended - 1e-6 && first[id].time <= first[id].at + 1e-6,
                     qPrintable(QString("%1 first showed %2 at %3").arg(camera.rawValue()).arg(first[id].time).arg(first[id].at)));
            for (double preview : previews[id])
                QCOMPARE(preview, 6.0);
        }
        c.pause();
    }

    void hangingClipCostsThatClipOnly()
    {
        const QString dir = tmp.path() + "/hang";
        KEELHOLD_FAULTY_FS(fs, mount);
        const QString held = fs.addHeldFile(QStringLiteral("1-back.mp4"), QByteArray(64 * 1024, 'x'));
        EventBuilder b(dir);
        b.add(Camera::back, 0);
        b.add(Camera::back, 2);
        b.event.clips.push_back(clipRef(held, Camera::back, origin.addingTimeInterval(3), ClipHealth::unknown));
        ClipOrder::sort(b.event.clips);

        QElapsedTimer timer;
        timer.start();
        std::stop_source stop;
        auto future = QtConcurrent::run([&] { return SyncPlayerController::buildTileData(b.event, stop.get_token()); });
        // The watchdog gives up at its limit and leaves the read behind: the build ends while the drive holds it.
        QTRY_VERIFY_WITH_TIMEOUT(future.isFinished(), SyncPlayerController::clipTimeout.count() + 30000);
        QVERIFY(timer.elapsed() >= SyncPlayerController::clipTimeout.count());
        QVERIFY(fs.isHanging());
        fs.release();
        QTRY_VERIFY(!fs.isHanging());
        const auto outcomes = future.result();
        QCOMPARE(outcomes.size(), size_t(1));
        QVERIFY(outcomes[0].composition);
        const auto &segments = outcomes[0].composition->track(0).segments;
        QCOMPARE(segments.size(), size_t(2));
        QCOMPARE(segments[0].timelineStart, MediaTime::zero());
        QCOMPARE(segments[1].timelineStart, MediaTime::fromSeconds(6));
        QCOMPARE(outcomes[0].contentEnd, 9.0);
    }

    void playerThatNeverGetsReadyDelaysTheFirstPlayByThreeSeconds()
    {
        const QString dir = tmp.path() + "/notready";
        KEELHOLD_FAULTY_FS(fs, mount);
        const Composition good = oneClip(place(frameClip(0, 0), dir, "0-front.mp4"), 3);
        const Composition stuck = oneClip(fs.addHeldFile(QStringLiteral("0-back.mp4"), QByteArray(64 * 1024, 'x')), 3);
        {
            TeslaEvent empty;
            SyncPlayerController c(empty);
            QTRY_VERIFY(!c.isLoadingTiles());
            c.applyTileOutcomes({Outcome{Camera::front, good, std::nullopt, 3.0, {}},
                                 Outcome{Camera::back, stuck, std::nullopt, 3.0, {}}});
            QElapsedTimer timer;
            timer.start();
            c.jumpToMoment();
            QTRY_VERIFY_WITH_TIMEOUT(c.isPlaying(), SyncPlayerController::cueWaitLimit.count() + 20000);
            QVERIFY2(timer.elapsed() >= SyncPlayerController::cueWaitLimit.count(), qPrintable(QString::number(timer.elapsed())));
            QTRY_VERIFY(c.tiles()[0].player->currentSeconds() > 0.3); // the others play on

            // Two quick cues give one start, of the second; the first would have come to its moment first.
            c.pause();
            int starts = 0;
            std::vector<double> times;
            QObject watching;
            connect(&c, &SyncPlayerController::isPlayingChanged, &watching, [&] { starts += c.isPlaying(); });
            connect(&c, &SyncPlayerController::currentTimeChanged, &watching, [&] { times.push_back(c.currentTime()); });
            c.setTriggerOffset(10.5);
            c.jumpToMoment(); // to 0.5 s
            c.setTriggerOffset(11.5);
            c.jumpToMoment(); // to 1.5 s
            QTRY_VERIFY_WITH_TIMEOUT(c.isPlaying(), SyncPlayerController::cueWaitLimit.count() + 20000);
            QTRY_VERIFY_WITH_TIMEOUT(c.currentTime() > 1.8, 20000);
            QCOMPARE(starts, 1);
            QVERIFY(std::find(times.begin(), times.end(), 1.5) != times.end());
            QVERIFY(std::find(times.begin(), times.end(), 0.5) == times.end());
        }
        fs.release();
        QTRY_VERIFY(!fs.isHanging());
    }

    // One camera decodes slower than real time; the clock waits for it, so the pictures still share one moment.
    void slowDecodingKeepsCamerasInStepAndSeeksExact()
    {
        EventBuilder b(tmp.path() + "/slow");
        b.full(fourCameras);
        SyncPlayerController c(b.event);
        QTRY_VERIFY(!c.isLoadingTiles());
        QVERIFY(attachSinksAndPause(c));
        c.tiles()[3].player->setDecodeDelay(std::chrono::milliseconds(40));
        for (const float rate : {1.0f, 4.0f}) {
            c.seek(1.5);
            QVERIFY(waitSettled(c));
            c.setRate(rate);
            c.play();
            const quint64 slowBefore = c.tiles()[3].player->presentedFrameCount();
            const double worst = worstSkewPlayingTo(c, 4.5);
            const quint64 slowFrames = c.tiles()[3].player->presentedFrameCount() - slowBefore;
            c.pause();
            QVERIFY2(worst <= 1.0 / fps + 1e-6,
                     qPrintable(QString("skew %1 frames at %2x").arg(worst * fps).arg(rate)));
            QVERIFY(slowFrames > 10); // the slow camera moved too, it wasn't left behind
        }
        c.setRate(1.0f);

        // A far seek shows the key frame at once, marked as near, then the exact one. From the first clip, so no
        // old picture is of the second.
        c.seek(0.5);
        QVERIFY(waitSettled(c));
        const auto layout = fullLayout(fourCameras);
        // Slow enough that the exact frame, 27 past the key frame, comes long after the key frame is shown.
        for (const Tile &t : c.tiles())
            t.player->setDecodeDelay(std::chrono::milliseconds(20));
        const double target = 3.0 + 27.0 / fps;
        c.seek(target);
        QTRY_VERIFY_WITH_TIMEOUT(c.isShowingApproximateFrames(), 5000);
        // Each camera comes to the key frame or the exact one, nothing between; on a busy machine, not all at once.
        QString seen;
        QString between;
        auto keyOrExact = [&] {
            seen.clear();
            bool all = true;
            for (size_t i = 0; i < c.tiles().size(); ++i) {
                const auto shown = identify(sinks[i]->videoFrame());
                seen += QLatin1Char(' ') + describe(shown);
                if (shown && shown->clip == 1 && shown->index != 0 && shown->index != 27)
                    between = seen;
                all = all && shown && shown->clip == 1;
            }
            return all;
        };
        QTRY_VERIFY2_WITH_TIMEOUT(keyOrExact(), qPrintable(seen), 10000);
        QVERIFY2(between.isEmpty(), qPrintable(between));
        QTRY_VERIFY_WITH_TIMEOUT(!c.isShowingApproximateFrames(), 20000);
        verifyAllAt(c, MediaTime::fromSeconds(target).seconds(), layout);

        // A scrub while decoding is slow: each seek goes before the exact frame is in, yet still shows a new picture.
        double last = 0;
        for (int i = 0; i < 20; ++i) {
            last = 0.2 + i * 0.43;
            std::vector<quint64> before;
            for (const Tile &t : c.tiles())
                before.push_back(t.player->presentedFrameCount());
            c.seek(last);
            auto nearTarget = [&] {
                for (size_t k = 0; k < c.tiles().size(); ++k) {
                    const Tile &tile = c.tiles()[k];
                    const auto &[starts, ids] = layout.at(int(tile.camera.value()));
                    const auto expected = expectedAt(last, int(tile.camera.value()), starts, ids);
                    const auto shown = identify(sinks[k]->videoFrame());
                    if (tile.player->presentedFrameCount() == before[k] || !expected || !shown
                        || shown->clip != expected->clip || shown->index > expected->index
                        || shown->index < expected->index / fps * fps)
                        return false;
                }
                return true;
            };
            QTRY_VERIFY_WITH_TIMEOUT(nearTarget(), 10000);
        }
        for (const Tile &t : c.tiles())
            t.player->setDecodeDelay(std::chrono::milliseconds(0));
        QTRY_VERIFY_WITH_TIMEOUT(!c.isShowingApproximateFrames(), 20000);
        verifyAllAt(c, MediaTime::fromSeconds(last).seconds(), layout);
    }

    // A minute whose header its data contradict, never probed: no picture for its stretch, the good ones around it.
    void damagedHeaderMinuteShowsThePlaceholder_data()
    {
        DamagedHeaders::addRows();
    }
    void damagedHeaderMinuteShowsThePlaceholder()
    {
        QFETCH(int, damage);
        EventBuilder b(tmp.path() + QStringLiteral("/damaged-%1").arg(damage));
        b.add(Camera::front, 0);
        // A copy: the next clip may move the event's list of clips.
        const QString damaged = b.add(Camera::front, 1, ClipHealth::unknown).url;
        b.add(Camera::front, 2);
        TeslaCamFixture::writeFile(damaged, DamagedHeaders::damaged(damage, damaged));

        SyncPlayerController c(b.event);
        QTRY_VERIFY(!c.isLoadingTiles());
        QCOMPARE(c.tiles().size(), size_t(1));
        QVERIFY(c.tiles()[0].player);
        QCOMPARE(c.duration(), 9.0);
        QCOMPARE(c.tiles()[0].gaps, (std::vector<EventTimeline::Gap>{{3, 6, SyncPlayerController::damagedReason}}));
        QVERIFY(attachSinksAndPause(c));
        const Layout layout{{int(Camera::front), {{0, 6}, {0, 2}}}};
        for (double t : {1.0, 4.0, 7.0}) {
            c.seek(t);
            verifyAllAt(c, t, layout);
        }
    }
};

QTEST_MAIN(TestSyncPlayerController)
#include "tst_syncplayercontroller.moc"
