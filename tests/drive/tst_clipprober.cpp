#include "drive/ClipProber.h"
#include "base/ReadPriority.h"
#include "base/CancellationError.h"
#include "support/CliRun.h"
#include "support/DamagedHeaders.h"
#include "support/DriveBuilder.h"
#include "support/EcryptfsWriter.h"
#include "support/FaultyFs.h"
#include "support/TeslaCamFixture.h"
#include "support/TestClips.h"
#include "support/TreeSnapshot.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

extern "C" {
#include <libavutil/log.h>
}

#include <atomic>
#include <chrono>
#include <sys/stat.h>
#include <thread>

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

namespace {

double secondsSince(Clock::time_point start)
{
    return std::chrono::duration<double>(Clock::now() - start).count();
}

QByteArray randomBytes(qsizetype count, quint32 seed) { return DriveBuilder::randomBytes(count, seed); }

ClipRef clipAt(const QString &path, std::optional<qint64> size = std::nullopt)
{
    ClipRef clip;
    clip.url = path;
    clip.camera = Camera::front;
    clip.fileSize = size ? *size : QFileInfo(path).size();
    return clip;
}

TeslaEvent eventWith(std::vector<ClipRef> clips, const QString &name = QStringLiteral("2026-07-21_02-11-05"))
{
    TeslaEvent event;
    event.kind = EventKind::sentry;
    event.folderName = name;
    event.clips = std::move(clips);
    return event;
}

std::vector<ClipHealth> healthsOf(const std::vector<TeslaEvent> &events)
{
    std::vector<ClipHealth> healths;
    for (const auto &event : events)
        for (const auto &clip : event.clips)
            healths.push_back(clip.health);
    return healths;
}

} // namespace

class TestClipProber : public QObject {
    Q_OBJECT

private:
    QTemporaryDir dir_;
    QString h264_;
    QString h265_;
    int counter_ = 0;

    QString file(const QString &name) const { return dir_.filePath(name); }

    QString write(const QByteArray &bytes)
    {
        const QString path = file(QStringLiteral("clip-%1.mp4").arg(++counter_));
        TeslaCamFixture::writeFile(path, bytes);
        return path;
    }

    QString copyOf(const QString &source) { return write(DriveBuilder::readQuietly(source)); }

    QString fifo()
    {
        const QString path = file(QStringLiteral("2026-07-21_02-11-05-front-%1.mp4").arg(++counter_));
        if (::mkfifo(QFile::encodeName(path).constData(), 0644) != 0)
            qFatal("mkfifo failed");
        return path;
    }

    // On a dead drive, a clip whose reads never answer; the drive's most held reads count the probes waiting on it.
    QString heldClip(FaultyFs &drive)
    {
        const QString name = QStringLiteral("2026-07-21_02-11-05-front-%1.mp4").arg(++counter_);
        return drive.addHeldFile(name, QByteArray(128 * 1024, 'x'));
    }

    // 65,536 random bytes: no signature, nothing a demuxer can use.
    QString randomClip() { return write(randomBytes(65536, quint32(counter_ + 1))); }

    QByteArray withSignatureAt(int offset)
    {
        QByteArray bytes = randomBytes(65536, 7);
        bytes.replace(0, 4, QByteArray("\x00\x00\x00\x18", 4));
        bytes.replace(offset, 4, "ftyp");
        return bytes;
    }

    // A clip that lost its index to a power loss: everything before moov.
    QByteArray withoutMoov() const
    {
        const QByteArray bytes = DriveBuilder::readQuietly(h264_);
        const qint64 moov = TestClips::topLevelBoxOffset(bytes, "moov");
        const qint64 mdat = TestClips::topLevelBoxOffset(bytes, "mdat");
        if (moov < 0 || mdat < 0 || moov < mdat)
            qFatal("the generated clip does not end with its moov box");
        return bytes.left(moov);
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (!TestClips::ffmpegAvailable())
            QSKIP("the ffmpeg tool is needed to make real clips");
        QVERIFY(dir_.isValid());
        // The demuxer would complain about every broken file made here on purpose.
        av_log_set_level(AV_LOG_FATAL);
        h264_ = TestClips::clip();
        TestClips::ClipOptions hevc;
        hevc.codec = QStringLiteral("libx265");
        h265_ = TestClips::clip(hevc);
        QVERIFY(QFileInfo(h264_).size() >= ClipProber::minimumBelievableSize);
        QVERIFY(QFileInfo(h265_).size() >= ClipProber::minimumBelievableSize);
    }

    void sizeRulesDecideWithoutOpening_data()
    {
        QTest::addColumn<qint64>("size");
        QTest::addColumn<int>("expected");
        QTest::newRow("0 bytes") << qint64(0) << int(ClipHealth::zeroByte);
        QTest::newRow("65,535 bytes") << qint64(65535) << int(ClipHealth::truncated);
    }

    void sizeRulesDecideWithoutOpening()
    {
        QFETCH(qint64, size);
        QFETCH(int, expected);
        const QString path = write(randomBytes(size, 3));
        const ClipProber::ProbeResult result = ClipProber::probeDetailed(clipAt(path));
        QCOMPARE(int(result.health), expected);
        QVERIFY(!result.duration);

        // The scanned size alone decides: a FIFO under it would hang an opener, yet the answer comes at once.
        const QString hanging = fifo();
        const auto start = Clock::now();
        QCOMPARE(int(ClipProber::probe(clipAt(hanging, size), 5s)), expected);
        QVERIFY(secondsSince(start) < 1.0);
    }

    void filesByTheirBeginning_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("signature");
        QTest::addColumn<bool>("ecryptfs");
        QTest::addColumn<int>("expected");
        // Real clips are ok, with their length.
        QTest::newRow("H.264") << DriveBuilder::readQuietly(h264_) << true << false << int(ClipHealth::ok);
        QTest::newRow("H.265") << DriveBuilder::readQuietly(h265_) << true << false << int(ClipHealth::ok);
        QTest::newRow("65,536 random bytes") << randomBytes(65536, 1) << false << false << int(ClipHealth::unreadable);
        QTest::newRow("ftyp at 4, then garbage") << withSignatureAt(4) << true << false << int(ClipHealth::encrypted);
        QTest::newRow("ftyp at 8, then garbage") << withSignatureAt(8) << false << false << int(ClipHealth::unreadable);
        // Starts well but lost its index: the one-file rule reads it as encrypted.
        QTest::newRow("moov cut off") << withoutMoov() << true << false << int(ClipHealth::encrypted);
        // Today's encrypted clips are eCryptfs files, each known by itself; one marker bit off, and it is plain damage.
        QByteArray sealed = EcryptfsWriter::encrypt(randomBytes(512 * 1024, 7), EcryptfsWriter::fileKey(1),
                                                    EcryptfsWriter::keyBlock(1));
        QTest::newRow("eCryptfs") << sealed << false << true << int(ClipHealth::encrypted);
        sealed[15] = char(sealed[15] ^ 1);
        QTest::newRow("eCryptfs, a bit off") << sealed << false << false << int(ClipHealth::unreadable);
    }

    void filesByTheirBeginning()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, signature);
        QFETCH(bool, ecryptfs);
        QFETCH(int, expected);
        const QString path = write(bytes);
        QVERIFY(QFileInfo(path).size() >= ClipProber::minimumBelievableSize);
        QCOMPARE(std::pair(ClipProber::sniffFtyp(path), ClipProber::sniffEcryptfs(path)), std::pair(signature, ecryptfs));
        const ClipProber::ProbeResult result = ClipProber::probeDetailed(clipAt(path));
        QCOMPARE(int(result.health), expected);
        const double length = result.duration.value_or(0);
        if (expected == int(ClipHealth::ok))
            QVERIFY2(qAbs(length - 2.0) < 0.1, qPrintable(QString::number(length)));
        else
            QVERIFY(!result.duration);
        // Alone in a pass, the mass rule leaves it as it is.
        const auto events = ClipProber::probeAll({eventWith({clipAt(path)})}, 5s, 4);
        QCOMPARE(int(events[0].clips[0].health), expected);
    }

    // A header its data contradict, or data short of what it promises: truncated, not ok, as the inbox and health
    // report count it; among good clips it stays what it is.
    void headerTheDataContradictIsTruncated_data()
    {
        DamagedHeaders::addRows();
        QTest::newRow("cut to 100 kB with the header intact") << -1;
    }
    void headerTheDataContradictIsTruncated()
    {
        QFETCH(int, damage);
        QByteArray bytes;
        if (damage < 0) {
            TestClips::ClipOptions indexFirst;
            indexFirst.seconds = 6.0;
            indexFirst.width = 640;
            indexFirst.height = 480;
            indexFirst.faststart = true;
            const QByteArray whole = DriveBuilder::readQuietly(TestClips::clip(indexFirst));
            QVERIFY(whole.size() > 1024 * 1024);
            bytes = whole.left(100 * 1024);
        } else {
            bytes = DamagedHeaders::damaged(damage, h264_);
        }
        const QString path = write(bytes);
        const ClipProber::ProbeResult result = ClipProber::probeDetailed(clipAt(path));
        QCOMPARE(result.health, ClipHealth::truncated);
        QVERIFY(!result.duration);
        const auto events = ClipProber::probeAll(
            {eventWith({clipAt(copyOf(h264_)), clipAt(path), clipAt(copyOf(h264_)), clipAt(copyOf(h265_))})}, 5s, 4);
        QCOMPARE(healthsOf(events), (std::vector<ClipHealth>{ClipHealth::ok, ClipHealth::truncated, ClipHealth::ok,
                                                             ClipHealth::ok}));
    }

    void sniffNeedsTwelveBytesAndNeverBlocks()
    {
        QVERIFY(!ClipProber::sniffFtyp(write(QByteArray("\x00\x00\x00\x18" "ftypmp4", 11))));
        QVERIFY(ClipProber::sniffFtyp(write(QByteArray("\x00\x00\x00\x18" "ftypmp42", 12))));
        QVERIFY(!ClipProber::sniffFtyp(file(QStringLiteral("missing.mp4"))));
        // A scanned clip that has gone since can't be read.
        QCOMPARE(ClipProber::probe(clipAt(file(QStringLiteral("missing.mp4")), 30'000'000)), ClipHealth::unreadable);
        QVERIFY(!ClipProber::sniffFtyp(dir_.path()));
        const auto start = Clock::now();
        QVERIFY(!ClipProber::sniffFtyp(fifo()));
        QVERIFY(secondsSince(start) < 1.0);
    }

    void passGoesOnPastAHangingClip()
    {
        KEELHOLD_FAULTY_FS(drive, mount);
        std::vector<ClipRef> clips{clipAt(heldClip(drive), 30'000'000), clipAt(copyOf(h264_)), clipAt(randomClip()),
                                   clipAt(copyOf(h265_))};
        const auto start = Clock::now();
        const auto events = ClipProber::probeAll({eventWith(clips)}, 1s, 2);
        const double elapsed = secondsSince(start);
        QCOMPARE(healthsOf(events), (std::vector<ClipHealth>{ClipHealth::timedOut, ClipHealth::ok,
                                                             ClipHealth::unreadable, ClipHealth::ok}));
        QVERIFY(!events[0].clips[0].duration && events[0].clips[1].duration);
        QVERIFY2(elapsed < 3.0, qPrintable(QString::number(elapsed)));
    }

    void massRule_data()
    {
        QTest::addColumn<int>("ok");
        QTest::addColumn<int>("unreadable");
        QTest::addColumn<int>("zeroByte");
        QTest::addColumn<int>("truncated");
        QTest::addColumn<bool>("becomeEncrypted");
        QTest::newRow("5 of 10") << 5 << 5 << 0 << 0 << true;
        QTest::newRow("4 of 10") << 6 << 4 << 0 << 0 << false;
        QTest::newRow("2 of 2") << 0 << 2 << 0 << 0 << false;
        QTest::newRow("3 of 3") << 0 << 3 << 0 << 0 << true;
        QTest::newRow("4 among 6 zero-byte") << 0 << 4 << 6 << 0 << true;
        QTest::newRow("3 among 4 truncated") << 0 << 3 << 0 << 4 << false;
    }

    void massRule()
    {
        QFETCH(int, ok);
        QFETCH(int, unreadable);
        QFETCH(int, zeroByte);
        QFETCH(int, truncated);
        QFETCH(bool, becomeEncrypted);
        // Spread over two events: the rule looks at the whole drive at once.
        std::vector<ClipRef> first, second;
        for (int i = 0; i < ok; ++i)
            (i % 2 ? second : first).push_back(clipAt(copyOf(h264_)));
        for (int i = 0; i < unreadable; ++i)
            (i % 2 ? first : second).push_back(clipAt(randomClip()));
        for (int i = 0; i < zeroByte; ++i)
            first.push_back(clipAt(write({})));
        for (int i = 0; i < truncated; ++i)
            second.push_back(clipAt(write(randomBytes(1000, 5))));
        const auto events = ClipProber::probeAll(
            {eventWith(first), eventWith(second, QStringLiteral("2026-07-21_03-00-00"))}, 5s, 4);

        const auto healths = healthsOf(events);
        const auto count = [&](ClipHealth health) { return int(std::count(healths.begin(), healths.end(), health)); };
        QCOMPARE(QList<int>({count(ClipHealth::ok), count(ClipHealth::zeroByte), count(ClipHealth::truncated),
                             count(ClipHealth::encrypted), count(ClipHealth::unreadable)}),
                 QList<int>({ok, zeroByte, truncated, becomeEncrypted ? unreadable : 0, becomeEncrypted ? 0 : unreadable}));
    }

    void writeBackKeepsEarlierDurations()
    {
        ClipRef refused = clipAt(randomClip());
        refused.health = ClipHealth::ok; // as an earlier probe found it
        refused.duration = 59.5;
        ClipRef playable = clipAt(copyOf(h264_));
        playable.health = ClipHealth::unreadable;
        playable.duration = 99.0;
        ClipRef empty = clipAt(write({}));
        empty.duration = 12.0;
        const std::vector<TeslaEvent> input{eventWith({refused, playable, empty})};

        const auto events = ClipProber::probeAll(input, 5s, 4);
        const std::optional<double> measured = events[0].clips[1].duration;
        QVERIFY(measured && qAbs(*measured - 2.0) < 0.1);
        // Health written back; nothing else about the events changes.
        auto expected = input;
        expected[0].clips[0].health = ClipHealth::unreadable;
        expected[0].clips[1].health = ClipHealth::ok;
        expected[0].clips[1].duration = measured;
        expected[0].clips[2].health = ClipHealth::zeroByte;
        QCOMPARE(events, expected);
    }

    void progressCountsFromTheCallingThreadOnlyForProbes()
    {
        std::vector<ClipRef> clips;
        for (int i = 0; i < 7; ++i)
            clips.push_back(clipAt(i % 2 ? randomClip() : copyOf(h264_)));
        std::vector<std::pair<int, int>> calls;
        bool sameThread = true;
        const auto caller = std::this_thread::get_id();
        const auto count = [&](int completed, int total) {
            sameThread = sameThread && std::this_thread::get_id() == caller;
            calls.emplace_back(completed, total);
        };
        ClipProber::probeAll({eventWith(clips)}, 5s, 3, count);
        QVERIFY(sameThread);
        QCOMPARE(calls, (std::vector<std::pair<int, int>>{{1, 7}, {2, 7}, {3, 7}, {4, 7}, {5, 7}, {6, 7}, {7, 7}}));

        // No probes allowed, or nothing to probe: no calls, nothing changed.
        calls.clear();
        const std::vector<TeslaEvent> input{eventWith({clips[0], clips[1]})};
        QCOMPARE(ClipProber::probeAll(input, 5s, 0, count), input);
        const std::vector<TeslaEvent> empty{eventWith({}), eventWith({}, QStringLiteral("2026-07-21_03-00-00"))};
        QCOMPARE(ClipProber::probeAll(empty, 5s, 4, count), empty);
        QCOMPARE(ClipProber::probeAll({}, 5s, 4, count), std::vector<TeslaEvent>{});
        QVERIFY(calls.empty());
    }

    // The pass waits between clips while an event opens and goes on after; waiting has a limit, and hears stop.
    void passYieldsToAnOpeningEvent()
    {
        std::vector<ClipRef> clips;
        for (int i = 0; i < 3; ++i)
            clips.push_back(clipAt(copyOf(h264_)));
        std::optional<ReadPriority::Urgent> opening(std::in_place);
        std::atomic<int> completed{0};
        std::vector<TeslaEvent> events;
        std::jthread pass([&] {
            events = ClipProber::probeAll({eventWith(clips)}, 5s, 2, [&](int done, int) { completed = done; });
        });
        QTRY_COMPARE(ReadPriority::yieldingCount(), 2);
        QCOMPARE(completed.load(), 0);
        opening.reset();
        pass.join();
        QCOMPARE(healthsOf(events), std::vector<ClipHealth>(3, ClipHealth::ok));

        opening.emplace();
        QElapsedTimer waited;
        waited.start();
        ReadPriority::yieldToUrgent({}, 50ms);
        QVERIFY(waited.elapsed() >= 50);
        std::stop_source stop;
        stop.request_stop();
        waited.restart();
        ReadPriority::yieldToUrgent(stop.get_token(), 60s);
        QVERIFY(waited.elapsed() < 30000);
    }

    void capBoundsProbesInFlight()
    {
        KEELHOLD_FAULTY_FS(drive, mount);
        std::vector<ClipRef> clips;
        for (int i = 0; i < 4; ++i)
            clips.push_back(clipAt(heldClip(drive), 30'000'000));
        // Two at a time: the second pair begins only once the first was given up on, its reads left behind.
        std::vector<TeslaEvent> events;
        std::jthread pass([&] { events = ClipProber::probeAll({eventWith(clips)}, 1s, 2); });
        QVERIFY(drive.waitUntilHeld(2));
        QCOMPARE(drive.heldRequests(), 2);
        pass.join();
        QCOMPARE(healthsOf(events), std::vector<ClipHealth>(4, ClipHealth::timedOut));
        QCOMPARE(drive.mostHeldRequests(), 4);
    }

    void stopRequestEndsThePass()
    {
        KEELHOLD_FAULTY_FS(drive, mount);
        std::vector<ClipRef> clips;
        for (int i = 0; i < 6; ++i)
            clips.push_back(clipAt(heldClip(drive), 30'000'000));
        // A cap above the count starts all six; reads never answer: the pass ends soon after stop, not per clip's 10 s.
        std::stop_source stop;
        std::atomic<bool> allHeld{false};
        std::jthread stopper([&] {
            allHeld = drive.waitUntilHeld(6, 30s);
            stop.request_stop();
        });
        int progressCalls = 0;
        const auto start = Clock::now();
        QVERIFY_THROWS_EXCEPTION(CancellationError,
                                 ClipProber::probeAll(
                                     {eventWith(clips)}, 10s, 10, [&](int, int) { ++progressCalls; },
                                     stop.get_token()));
        QVERIFY(allHeld.load());
        QVERIFY2(secondsSince(start) < 3.0, qPrintable(QString::number(secondsSince(start))));
        QCOMPARE(progressCalls, 0);

        // Asked to stop before it starts, it starts nothing.
        QVERIFY_THROWS_EXCEPTION(CancellationError,
                                 ClipProber::probeAll({eventWith({clipAt(copyOf(h264_))})}, 5s, 4, {},
                                                      stop.get_token()));
    }

    // Every clip's health after the scan, the drive left as it was, access times too (each open asks O_NOATIME).
    void commandLineProbesAfterTheScan()
    {
        QTemporaryDir drive;
        TeslaCamFixture fixture(drive.filePath(QStringLiteral("TeslaCam")));
        const QString event = fixture.addEvent(QStringLiteral("SentryClips"), QStringLiteral("2026-07-21_02-11-05"),
                                               TeslaCamFixture::eventJson(QStringLiteral("2026-07-21T02:11:05"),
                                                                          QStringLiteral("sentry_aware_object_detection")));
        fixture.addClip(event, QStringLiteral("2026-07-21_02-10-05"), QStringLiteral("front"), 0, h264_);
        fixture.addClip(event, QStringLiteral("2026-07-21_02-10-05"), QStringLiteral("back"), 0, h265_);
        TeslaCamFixture::writeFile(event + QStringLiteral("/2026-07-21_02-10-05-left_repeater.mp4"),
                                   withSignatureAt(4));
        TeslaCamFixture::writeFile(event + QStringLiteral("/2026-07-21_02-10-05-right_repeater.mp4"), {});
        fixture.addRecentClip(QStringLiteral("2026-07-21_01-00-00"), QStringLiteral("front"), 0, h265_);
        TeslaCamFixture::writeFile(fixture.path(QStringLiteral("RecentClips/2026-07-21_01-00-00-back.mp4")),
                                   randomBytes(200000, 11));
        const TreeSnapshot before = TreeSnapshot::take(drive.path());

        const CliRun::Result r = CliRun::run({QStringLiteral("scan"), fixture.root(), QStringLiteral("--probe"),
                                              QStringLiteral("--timeout"), QStringLiteral("5")});
        QCOMPARE(r.exitCode, 0);
        QStringList healths;
        double duration = 0;
        for (const auto &e : QJsonDocument::fromJson(r.out).object().value(QStringLiteral("events")).toArray())
            for (const auto &value : e.toObject().value(QStringLiteral("clips")).toArray()) {
                const QJsonObject clip = value.toObject();
                const QString name = QFileInfo(clip.value(QStringLiteral("url")).toString()).fileName();
                healths << name + QLatin1Char(' ') + clip.value(QStringLiteral("health")).toString();
                if (name == QLatin1String("2026-07-21_01-00-00-front.mp4"))
                    duration = clip.value(QStringLiteral("duration")).toDouble();
            }
        healths.sort();
        QCOMPARE(healths, (QStringList{"2026-07-21_01-00-00-back.mp4 unreadable", "2026-07-21_01-00-00-front.mp4 ok",
                                       "2026-07-21_02-10-05-back.mp4 ok", "2026-07-21_02-10-05-front.mp4 ok",
                                       "2026-07-21_02-10-05-left_repeater.mp4 encrypted",
                                       "2026-07-21_02-10-05-right_repeater.mp4 zeroByte"}));
        QVERIFY(qAbs(duration - 2.0) < 0.1);
        const QString changes = before.differences(TreeSnapshot::take(drive.path()), true);
        QVERIFY2(changes.isEmpty(), qPrintable(changes));

        // A limit that isn't a positive number of seconds, or one without --probe, is a usage error.
        for (const QStringList &limit : {QStringList{"--probe", "--timeout", "soon"}, QStringList{"--probe", "--timeout", "0"},
                                         QStringList{"--timeout", "5"}})
            QCOMPARE(CliRun::run(QStringList{QStringLiteral("scan"), fixture.root()} + limit).exitCode, 64);
    }
};

QTEST_GUILESS_MAIN(TestClipProber)
#include "tst_clipprober.moc"
