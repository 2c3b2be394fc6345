#include "base/AsyncRun.h"
#include "base/EnginePools.h"
#include "drive/TeslaCamParser.h"
#include "engine/LiveEngine.h"
#include "engine/ScanCache.h"
#include "playback/SyncPlayerController.h"
#include "state/AppState.h"
#include "support/DamagedHeaders.h"
#include "support/FaultyFs.h"
#include "support/IsolatedHome.h"
#include "support/TeslaCamFixture.h"
#include "support/TestClips.h"

#include <QDir>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

// The rules of the application state that compute something, each on a real
// engine over real folders: which format clears which failure, the name a
// failed root leaves, the player paused before copying, the scan cache key.
namespace {

// The drive's format told by the test: the one way to show the state any format without mounting it.
class FormatEngine final : public LiveEngine {
public:
    // No cache but what the test sets in `cached`; nothing is stored.
    FormatEngine() = default;
    // Given: a real file of the test's own, outliving the engine as it outlives a run of the program.
    explicit FormatEngine(ScanCache &cache) : LiveEngine(cache), givenCache_(true) {}

    std::optional<VolumeFormat> freshFormat;
    std::optional<DriveScan> cached;

    QFuture<DriveScan> scanDrive(const QString &root, ScanProgressCallback progress) override
    {
        const std::optional<VolumeFormat> format = freshFormat;
        QFuture<DriveScan> scanning = LiveEngine::scanDrive(root, std::move(progress));
        return AsyncRun::onPool(EnginePools::quick(), [scanning, format]() mutable {
            DriveScan scan = scanning.result();
            if (format)
                scan.format = *format;
            return scan;
        });
    }
    QFuture<std::optional<DriveScan>> cachedScan(const QString &key) override
    {
        return givenCache_ ? LiveEngine::cachedScan(key) : QtFuture::makeReadyFuture(cached);
    }
    QFuture<void> storeScanInCache(const DriveScan &scan, const QString &key) override
    {
        return givenCache_ ? LiveEngine::storeScanInCache(scan, key) : QtFuture::makeReadyFuture();
    }
    // Held probes answer only when the test says, in the order it says.
    bool holdProbes = false;
    std::vector<std::pair<std::shared_ptr<QPromise<std::vector<TeslaEvent>>>, std::vector<TeslaEvent>>> heldProbes;

    QFuture<std::vector<TeslaEvent>> probeAll(const std::vector<TeslaEvent> &events) override
    {
        if (!holdProbes)
            return LiveEngine::probeAll(events);
        auto promise = std::make_shared<QPromise<std::vector<TeslaEvent>>>();
        promise->start();
        heldProbes.emplace_back(promise, events);
        return promise->future();
    }
    // Back once a watcher made after the state's own has heard the answer, so the state has heard it too.
    bool answerHeldProbe(size_t i)
    {
        auto &[promise, events] = heldProbes.at(i);
        QFutureWatcher<std::vector<TeslaEvent>> after;
        QSignalSpy heard(&after, &QFutureWatcherBase::finished);
        after.setFuture(promise->future());
        promise->addResult(LiveEngine::probeAll(events).result());
        promise->finish();
        return heard.wait(60000);
    }

private:
    const bool givenCache_ = false;
};

// As the parser reads a file-system type; "unknown" is no type at all.
VolumeFormat formatOf(const QString &type)
{
    if (type == QLatin1String("unknown"))
        return VolumeFormat(VolumeFormat::unknown);
    return TeslaCamParser::volumeFormat(type);
}

QString driveWithOneEvent(const QTemporaryDir &tmp, const QString &name, const QString &clipSource = QString())
{
    TeslaCamFixture drive(tmp.filePath(name + QStringLiteral("/TeslaCam")));
    const QString folder = drive.addEvent(
        QStringLiteral("SentryClips"), QStringLiteral("2024-06-01_10-00-00"),
        TeslaCamFixture::eventJson(QStringLiteral("2024-06-01T10:00:00"), QStringLiteral("user_interaction_honk")));
    drive.addClip(folder, QStringLiteral("2024-06-01_09-59-00"), QStringLiteral("front"), 64 * 1024, clipSource);
    return drive.root();
}

bool settled(AppState &state)
{
    return QTest::qWaitFor([&] { return !state.isScanning() && !state.isRevalidatingScan(); }, 60000);
}

// Each event's damage mark, "id: count", in a fixed order.
QStringList damageMarks(const DriveScan &scan)
{
    QStringList marks;
    for (const TeslaEvent &e : scan.events)
        marks << e.id() + QStringLiteral(": ") + QString::number(e.corruptClipCount());
    marks.sort();
    return marks;
}

// A scan with no events, of a drive in that format.
DriveScan emptyScan(const VolumeFormat &format)
{
    DriveScan s;
    s.format = format;
    return s;
}

} // namespace

class AppStateRulesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QSettings(QStringLiteral("Keelhold"), QStringLiteral("Keelhold")).clear(); }

    // A fresh scan's format and the failure it leaves; after a cached NTFS scan only a car's format clears it.
    void formatOfAFreshScan_data()
    {
        QTest::addColumn<bool>("cachedNtfs");
        QTest::addColumn<QString>("format");
        QTest::addColumn<bool>("unreadable");
        QTest::newRow("exFAT") << false << QStringLiteral("exfat") << false;
        QTest::newRow("FAT32") << false << QStringLiteral("fat32") << false;
        QTest::newRow("APFS") << false << QStringLiteral("apfs") << false;
        QTest::newRow("ext4, the computer's own") << false << QStringLiteral("ext4") << false;
        QTest::newRow("tmpfs, a sandbox's own") << false << QStringLiteral("tmpfs") << false;
        QTest::newRow("NTFS") << false << QStringLiteral("ntfs") << true;
        QTest::newRow("unknown") << false << QStringLiteral("unknown") << true;
        QTest::newRow("cached NTFS, exFAT clears") << true << QStringLiteral("exfat") << false;
        QTest::newRow("cached NTFS, APFS keeps it") << true << QStringLiteral("apfs") << true;
        QTest::newRow("cached NTFS, ext4 keeps it") << true << QStringLiteral("ext4") << true;
        QTest::newRow("cached NTFS, NTFS sets its own") << true << QStringLiteral("ntfs") << true;
    }

    void formatOfAFreshScan()
    {
        QFETCH(bool, cachedNtfs);
        QFETCH(QString, format);
        QFETCH(bool, unreadable);
        QTemporaryDir tmp;
        FormatEngine engine;
        const VolumeFormat ntfs = formatOf(QStringLiteral("ntfs"));
        if (cachedNtfs)
            engine.cached = emptyScan(ntfs);
        engine.freshFormat = formatOf(format);
        AppState state(engine);
        QSignalSpy failures(&state, &AppState::currentFailureChanged);
        state.beginScan(driveWithOneEvent(tmp, QStringLiteral("D")));
        QVERIFY(settled(state));
        QCOMPARE(state.driveScan()->events.size(), size_t(1));
        if (cachedNtfs) // the cached answer set it on the way
            QVERIFY(failures.count() >= 1);
        if (!unreadable)
            QVERIFY(!state.currentFailure());
        else if (cachedNtfs && format != QLatin1String("ntfs"))
            QCOMPARE(state.currentFailure()->kind(), DriveFailure::UnreadableFormat);
        else
            QCOMPARE(state.currentFailure(), DriveFailure::unreadableFormat(*engine.freshFormat));
        // Health follows the scan on every path.
        QTRY_VERIFY(state.healthReport());
    }

    // Bundled footage may lie on any disk (a chroot's root is not even a mount): sample mode never judges its format.
    void sampleModeNeverJudgesTheDisk()
    {
        QTemporaryDir tmp;
        FormatEngine engine;
        engine.freshFormat = formatOf(QStringLiteral("unknown"));
        qputenv(AppState::sampleFootageEnv, driveWithOneEvent(tmp, QStringLiteral("S")).toLocal8Bit());
        AppState state(engine);
        state.loadSampleFootage();
        QTRY_VERIFY(state.isSampleMode() && !state.isScanning() && state.driveScan());
        QTRY_VERIFY(state.healthReport());
        QVERIFY(!state.currentFailure());
        qunsetenv(AppState::sampleFootageEnv);
    }

    void emptinessAndEncryptionAfterAReadableFormat()
    {
        QTemporaryDir tmp;
        FormatEngine engine;
        AppState state(engine);

        // The format wins over emptiness.
        TeslaCamFixture empty(tmp.filePath(QStringLiteral("E/TeslaCam")));
        TeslaCamFixture::makeDir(empty.path(QStringLiteral("EncryptedClips")));
        engine.freshFormat = formatOf(QStringLiteral("ntfs"));
        state.beginScan(empty.root());
        QVERIFY(settled(state));
        QCOMPARE(state.currentFailure()->kind(), DriveFailure::UnreadableFormat);
        engine.freshFormat = VolumeFormat(VolumeFormat::exFAT);
        state.beginScan(empty.root());
        QVERIFY(settled(state));
        QCOMPARE(state.currentFailure(), DriveFailure::encryptedClipsOnly());

        // A cached empty scan shows emptyDrive; a revalidation with events clears it.
        engine.cached = emptyScan(VolumeFormat(VolumeFormat::exFAT));
        QSignalSpy failures(&state, &AppState::currentFailureChanged);
        state.beginScan(driveWithOneEvent(tmp, QStringLiteral("F")));
        QVERIFY(settled(state));
        QVERIFY(!state.currentFailure());
        // Cleared at the start, emptyDrive from the cache, cleared by the fresh scan.
        QCOMPARE(failures.count(), 3);

        // A readable format leaves other failures alone: a stale bookmark written while the scan ran stays.
        engine.cached.reset();
        state.beginScan(driveWithOneEvent(tmp, QStringLiteral("G")));
        state.resolveVaultBookmark(); // nothing stored: no failure
        QVERIFY(!state.currentFailure());
        // A Vault folder saved once and gone since: the failure asks for it.
        const QString gone = tmp.filePath(QStringLiteral("gone-vault"));
        QVERIFY(QDir().mkpath(gone));
        engine.saveBookmark(gone, BookmarkKey::vaultFolder);
        QVERIFY(QDir(gone).removeRecursively());
        state.resolveVaultBookmark();
        QCOMPARE(state.currentFailure(), DriveFailure::staleBookmark(BookmarkKey::vaultFolder));
        QVERIFY(settled(state));
        QCOMPARE(state.currentFailure(), DriveFailure::staleBookmark(BookmarkKey::vaultFolder));
    }

    // A TeslaCam root names "TeslaCam" on the failure screen; another folder its own name, trailing slash or not.
    void failedRootLeavesItsOwnLastNameAsTheVolumeName()
    {
        QTemporaryDir tmp;
        LiveEngine engine;
        AppState state(engine);
        QDir().mkpath(tmp.filePath(QStringLiteral("STICK")));
        state.beginScan(tmp.filePath(QStringLiteral("STICK/Footage/")));
        QVERIFY(settled(state));
        QCOMPARE(state.currentFailure(), DriveFailure::noTeslaCamFolder(QStringLiteral("Footage")));
        QCOMPARE(state.currentFailure()->volumeNameForQml(), QStringLiteral("Footage"));
    }

    void playerPausedBeforeKeepAndBeforeVaultRemoval()
    {
        if (!TestClips::ffmpegAvailable())
            QSKIP("Needs the ffmpeg tool to make real clips.");
        TestClips::ClipOptions options;
        options.seconds = 4;
        const QString clip = TestClips::clip(options);
        QTemporaryDir tmp;
        LiveEngine engine;
        AppState state(engine);
        state.beginScan(driveWithOneEvent(tmp, QStringLiteral("D"), clip));
        QVERIFY(settled(state));
        const TeslaEvent event = state.driveScan()->events.front();

        SyncPlayerController player(event);
        state.setActivePlayerController(&player);
        QTRY_VERIFY_WITH_TIMEOUT(player.isPlaying(), 10000);

        // No Vault yet: still paused (the folder it asks for is the window's test).
        state.keep({event});
        QVERIFY(!player.isPlaying());
        state.declineVaultFolder();

        const QString vault = tmp.filePath(QStringLiteral("vault"));
        QDir().mkpath(vault);
        state.setVaultURL(vault);
        player.play();
        QVERIFY(player.isPlaying());
        state.keep({event});
        QVERIFY(!player.isPlaying()); // before the copy starts reading
        QVERIFY(state.isArchiving());
        QTRY_VERIFY_WITH_TIMEOUT(state.showArchiveReport(), 20000);
        QTRY_COMPARE(state.vaultEvents().size(), size_t(1));

        player.play();
        QVERIFY(player.isPlaying());
        state.setSelectedVaultEventID(event.id());
        // Handed an element of the state's own Vault list, as the screens do.
        state.removeFromVault(state.vaultEvents().front());
        QCOMPARE(std::tuple(state.vaultEvents().size(), player.isPlaying(), state.selectedVaultEventID().has_value(),
                            state.triageState(event)),
                 std::tuple(size_t(0), false, false, TriageState(TriageState::reviewed)));

        // A player that has gone is simply not there.
        state.setActivePlayerController(nullptr);
        state.keep({event});
        QTRY_VERIFY_WITH_TIMEOUT(!state.isArchiving(), 20000);
    }

    void removalWithoutVaultOrOfAnUnknownEventChangesNothing()
    {
        QTemporaryDir tmp;
        LiveEngine engine;
        AppState state(engine);
        TeslaEvent ghost;
        ghost.kind = EventKind::saved;
        ghost.folderName = QStringLiteral("2024-01-01_00-00-00");
        state.setSelectedVaultEventID(ghost.id());
        state.removeFromVault(ghost); // no Vault: not even the selection moves
        QCOMPARE(state.selectedVaultEventID(), std::optional<QString>(ghost.id()));
        state.setTriage(TriageState::dismissed, ghost);
        const QString vault = tmp.filePath(QStringLiteral("vault"));
        QDir().mkpath(vault);
        state.setVaultURL(vault);
        state.removeFromVault(ghost);
        QCOMPARE(std::pair(state.selectedVaultEventID().has_value(), state.triageState(ghost)),
                 std::pair(false, TriageState(TriageState::dismissed)));
    }

    void wizardUpListsVolumesButTouchesNoBookmark()
    {
        QTemporaryDir tmp;
        const QString root = driveWithOneEvent(tmp, QStringLiteral("SAVED"));
        FormatEngine engine;
        engine.holdProbes = true;
        engine.saveBookmark(root, BookmarkKey::teslaDrive);
        engine.saveBookmark(tmp.path(), BookmarkKey::vaultFolder);
        AppState state(engine);
        QVERIFY(state.showOnboarding());
        state.rootViewAppeared();
        QVERIFY(!state.driveRootURL() && !state.vaultURL() && !state.isScanning());

        // Back to the saved drive; the sample's probe answering late changes nothing there.
        state.loadSampleFootage();
        QVERIFY(settled(state));
        state.exitSampleMode();
        QCOMPARE(std::pair(state.driveRootURL().value_or(QString()), state.isSampleMode()), std::pair(root, false));
        QVERIFY(settled(state));
        QCOMPARE(engine.heldProbes.size(), size_t(2));
        QVERIFY(engine.answerHeldProbe(1));
        QTRY_VERIFY(state.healthReport());
        QVERIFY(engine.answerHeldProbe(0));
        QCOMPARE(std::pair(state.driveScan()->events.size(), state.driveRootURL().value_or(QString())),
                 std::pair(size_t(1), root));
    }

    // The scan starts at once and goes on when the drive answers again.
    void unansweringDriveNeverHoldsTheWindowThread()
    {
        KEELHOLD_FAULTY_FS(fs, mountPoint);
        fs.addFile(QStringLiteral("TeslaCam/SentryClips/2024-06-01_10-00-00/event.json"),
                   TeslaCamFixture::eventJson(QStringLiteral("2024-06-01T10:00:00"), QStringLiteral("user_interaction_honk")));
        fs.addFile(QStringLiteral("TeslaCam/SentryClips/2024-06-01_10-00-00/2024-06-01_09-59-00-front.mp4"),
                   QByteArray(64 * 1024, 'x'));
        fs.hangStatfs();
        LiveEngine engine;
        AppState state(engine);
        // Should the state ask anyway, the drive answers in the end, so the test fails rather than hangs.
        std::mutex mutex;
        std::condition_variable answered;
        bool released = false;
        bool releasedByNet = false;
        std::thread net([&] {
            std::unique_lock lock(mutex);
            if (!answered.wait_for(lock, std::chrono::seconds(60), [&] { return released; })) {
                releasedByNet = true;
                fs.release();
            }
        });
        const auto release = [&] {
            {
                std::lock_guard lock(mutex);
                released = true;
            }
            answered.notify_all();
            fs.release();
        };
        const auto join = qScopeGuard([&] {
            release();
            net.join();
        });
        state.beginScan(mountPoint.filePath(QStringLiteral("TeslaCam")));
        {
            std::lock_guard lock(mutex);
            QVERIFY2(!releasedByNet, "the scan waited for the drive on the window's thread");
        }
        QVERIFY(state.isScanning());
        // The window's thread goes on turning while the drive holds the scan.
        QTRY_VERIFY_WITH_TIMEOUT(fs.isHanging(), 20000);
        QVERIFY(!state.driveScan());
        release();
        QVERIFY(settled(state));
        QCOMPARE(state.driveScan().value_or(DriveScan()).events.size(), size_t(1));
    }

    // From the cached answer through the fresh scan to the new probe's end, no mark goes away or comes back.
    void damageMarksHoldAcrossARestart()
    {
        if (!TestClips::ffmpegAvailable())
            QSKIP("Needs the ffmpeg tool to make real clips.");
        QTemporaryDir tmp;
        const QString cacheFile = tmp.filePath(QStringLiteral("scan-cache.json"));
        TeslaCamFixture drive(tmp.filePath(QStringLiteral("drive/TeslaCam")));
        const QString good = TestClips::clip();
        const auto event = [&](const QString &day) {
            return drive.addEvent(QStringLiteral("SentryClips"), day + QStringLiteral("_10-00-00"),
                                  TeslaCamFixture::eventJson(day + QStringLiteral("T10:00:00"),
                                                             QStringLiteral("sentry_aware_object_detection")));
        };
        // A stump and a non-movie beside a good clip; good clips only; a clip whose header its data contradict.
        const QString twoBad = event(QStringLiteral("2023-03-01"));
        drive.addClip(twoBad, QStringLiteral("2023-03-01_09-59-00"), QStringLiteral("front"), 0, good);
        drive.addClip(twoBad, QStringLiteral("2023-03-01_09-59-00"), QStringLiteral("back"), 1000);
        drive.addClip(twoBad, QStringLiteral("2023-03-01_09-59-00"), QStringLiteral("left_repeater"), 100 * 1024);
        const QString sound = event(QStringLiteral("2023-03-02"));
        drive.addClip(sound, QStringLiteral("2023-03-02_09-59-00"), QStringLiteral("front"), 0, good);
        drive.addClip(sound, QStringLiteral("2023-03-02_09-59-00"), QStringLiteral("back"), 0, good);
        const QString oneBad = event(QStringLiteral("2023-03-03"));
        TeslaCamFixture::writeFile(oneBad + QStringLiteral("/2023-03-03_09-59-00-front.mp4"),
                                   DamagedHeaders::damaged(3, good));
        const QStringList expected{QStringLiteral("sentry|2023-03-01_10-00-00: 2"),
                                   QStringLiteral("sentry|2023-03-02_10-00-00: 0"),
                                   QStringLiteral("sentry|2023-03-03_10-00-00: 1")};

        {
            ScanCache cache(cacheFile);
            FormatEngine engine(cache);
            AppState state(engine);
            state.beginScan(drive.root());
            QTRY_VERIFY_WITH_TIMEOUT(state.driveScan() && state.healthReport()
                                         && state.healthReport()->probedClipCount == 6,
                                     60000);
            QCOMPARE(damageMarks(*state.driveScan()), expected);
        }

        // The restart: a new engine and state on the same home, drive and cache file.
        ScanCache cache(cacheFile);
        FormatEngine engine(cache);
        engine.holdProbes = true;
        AppState state(engine);
        std::vector<QStringList> shown;
        QObject watching;
        connect(&state, &AppState::driveScanChanged, &watching, [&] {
            if (state.driveScan())
                shown.push_back(damageMarks(*state.driveScan()));
        });
        state.beginScan(drive.root());
        QVERIFY(settled(state));
        QTRY_COMPARE(engine.heldProbes.size(), size_t(1));
        // The cached answer, then the fresh scan: both on screen by now.
        QVERIFY(shown.size() >= 2);
        for (const QStringList &marks : shown)
            QCOMPARE(marks, expected);

        QVERIFY(engine.answerHeldProbe(0));
        QCOMPARE(state.healthReport()->probedClipCount, 6);
        for (const QStringList &marks : shown)
            QCOMPARE(marks, expected);
    }

    void scanCacheKeyNamesThePhysicalDrive()
    {
        // Roots on one volume share an answer keyed "<name>|<capacity>"; the cache starts empty, only A put it there.
        QTemporaryDir tmp;
        ScanCache cache(tmp.filePath(QStringLiteral("scan-cache.json")));
        LiveEngine engine(cache);
        AppState state(engine);
        const QString a = driveWithOneEvent(tmp, QStringLiteral("A"));
        state.beginScan(a);
        QVERIFY(settled(state));
        const QString b = driveWithOneEvent(tmp, QStringLiteral("B"));
        QSignalSpy revalidating(&state, &AppState::isRevalidatingScanChanged);
        state.beginScan(b);
        QVERIFY(settled(state));
        // The first answer came from the cache of A, on the same volume.
        QVERIFY(revalidating.count() >= 2);
    }
};

KEELHOLD_APP_TEST_MAIN(AppStateRulesTest)

#include "tst_appstaterules.moc"
