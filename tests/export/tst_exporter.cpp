#include "export/Exporter.h"
#include "drive/DriveBoundary.h"
#include "support/DamagedHeaders.h"
#include "support/DriveBuilder.h"
#include "support/EventFootage.h"
#include "support/FaultyFs.h"
#include "support/HeldClip.h"
#include "support/MovieFacts.h"
#include "support/Mp4Boxes.h"
#include "support/ProgramRun.h"
#include "support/TeslaCamFixture.h"
#include "support/TestClips.h"
#include "support/TreeSnapshot.h"

extern "C" {
#include <libavutil/log.h>
}

#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTest>
#include <ctime>

using Exporter::ExportError;

namespace {

QByteArray extradataOf(const QString &path)
{
    const MovieFacts facts = MovieFacts::read(path, false);
    const MovieFacts::Stream *video = facts.firstOf(QStringLiteral("video"));
    return video ? video->extradata : QByteArray();
}

// A clip `minute` minutes after the event's first, whose reads hang from heldFrom on.
void addHeldClip(FaultyFs &fs, EventFootage &footage, int minute, const QByteArray &bytes, qint64 heldFrom)
{
    ClipRef stuck = footage.event.clips.front();
    stuck.url = HeldClip::add(fs, QStringLiteral("stuck.mp4"), bytes, heldFrom);
    stuck.startDate = footage.event.clips.front().startDate.addingTimeInterval(60.0 * minute);
    stuck.fileSize = bytes.size();
    footage.event.clips.push_back(stuck);
}

} // namespace

class TestExporter : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!TestClips::ffmpegAvailable())
            QSKIP("the ffmpeg tool is needed to make test clips");
        qputenv("TZ", "UTC");
        tzset();
        av_log_set_level(AV_LOG_QUIET);
    }

    // In the computer's own zone (the command line's test checks one in UTC), with nothing a file system refuses.
    void suggestedFileNameIsInTheLocalZone()
    {
        TeslaEvent event;
        event.kind = EventKind::sentry;
        event.timestamp = Date::fromQDateTime(QDateTime(QDate(2024, 6, 1), QTime(15, 5), Qt::UTC));
        qputenv("TZ", "America/Chicago");
        tzset();
        const QString name = Exporter::suggestedFileName(event, Camera::front);
        qputenv("TZ", "UTC");
        tzset();
        QCOMPARE(name, QStringLiteral("Tesla Sentry 2024-06-01 10.05 AM \u2014 Front.mp4"));
    }

    // A damaged middle minute costs its clip: the two good ones around it are copied sample for sample, nothing more.
    void damagedMinuteClosesUp_data()
    {
        DamagedHeaders::addRows();
        QTest::newRow("cut off in its data") << -1;
    }
    void damagedMinuteClosesUp()
    {
        QFETCH(int, damage);
        EventFootage footage;
        const QString source = TestClips::clip();
        footage.add(Camera::front, source, 120);
        const QByteArray cutOff = DriveBuilder::readQuietly(source).left(6000);
        footage.addBytes(Camera::front, damage < 0 ? cutOff : DamagedHeaders::damaged(damage, source), 180);
        footage.add(Camera::front, source, 240);
        const TreeSnapshot before = TreeSnapshot::take(footage.root());

        std::vector<double> progress;
        Exporter::exportFootage(Camera::front, footage.event, std::nullopt, footage.output(),
                                [&](double f) { progress.push_back(f); });

        const MovieFacts facts = MovieFacts::read(footage.output());
        QCOMPARE(facts.streams.size(), size_t(1)); // clips without sound give no sound track
        const MovieFacts::Stream &video = facts.streams[0];
        QVERIFY2(std::abs(facts.duration - 4.0) < 0.05, qPrintable(QString::number(facts.duration)));
        QCOMPARE(std::tuple(video.codec, video.packets, video.decodedFrames, video.decodeErrors, video.dtsStrictlyIncreasing),
                 std::tuple(QStringLiteral("h264"), 144, 144, 0, true));
        QVERIFY2(video.largestDtsStep < 1.5 / 36, "a gap where the damaged clip was");
        QCOMPARE(video.extradata, extradataOf(source)); // copied, not re-encoded
        QVERIFY(facts.indexBeforeData());

        QVERIFY(!progress.empty());
        QCOMPARE(progress.front(), 0.0);
        QCOMPARE(progress.back(), 1.0);
        QVERIFY(std::ranges::is_sorted(progress));
        QCOMPARE(before.differences(TreeSnapshot::take(footage.root())), QString());
    }

    // The muxer turns down a sample longer than an MP4 can say; a short table is trusted only as far as it goes.
    void damagedSampleTablesCostOnlyTheirClip_data()
    {
        QTest::addColumn<QByteArray>("box");
        QTest::addColumn<int>("field");
        QTest::addColumn<quint32>("value");
        QTest::addColumn<int>("frames");
        // Payload offsets. stts: version, entry count, then (sample count, sample delta).
        QTest::newRow("sample lasting for days") << QByteArray("stts") << 12 << quint32(0x80000200) << 144;
        // stsz: version, common size, sample count: half the pictures.
        QTest::newRow("clock past the pictures") << QByteArray("stsz") << 8 << quint32(36) << 180;
    }
    void damagedSampleTablesCostOnlyTheirClip()
    {
        QFETCH(QByteArray, box);
        QFETCH(int, field);
        QFETCH(quint32, value);
        QFETCH(int, frames);
        EventFootage footage;
        const QString source = TestClips::clip();
        footage.add(Camera::front, source, 120);
        // One flipped field, as one bad byte on a failing drive would make it.
        Mp4Boxes damaged = Mp4Boxes::read(source);
        damaged.setField32("moov/trak/mdia/minf/stbl/" + box, field, value);
        footage.addBytes(Camera::front, damaged.bytes(), 180);
        footage.add(Camera::front, source, 240);

        Exporter::exportFootage(Camera::front, footage.event, std::nullopt, footage.output(), {});

        const MovieFacts facts = MovieFacts::read(footage.output());
        const MovieFacts::Stream *video = facts.firstOf(QStringLiteral("video"));
        QVERIFY(video);
        // At most the damaged clip's first picture gets through.
        QVERIFY2(video->decodedFrames >= frames && video->decodedFrames <= frames + 1,
                 qPrintable(QString::number(video->decodedFrames)));
        QVERIFY2(std::abs(facts.duration - video->decodedFrames / 36.0) < 0.05,
                 qPrintable(QStringLiteral("%1 s, %2 frames").arg(facts.duration).arg(video->decodedFrames)));
        QVERIFY(video->dtsStrictlyIncreasing);
        // No hole where the clip was; a lone picture between reordered ones may shift its neighbours a frame or two.
        QVERIFY2(video->largestDtsStep < 3.5 / 36, qPrintable(QString::number(video->largestDtsStep * 36)));
    }

    // Clip order comes from the start dates, not from the list.
    void soundStartsWithTheFirstClipThatHasIt()
    {
        EventFootage footage;
        const TestClips::ClipOptions withSound{.audio = true};
        footage.add(Camera::front, TestClips::clip(withSound), 180);
        footage.add(Camera::front, TestClips::clip(withSound), 240);
        footage.add(Camera::front, TestClips::clip(), 120); // silent, and first by date

        Exporter::exportFootage(Camera::front, footage.event, std::nullopt, footage.output(), {});

        const MovieFacts facts = MovieFacts::read(footage.output());
        const MovieFacts::Stream *video = facts.firstOf(QStringLiteral("video"));
        const MovieFacts::Stream *audio = facts.firstOf(QStringLiteral("audio"));
        QVERIFY(video && audio);
        QVERIFY2(std::abs(audio->firstPts - 2.0) < 0.1, qPrintable(QString::number(audio->firstPts)));
        QCOMPARE(std::tuple(audio->codec, audio->dtsStrictlyIncreasing, video->dtsStrictlyIncreasing, video->decodedFrames),
                 std::tuple(QStringLiteral("aac"), true, true, 216));
        QCOMPARE(video->extradata, extradataOf(TestClips::clip()));
        QVERIFY(std::abs(facts.duration - 6.0) < 0.1);
    }

    // A clip whose media starts seconds in (an empty edit first) still goes straight behind the one before it.
    void clipStartingLateClosesUp()
    {
        EventFootage footage;
        const QString source = TestClips::clip();
        footage.add(Camera::front, source, 120);
        const QString late = footage.output(QStringLiteral("late.mp4"));
        const QStringList lateStart{QStringLiteral("-loglevel"), QStringLiteral("error"), QStringLiteral("-i"), source,
                                    QStringLiteral("-c"), QStringLiteral("copy"), QStringLiteral("-output_ts_offset"),
                                    QStringLiteral("5"), late};
        QCOMPARE(ProgramRun::run(QStringLiteral("ffmpeg"), lateStart).exitCode, 0);
        footage.add(Camera::front, late, 180);

        Exporter::exportFootage(Camera::front, footage.event, std::nullopt, footage.output(), {});

        const MovieFacts facts = MovieFacts::read(footage.output());
        const MovieFacts::Stream *video = facts.firstOf(QStringLiteral("video"));
        QVERIFY(video);
        QVERIFY2(std::abs(facts.duration - 4.0) < 0.05, qPrintable(QString::number(facts.duration)));
        QVERIFY(video->largestDtsStep < 1.5 / 36);
        QCOMPARE(video->decodedFrames, 144);
    }

    void h265JoinsByCopy()
    {
        EventFootage footage;
        const QString source = TestClips::clip({.seconds = 1.5, .codec = QStringLiteral("libx265")});
        footage.add(Camera::front, source, 120);
        footage.add(Camera::front, source, 180);

        Exporter::exportFootage(Camera::front, footage.event, std::nullopt, footage.output(), {});

        const MovieFacts facts = MovieFacts::read(footage.output());
        const MovieFacts::Stream *video = facts.firstOf(QStringLiteral("video"));
        QVERIFY(video);
        // hvc1: the tag more players accept.
        QCOMPARE(std::tuple(video->codec, video->tag, video->dtsStrictlyIncreasing, video->decodedFrames, video->decodeErrors),
                 std::tuple(QStringLiteral("hevc"), QStringLiteral("hvc1"), true, 108, 0));
        QCOMPARE(video->extradata, extradataOf(source));
        QVERIFY(std::abs(facts.duration - 3.0) < 0.05);
        QVERIFY(facts.indexBeforeData());
    }

    void reencodesWhenClipsDiffer_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("height");
        QTest::addColumn<QString>("pixelFormat");
        QTest::newRow("different sizes") << 640 << 480 << QStringLiteral("yuvj420p");
        QTest::newRow("different profile") << 320 << 240 << QStringLiteral("yuvj422p");
    }
    void reencodesWhenClipsDiffer()
    {
        QFETCH(int, width);
        QFETCH(int, height);
        QFETCH(QString, pixelFormat);
        EventFootage footage;
        const QString small = TestClips::clip({.seconds = 1.0});
        const QString other =
            TestClips::clip({.seconds = 1.0, .width = width, .height = height, .pixelFormat = pixelFormat});
        footage.add(Camera::front, small, 120);
        footage.add(Camera::front, other, 180);
        footage.add(Camera::front, small, 240);
        const TreeSnapshot before = TreeSnapshot::take(footage.root());

        std::vector<double> progress;
        QElapsedTimer timer;
        timer.start();
        Exporter::exportFootage(Camera::front, footage.event, std::nullopt, footage.output(),
                                [&](double f) { progress.push_back(f); });
        const double elapsed = timer.elapsed() / 1000.0;

        const MovieFacts facts = MovieFacts::read(footage.output());
        const MovieFacts::Stream *video = facts.firstOf(QStringLiteral("video"));
        QVERIFY(video);
        // Never scaled down.
        QCOMPARE(std::tuple(video->codec, video->width, video->height, video->decodedFrames, video->decodeErrors,
                            video->dtsStrictlyIncreasing),
                 std::tuple(QStringLiteral("h264"), width, height, 108, 0, true));
        QVERIFY(video->extradata != extradataOf(small) && video->extradata != extradataOf(other));
        QVERIFY2(std::abs(facts.duration - 3.0) < 0.05, qPrintable(QString::number(facts.duration)));
        QVERIFY(facts.indexBeforeData());
        QCOMPARE(progress.back(), 1.0);
        QVERIFY(std::ranges::is_sorted(progress));
        // Reported about ten times a second; five is the promise.
        if (elapsed > 1.0)
            QVERIFY2(double(progress.size()) >= 4.0 * elapsed,
                     qPrintable(QStringLiteral("%1 reports in %2 s").arg(progress.size()).arg(elapsed)));
        QCOMPARE(before.differences(TreeSnapshot::take(footage.root())), QString());
    }

    // A stretch with no footage in it fails (expected: no length) and leaves no file.
    void rangeIsClampedToTheFootage_data()
    {
        QTest::addColumn<double>("from");
        QTest::addColumn<double>("to");
        QTest::addColumn<double>("expected");
        QTest::newRow("beyond the end") << 1.0 << 100.0 << 3.0;
        QTest::newRow("negative start") << -5.0 << 2.5 << 2.5;
        QTest::newRow("both outside") << -5.0 << 100.0 << 4.0;
        QTest::newRow("inside, across clips") << 1.5 << 3.25 << 1.75;
        QTest::newRow("past the footage") << 10.0 << 20.0 << 0.0;
        QTest::newRow("end before start") << 1.5 << 1.0 << 0.0;
    }
    void rangeIsClampedToTheFootage()
    {
        QFETCH(double, from);
        QFETCH(double, to);
        QFETCH(double, expected);
        EventFootage footage;
        const QString source = TestClips::clip();
        footage.add(Camera::front, source, 120);
        footage.add(Camera::front, source, 180);
        const auto range = std::make_pair(from, to);
        if (expected == 0.0) {
            QCOMPARE(exportErrorOf([&] { Exporter::exportFootage(Camera::front, footage.event, range, footage.output(), {}); }),
                     std::optional(ExportError::exportFailed));
            QVERIFY(!QFile::exists(footage.output()));
            return;
        }

        Exporter::exportFootage(Camera::front, footage.event, range, footage.output(), {});

        const MovieFacts facts = MovieFacts::read(footage.output());
        const MovieFacts::Stream *video = facts.firstOf(QStringLiteral("video"));
        QVERIFY(video);
        QVERIFY2(std::abs(facts.duration - expected) < 0.05, qPrintable(QString::number(facts.duration)));
        QVERIFY(std::abs(video->decodedFrames - expected * 36) <= 1.0);
        QCOMPARE(std::pair(video->decodeErrors, video->dtsStrictlyIncreasing), std::pair(0, true));
        QCOMPARE(video->extradata, extradataOf(source));
    }

    // Stop already requested: had a clip been looked at before failing, the stop would have won.
    void noUsableClipFails()
    {
        EventFootage footage;
        const QString source = TestClips::clip({.seconds = 1.0});
        const QByteArray index = HeldClip::indexFirst(1.0, 36);
        const qint64 moov = TestClips::topLevelBoxOffset(index, "moov");
        const qint64 samples = TestClips::topLevelBoxOffset(index, "mdat");
        QVERIFY(moov >= 0 && samples > moov);
        footage.addBytes(Camera::front, QByteArray(), 120);               // zero bytes
        footage.addBytes(Camera::front, QByteArray(200000, '\x5a'), 180); // not a movie
        footage.addBytes(Camera::front, DriveBuilder::readQuietly(source).left(2000), 240); // header cut off
        footage.addMissing(Camera::front, 300);                           // gone since the scan
        QDir().mkpath(footage.folder() + QStringLiteral("/2024-06-01_15-06-00-front.mp4"));
        footage.addMissing(Camera::front, 360);                           // a folder by that name
        footage.addBytes(Camera::front, index.left(samples), 420);        // an index whose samples are gone
        footage.add(Camera::back, source, 120);                           // another camera's good clip
        const TreeSnapshot before = TreeSnapshot::take(footage.root());

        std::stop_source stop;
        stop.request_stop();
        QCOMPARE(exportErrorOf([&] {
                     Exporter::exportFootage(Camera::leftPillar, footage.event, std::nullopt, footage.output(), {},
                                             stop.get_token());
                 }),
                 std::optional(ExportError::noClipsForCamera));
        QCOMPARE(exportErrorOf([&] { Exporter::exportFootage(Camera::front, footage.event, std::nullopt, footage.output(), {}); }),
                 std::optional(ExportError::noClipsForCamera));
        QVERIFY(!QFile::exists(footage.output()));
        QCOMPARE(before.differences(TreeSnapshot::take(footage.root())), QString());
    }

    // A read left hanging mid-clip: after the read limit that clip is cut like a damaged one and the next closes up.
    // (A stop while the read is held: the command line's interruptStopsAndLeavesNothing.)
    void aReadThatNeverAnswersCostsTheRestOfItsClip()
    {
        KEELHOLD_FAULTY_FS(fs, mountPoint);
        EventFootage footage;
        const QString source = TestClips::clip({.seconds = 8.0, .width = 640, .height = 480});
        footage.add(Camera::front, source, 0);
        // Held past 512 KiB, beyond what judging it and the reader's first 256 KiB read: the hold is in its pictures.
        const QByteArray bytes = HeldClip::indexFirst(8.0, 36);
        QVERIFY(bytes.size() > 600 * 1024);
        addHeldClip(fs, footage, 1, bytes, 512 * 1024);
        footage.add(Camera::front, source, 120);
        Exporter::exportFootage(Camera::front, footage.event, std::nullopt, footage.output(), {}, {},
                                std::chrono::milliseconds(1000));
        QCOMPARE(fs.heldRequests(), 1); // still not answered: the export went on without it
        const MovieFacts facts = MovieFacts::read(footage.output());
        const MovieFacts::Stream *video = facts.firstOf(QStringLiteral("video"));
        QVERIFY(video);
        QVERIFY2(facts.duration > 16.0 && facts.duration < 23.5, qPrintable(QString::number(facts.duration)));
        QVERIFY(video->dtsStrictlyIncreasing);
        QVERIFY2(video->largestDtsStep < 1.5 / 36, "a gap where the held clip stopped");
        QCOMPARE(video->extradata, extradataOf(source));
    }

    void cancelledWhileWritingIsAnExportError_data()
    {
        QTest::addColumn<double>("stopAt");
        QTest::newRow("writing samples") << 0.0;
        QTest::newRow("moving the index") << 0.8;
    }
    void cancelledWhileWritingIsAnExportError()
    {
        QFETCH(double, stopAt);
        EventFootage footage;
        const QString source = TestClips::clip();
        for (int minute = 2; minute < 6; ++minute)
            footage.add(Camera::front, source, 60 * minute);
        const TreeSnapshot before = TreeSnapshot::take(footage.root());
        std::stop_source stop;
        double stoppedAt = -1;
        const auto error = exportErrorOf([&] {
            Exporter::exportFootage(
                Camera::front, footage.event, std::nullopt, footage.output(),
                [&](double fraction) {
                    if (fraction >= stopAt && stoppedAt < 0) {
                        stoppedAt = fraction;
                        stop.request_stop();
                    }
                },
                stop.get_token());
        });
        QCOMPARE(error, std::optional(ExportError::cancelled));
        QVERIFY(stoppedAt >= stopAt);
        QVERIFY(QFile::exists(footage.output())); // left for the caller
        QCOMPARE(before.differences(TreeSnapshot::take(footage.root())), QString());
    }

    void destinationMustBeNew()
    {
        EventFootage footage;
        footage.add(Camera::front, TestClips::clip({.seconds = 1.0}), 120);
        TeslaCamFixture::writeFile(footage.output(), "keep me");
        const auto failure = [&](const QString &output) {
            try {
                Exporter::exportFootage(Camera::front, footage.event, std::nullopt, output, {});
            } catch (const ExportError &e) {
                return std::pair(std::optional(e.errorCase()), e.message());
            }
            return std::pair(std::optional<ExportError::Case>(), QString());
        };
        const auto [which, message] = failure(footage.output());
        QCOMPARE(which, std::optional(ExportError::exportFailed));
        QVERIFY(message.startsWith(QStringLiteral("There is already a file at")));
        QCOMPARE(DriveBuilder::readQuietly(footage.output()), QByteArray("keep me"));
        QCOMPARE(failure(footage.output(QStringLiteral("no-such-folder/out.mp4"))).first,
                 std::optional(ExportError::exportFailed));

        // Even without the screen's or command line's check, the exporter never writes onto the car's drive.
        const TreeSnapshot drive = TreeSnapshot::take(footage.root());
        QCOMPARE(failure(footage.root() + QStringLiteral("/out.mp4")).second, DriveBoundary::exportRefusal);
        QCOMPARE(drive.differences(TreeSnapshot::take(footage.root())), QString());
    }

};

QTEST_GUILESS_MAIN(TestExporter)
#include "tst_exporter.moc"
