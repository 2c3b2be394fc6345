#include "PlaybackClips.h"

#include "playback/HostClock.h"
#include "playback/MediaSource.h"
#include "playback/TrackPlayer.h"
#include "support/FaultyFs.h"

#include <QTemporaryDir>
#include <QVideoSink>
#include <QtTest>

extern "C" {
#include <libavutil/hwcontext.h>
}

using namespace PlaybackClips;

namespace {
MediaTime s(double seconds)
{
    return MediaTime::fromSeconds(seconds);
}

// Waits for one seek to land; true when it did.
bool seekAndWait(TrackPlayer &player, double t)
{
    std::optional<bool> finished;
    player.seek(s(t), [&](bool f) { finished = f; });
    return QTest::qWaitFor([&] { return finished.has_value(); }, 5000) && *finished;
}
} // namespace

class TestTrackPlayer : public QObject {
    Q_OBJECT

    QTemporaryDir dir;
    // clip 0 at 0 s, clip 1 at 3 s, nothing from 6 to 9 s, clip 2 at 9 s.
    Composition threeClips;
    std::vector<double> starts{0, 3, 9};
    std::vector<int> clipIds{0, 1, 2};

private Q_SLOTS:
    void initTestCase()
    {
        if (!TestClips::ffmpegAvailable())
            QSKIP("ffmpeg is needed to make test clips");
        threeClips.addMutableTrack();
        for (size_t k = 0; k < starts.size(); ++k) {
            const QString path = place(frameClip(0, clipIds[k]), dir.path(), QString("c%1.mp4").arg(k));
            QVERIFY(threeClips.track(0).insertTimeRange(path, MediaTime::zero(), s(clipSeconds), s(starts[k])));
        }
    }

    void seeksShowTheFrameAtOrBeforeTheTargetAndStepOn()
    {
        TrackPlayer player(threeClips);
        QVideoSink sink;
        player.setVideoSink(&sink);
        QTRY_COMPARE(player.status(), TrackPlayer::ReadyToPlay);
        QCOMPARE(player.trackDuration(), s(12));

        std::vector<double> targets{0,    1.0 / 36, 0.5,  2.99, 3.0,  3.0 + 1.0 / 600, 5.99, 6.0, 7.5,
                                    8.99, 9.0,      10.0, 1.0,  11.99, 20.0, 2.0,      0.01};
        srand(7);
        for (int i = 0; i < 12; ++i)
            targets.push_back(MediaTime::fromTicks(rand() % (12 * 600)).seconds());
        for (double t : targets) {
            t = s(t).seconds(); // what a seek really asks for
            QVERIFY2(seekAndWait(player, t), qPrintable(QString::number(t)));
            const auto expected = expectedAt(std::min(t, 11.999), 0, starts, clipIds);
            const auto shown = identify(sink.videoFrame());
            QVERIFY2(shown == expected,
                     qPrintable(QString("at %1: shown %2, expected %3").arg(t).arg(describe(shown), describe(expected))));
            if (!expected) {
                QVERIFY2(!player.hasPicture(), qPrintable(QString("picture in the gap at %1").arg(t)));
                continue;
            }
            QVERIFY(*player.presentedTime() <= t + 1e-6);
            QCOMPARE(player.currentSeconds(), std::max(0.0, t));
        }

        // Short forward seeks go on from frames already decoded instead of from the keyframe, and stay exact.
        const auto verifyAt = [&](double t) {
            QVERIFY2(seekAndWait(player, t), qPrintable(QString::number(t)));
            const auto expected = expectedAt(t, 0, starts, clipIds);
            QVERIFY2(expected && identify(sink.videoFrame()) == expected, qPrintable(QString("wrong frame at %1").arg(t)));
        };

        verifyAt(s(0.5).seconds());
        const quint64 before = player.decodedFrameCount();
        int steps = 0;
        // Frame by frame across the keyframe at 1 s and into the next clip.
        for (double t = 0.5; t < 3.3; t += 1.0 / fps, ++steps) {
            QTRY_VERIFY(player.nextFrameTime().has_value());
            verifyAt(MediaTime::fromTicks(qint64(std::ceil(*player.nextFrameTime() * 600 - 1e-6))).seconds());
        }
        // Going back to the keyframe would decode half a second per step; a busy machine may cost a few such seeks.
        const quint64 decoded = player.decodedFrameCount() - before;
        QVERIFY2(decoded < quint64(steps) * 3, qPrintable(QString("%1 frames for %2 steps").arg(decoded).arg(steps)));

        // A longer jump ahead within the same second, then back: still exact.
        verifyAt(s(4.05).seconds());
        QTRY_VERIFY(player.nextFrameTime().has_value());
        verifyAt(s(4.9).seconds());
        verifyAt(s(4.2).seconds());
        verifyAt(s(0.03).seconds());
        // Several seeks before the worker catches up.
        player.seek(s(1.5));
        player.seek(s(1.52));
        verifyAt(s(1.55).seconds());
    }

    // Exact frames on a device that takes the stream, and in software where the device is missing or fails.
    void hardwareDecodingShowsTheSameFramesOrFallsBack_data()
    {
        QTest::addColumn<int>("device");
        QTest::newRow("VAAPI") << int(AV_HWDEVICE_TYPE_VAAPI);
        QTest::newRow("a device this machine lacks") << int(AV_HWDEVICE_TYPE_CUDA);
    }
    void hardwareDecodingShowsTheSameFramesOrFallsBack()
    {
        QFETCH(int, device);
        MediaSource::setHardwareDeviceType(device);
        const auto restore = qScopeGuard([] {
            MediaSource::setHardwareDeviceType(AV_HWDEVICE_TYPE_VAAPI);
            MediaSource::setHardwareDecoding(true);
        });
        for (const bool hardware : {true, false}) {
            MediaSource::setHardwareDecoding(hardware);
            TrackPlayer player(threeClips);
            QVideoSink sink;
            player.setVideoSink(&sink);
            QTRY_COMPARE(player.status(), TrackPlayer::ReadyToPlay);
            for (const double t : {0.5, 4.0 + 5.0 / 36, 10.0}) {
                QVERIFY(seekAndWait(player, s(t).seconds()));
                QCOMPARE(identify(sink.videoFrame()), expectedAt(s(t).seconds(), 0, starts, clipIds));
            }
        }
    }

    // H.265, which some older cars wrote, plays too.
    void playsTheClipsColoursAndCodecs()
    {
        const std::vector<std::tuple<QString, QString, QVideoFrameFormat::ColorRange>> clips{
            {QStringLiteral("libx264"), QStringLiteral("yuvj420p"), QVideoFrameFormat::ColorRange_Full},
            {QStringLiteral("libx264"), QStringLiteral("yuv420p"), QVideoFrameFormat::ColorRange_Video},
            {QStringLiteral("libx265"), QStringLiteral("yuv420p"), QVideoFrameFormat::ColorRange_Video}};
        for (const auto &[codec, format, range] : clips) {
            const Composition c = oneClip(TestClips::clip({.seconds = 1, .codec = codec, .pixelFormat = format}), 1);
            TrackPlayer player(c);
            QTRY_VERIFY(player.hasPicture());
            const auto f = player.currentFrame().surfaceFormat();
            QCOMPARE(std::pair(f.colorRange(), f.pixelFormat()), std::pair(range, QVideoFrameFormat::Format_YUV420P));
            QVERIFY(f.colorSpace() != QVideoFrameFormat::ColorSpace_Undefined);
            QVERIFY(seekAndWait(player, 0.5));
            QVERIFY(player.hasPicture());
            QVERIFY(*player.presentedTime() <= 0.5 && *player.presentedTime() > 0.5 - 2.0 / fps);
        }
    }

    void playsAcrossClipBoundariesAndGaps()
    {
        TrackPlayer player(threeClips);
        QVideoSink sink;
        player.setVideoSink(&sink);
        QTRY_COMPARE(player.status(), TrackPlayer::ReadyToPlay);
        QVERIFY(seekAndWait(player, 2.5));
        player.setRate(1.0f, s(2.5), HostClock::now() + 0.05);
        QElapsedTimer timer;
        timer.start();
        double lastTime = -1;
        bool sawClip1 = false;
        int late = 0;
        int samples = 0;
        while (timer.elapsed() < 1200) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
            const auto shown = identify(sink.videoFrame());
            QVERIFY(shown);
            const double time = starts[size_t(shown->clip)] + shown->index / double(fps);
            QVERIFY2(time >= lastTime - 1e-9, "frames went backwards");
            QVERIFY2(time <= player.currentSeconds() + 1e-6, "a frame was shown before its time");
            ++samples;
            if (player.currentSeconds() - time > 2.0 / fps)
                ++late;
            lastTime = time;
            sawClip1 = sawClip1 || shown->clip == 1;
        }
        QVERIFY(sawClip1);
        QVERIFY2(late <= samples / 10, qPrintable(QString("%1 of %2 samples late").arg(late).arg(samples)));

        // Into the empty stretch: no picture, then the next clip.
        QVERIFY(seekAndWait(player, 5.8));
        player.setRate(2.0f, s(5.8), HostClock::now());
        QTRY_VERIFY_WITH_TIMEOUT(player.currentSeconds() > 6.3, 2000);
        QCoreApplication::processEvents();
        QVERIFY(!player.hasPicture());
        QVERIFY(!sink.videoFrame().isValid());
        QTRY_VERIFY_WITH_TIMEOUT(player.hasPicture() && identify(sink.videoFrame())->clip == 2, 3000);
        // Playing past the end stops on the last frame.
        player.setRate(4.0f, s(11.5), HostClock::now());
        QTRY_COMPARE_WITH_TIMEOUT(player.currentSeconds(), 12.0, 2000);
        QTRY_COMPARE(identify(sink.videoFrame())->index, int(clipSeconds * fps) - 1);
        player.pause();
        QCOMPARE(player.rate(), 0.0f);
    }

    void missingFileShowsNoPictureAndNeverHangs()
    {
        const Composition c = oneClip(dir.path() + "/gone.mp4", 3);
        TrackPlayer player(c);
        QTRY_COMPARE(player.status(), TrackPlayer::ReadyToPlay);
        QVERIFY(seekAndWait(player, 1.0));
        QVERIFY(!player.hasPicture());
    }

    // Let go as when the event changes, it goes at once: the window's thread never waits for its stuck worker.
    void playerOnAHangingFile()
    {
        KEELHOLD_FAULTY_FS(fs, mountPoint);
        const Composition c = oneClip(fs.addHeldFile(QStringLiteral("hang.mp4"), QByteArray(64 * 1024, 'x')), 3);
        TrackPlayer player(c);
        auto *stopped = new TrackPlayer(c);
        QVERIFY(fs.waitUntilHeld(2));
        QCOMPARE(player.status(), TrackPlayer::Unknown);
        QCOMPARE(stopped->status(), TrackPlayer::Unknown); // stuck opening
        std::optional<bool> finished;
        player.seek(s(1), [&](bool f) { finished = f; });
        QCOMPARE(finished, std::optional(false)); // a player that is not ready answers at once, unfinished
        stopped->requestStop();
        QElapsedTimer timer;
        timer.start();
        delete stopped;
        QVERIFY2(timer.elapsed() < 200, qPrintable(QString::number(timer.elapsed())));
        // The drive answers late.
        fs.release();
        QTRY_COMPARE(player.status(), TrackPlayer::ReadyToPlay);
        QVERIFY(!player.hasPicture());
        QTRY_VERIFY(!fs.isHanging());
    }
};

QTEST_MAIN(TestTrackPlayer)
#include "tst_trackplayer.moc"
