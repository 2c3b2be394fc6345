// The live engine over real drives, real clips, a real Vault and stores of
// its own in a temporary folder: each operation reaches the layer below, off
// the caller's thread where it should, with errors of their own type.

#include "drive/TeslaCamParser.h"
#include "engine/LiveEngine.h"
#include "engine/ScanCache.h"
#include "engine/TriageStore.h"
#include "export/ExportError.h"
#include "playback/SyncPlayerController.h"
#include "support/DriveBuilder.h"
#include "support/EventFootage.h"
#include "support/FaultyFs.h"
#include "support/IsolatedHome.h"
#include <QElapsedTimer>
#include "support/TeslaCamFixture.h"
#include "support/TestClips.h"
#include "vault/VaultBrowser.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <atomic>
#include <mutex>

namespace {

const TeslaEvent *findEvent(const std::vector<TeslaEvent> &events, const QString &id)
{
    for (const auto &e : events)
        if (e.id() == id)
            return &e;
    return nullptr;
}

} // namespace

class TestLiveEngine : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!TestClips::ffmpegAvailable())
            QSKIP("Needs the ffmpeg tool to make real clips.");
        const QString clip = TestClips::clip();
        TeslaCamFixture drive(drivePath());
        const QString sentry = drive.addEvent(
            QStringLiteral("SentryClips"), QStringLiteral("2024-06-01_15-05-30"),
            TeslaCamFixture::eventJson(QStringLiteral("2024-06-01T15:05:30"), QStringLiteral("sentry_aware_object_detection"),
                                       QStringLiteral("Taylor"), QStringLiteral("30.6075"), QStringLiteral("-97.4812")));
        drive.addClip(sentry, QStringLiteral("2024-06-01_15-04-30"), QStringLiteral("front"), 0, clip);
        drive.addClip(sentry, QStringLiteral("2024-06-01_15-04-30"), QStringLiteral("back"), 0, clip);
        drive.addClip(sentry, QStringLiteral("2024-06-01_15-04-30"), QStringLiteral("left_repeater"), 0);
        const QString saved = drive.addEvent(QStringLiteral("SavedClips"), QStringLiteral("2024-06-02_09-00-00"),
                                             TeslaCamFixture::eventJson(QStringLiteral("2024-06-02T09:00:00"),
                                                                        QStringLiteral("user_interaction_honk")));
        drive.addClip(saved, QStringLiteral("2024-06-02_08-59-00"), QStringLiteral("front"), 0, clip);
        // Enough events that a run can be stopped part of the way.
        for (int i = 0; i < 8; ++i) {
            const QString name = QStringLiteral("2024-06-03_10-%1-00").arg(i, 2, 10, QLatin1Char('0'));
            const QString folder = drive.addEvent(QStringLiteral("SentryClips"), name,
                                                  TeslaCamFixture::eventJson(name, QStringLiteral("sentry_aware_accel_0.5")),
                                                  false);
            drive.addClip(folder, name, QStringLiteral("front"), 2 * 1024 * 1024);
        }
        const DriveScan scan = engine_.scanDrive(drivePath(), {}).result();
        const TeslaEvent *withClips = findEvent(scan.events, QStringLiteral("sentry|2024-06-01_15-05-30"));
        QVERIFY(withClips);
        sentry_ = *withClips;
    }

    void scanRunsOffTheCallersThread()
    {
        std::atomic<QThread *> reportedOn{nullptr};
        std::atomic<int> reports{0};
        // Waiting at once must not pull the work onto this thread.
        const DriveScan scan = engine_
                                   .scanDrive(drivePath(),
                                              [&](const ScanProgress &) {
                                                  reportedOn = QThread::currentThread();
                                                  ++reports;
                                              })
                                   .result();
        QVERIFY(reports.load() > 0 && reportedOn.load() != QThread::currentThread());
        QCOMPARE(std::pair(scan.teslaCamURL, scan.events.size()), std::pair(drivePath(), size_t(10)));
    }
    // Errors cross the pools as the types the screens tell apart.
    void errorsKeepTheirType()
    {
        QFuture<DriveScan> missing = engine_.scanDrive(dir_.filePath(QStringLiteral("nowhere/TeslaCam")), {});
        try {
            missing.waitForFinished();
            QFAIL("A missing folder must fail the scan.");
        } catch (const TeslaCamParser::ParserError &e) {
            QCOMPARE(e.errorCase(), TeslaCamParser::ParserError::rootNotFound);
        }
        QFuture<std::vector<TeslaEvent>> vault = engine_.scanVault(dir_.filePath(QStringLiteral("no-vault")));
        QVERIFY_THROWS_EXCEPTION(VaultBrowser::VaultBrowserError, vault.waitForFinished());

        QFuture<void> future =
            engine_.exportFootage(Camera::leftPillar, sentry_, std::nullopt, dir_.filePath(QStringLiteral("x.mp4")), {});
        QCOMPARE(exportErrorOf([&] { future.waitForFinished(); }), std::optional(Exporter::ExportError::noClipsForCamera));
    }
    void archiveStopsWhenItsFutureIsCancelled()
    {
        const QString vault = dir_.filePath(QStringLiteral("vault-cancel"));
        const DriveScan scan = engine_.scanDrive(drivePath(), {}).result();
        const ArchivePlan plan = engine_.planArchive(scan.events, VaultIndex());
        const size_t total = plan.newItems().size();
        QCOMPARE(total, size_t(10));

        // Cancelled from its own first report, so the stop can only come through the future.
        std::mutex mutex;
        std::optional<QFuture<ArchiveReport>> handle;
        std::atomic<bool> cancelled{false};
        QFuture<ArchiveReport> future = engine_.runArchive(plan, vault, [&](const ArchiveProgress &) {
            std::lock_guard lock(mutex);
            if (handle && !cancelled.exchange(true))
                handle->cancel();
        });
        {
            std::lock_guard lock(mutex);
            handle = future;
        }
        QTRY_VERIFY_WITH_TIMEOUT(future.isFinished(), 20000);
        QVERIFY(future.isCanceled() && cancelled.load());
        // The work really stopped: the run merged what it had done and no more.
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(vault + QStringLiteral("/manifest.json")), 5000);
        QVERIFY(engine_.loadVaultIndex(vault).events.size() < total);
    }
    // A second engine on the same files (the next launch) finds them; the home folder's own files are never touched.
    void marksAndScansGoToTheStoresItWasGiven()
    {
        const QString id = QStringLiteral("sentry|2024-06-01_15-05-30");
        engine_.setTriageState(TriageState::kept, id);
        engine_.setTriageState(TriageState::dismissed, QStringLiteral("saved|2024-06-02_09-00-00"));
        // The true marks come only from loading them all.
        QTRY_COMPARE(engine_.loadAllTriageStates().result().value(id), TriageState::kept);
        QCOMPARE(engine_.triageState(id), TriageState::new_);
        QTRY_VERIFY(DriveBuilder::readQuietly(triageFile()).contains("\"saved|2024-06-02_09-00-00\":\"dismissed\""));

        const DriveScan scan = engine_.scanDrive(drivePath(), {}).result();
        const QString key = ScanCache::key(QStringLiteral("UNTITLED"), 64000000000);
        QVERIFY(!engine_.cachedScan(key).result().has_value());
        engine_.storeScanInCache(scan, key).waitForFinished();

        {
            ScanCache cache(scanCacheFile());
            TriageStore triage(triageFile());
            LiveEngine next(cache, triage);
            QVERIFY(next.cachedScan(key).result() == std::optional(scan));
            QCOMPARE(next.loadAllTriageStates().result(),
                     (EngineFacade::TriageStates{{id, TriageState::kept}, {"saved|2024-06-02_09-00-00", TriageState::dismissed}}));
        }

        const QString programsOwn = qEnvironmentVariable("XDG_DATA_HOME") + QStringLiteral("/Keelhold/");
        QVERIFY(!QFile::exists(programsOwn + QLatin1String(TriageStore::fileName)));
        QVERIFY(!QFile::exists(programsOwn + QLatin1String(ScanCache::fileName)));
    }
    // Probe and keep stuck on unanswered clips: the Vault lists, a player builds, an export ends; both stop on request.
    void stuckDriveWorkStarvesNothingElse()
    {
        KEELHOLD_FAULTY_FS(fs, mountPoint);
        const QString vault = dir_.filePath(QStringLiteral("vault-beside-a-dead-drive"));
        QVERIFY(engine_.runArchive(engine_.planArchive({sentry_}, VaultIndex()), vault, {}).result().failedFiles.empty());
        const std::vector<TeslaEvent> kept = engine_.scanVault(vault).result();
        QCOMPARE(kept.size(), size_t(1));

        for (const char *camera : {"front", "back", "left_repeater", "right_repeater", "left_pillar", "right_pillar"})
            fs.addHeldFile(QStringLiteral("TeslaCam/SentryClips/2024-06-05_10-00-00/2024-06-05_09-59-00-%1.mp4").arg(camera),
                           DriveBuilder::randomBytes(100000, 7));
        const std::vector<TeslaEvent> dead =
            engine_.scanDrive(mountPoint.filePath(QStringLiteral("TeslaCam")), {}).result().events;
        QCOMPARE(dead.size(), size_t(1));
        QFuture<std::vector<TeslaEvent>> probe = engine_.probeAll(dead);
        std::stop_source stopKeep;
        QFuture<ArchiveReport> keep = engine_.runArchive(engine_.planArchive(dead, VaultIndex()),
                                                         dir_.filePath(QStringLiteral("vault-dead")), {}, stopKeep.get_token());
        QVERIFY(fs.waitUntilHeld(5)); // four probes and one copy

        // All answers before the stuck work's first 10 s limit could free a thread, however slow the machine.
        QElapsedTimer since;
        since.start();
        const auto left = [&] { return int(std::max<qint64>(1, 9000 - since.elapsed())); };
        QFuture<std::vector<TeslaEvent>> listing = engine_.scanVault(vault);
        QTRY_VERIFY_WITH_TIMEOUT(listing.isFinished(), left());
        QCOMPARE(listing.result().size(), size_t(1));
        SyncPlayerController player(kept.front());
        QTRY_VERIFY_WITH_TIMEOUT(!player.isLoadingTiles() && !player.tiles().empty() && player.tiles().front().player,
                                 left());
        const QString movie = dir_.filePath(QStringLiteral("from-the-vault.mp4"));
        QFuture<void> exported = engine_.exportFootage(Camera::front, kept.front(), std::nullopt, movie, {});
        QTRY_VERIFY_WITH_TIMEOUT(exported.isFinished(), left());
        QVERIFY(QFileInfo(movie).size() > 1000);

        QVERIFY(!probe.isFinished() && !keep.isFinished());
        probe.cancel();
        stopKeep.request_stop();
        QTRY_VERIFY_WITH_TIMEOUT(probe.isFinished() && keep.isFinished(), 8000);
        QVERIFY(keep.result().cancelled);
    }

private:
    QString drivePath() const { return dir_.filePath(QStringLiteral("drive/TeslaCam")); }
    QString scanCacheFile() const { return dir_.filePath(QStringLiteral("scan-cache.json")); }
    QString triageFile() const { return dir_.filePath(QStringLiteral("triage.json")); }
    QTemporaryDir dir_;
    TeslaEvent sentry_; // the Sentry event with real clips
    ScanCache scanCache_{scanCacheFile()};
    TriageStore triage_{triageFile()};
    LiveEngine live_{scanCache_, triage_};
    EngineFacade &engine_ = live_;
};

KEELHOLD_ISOLATED_TEST_MAIN(TestLiveEngine)

#include "tst_liveengine.moc"
