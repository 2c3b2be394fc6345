// The sample engine, driven through the facade as the application would.

#include "engine/MockEngine.h"
#include "support/IsolatedHome.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QFile>
#include <QTest>
#include <QThread>
#include <QTimeZone>

#include <mutex>

namespace {

Date utc(int y, int mo, int d, int h, int mi, int s)
{
    return Date::fromQDateTime(QDateTime(QDate(y, mo, d), QTime(h, mi, s), QTimeZone::utc()));
}

const TeslaEvent &demo(int number) { return MockEngine::demoEvents().at(size_t(number - 1)); }

QStringList ids(const std::vector<TeslaEvent> &events)
{
    QStringList out;
    for (const auto &e : events)
        out << e.id();
    return out;
}

} // namespace

class TestMockEngine : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void demoEventsAsTabled();
    void demoClipsAsTabled();
    void scanClimbsThroughFivePhases();
    void scanStopsWhenCancelled();
    void cacheAndBookmarksLiveInMemory();
    void probeReturnsEventsUnchanged();
    void oneMountedCandidateAndASilentStream();
    void vaultIsEmptyBeforeAnyRun();
    void runKeepsEventsInMemory();
    void runIgnoresCancellation();
    void triageMarks();
    void exportReportsTenStepsAndWritesNothing();
    void combinedExportCountsFramesAndStopsWhenCancelled();

private:
    MockEngine mock_;
    EngineFacade &engine_ = mock_;
};

void TestMockEngine::demoEventsAsTabled()
{
    const auto &events = MockEngine::demoEvents();
    QCOMPARE(events.size(), size_t(6));
    QCOMPARE(ids(events), (QStringList{"sentry|2026-07-21_02-11-05", "sentry|2026-07-22_13-30-44",
                                       "sentry|2026-07-24_08-14-27", "saved|2026-07-18_09-15-32",
                                       "saved|2026-07-19_17-42-10", "recent|recent_2026-07-20_14-00-00"}));
    // Stamps without a zone are read as UTC.
    QCOMPARE(demo(1).timestamp, utc(2026, 7, 21, 2, 11, 5));
    QCOMPARE(demo(6).timestamp, utc(2026, 7, 20, 14, 4, 0));

    const QString base = MockEngine::fixtureURL();
    QVERIFY(base.endsWith(QLatin1String("/TeslaCamFixture")));
    QVERIFY(base.startsWith(QDir::homePath()));
    QCOMPARE(demo(1).folderURL, base + "/TeslaCam/SentryClips/2026-07-21_02-11-05");
    QCOMPARE(demo(4).folderURL, base + "/TeslaCam/SavedClips/2026-07-18_09-15-32");
    QCOMPARE(demo(6).folderURL, base + "/TeslaCam/RecentClips");

    QCOMPARE(demo(1).city, std::optional<QString>("Austin"));
    QCOMPARE(demo(1).latitude, std::optional<double>(30.2672));
    QCOMPARE(demo(1).longitude, std::optional<double>(-97.7431));
    QCOMPARE(demo(1).reason.category, ReasonCategory::approach);
    QCOMPARE(demo(1).reasonRaw, std::optional<QString>("sentry_aware_object_detection"));
    QCOMPARE(demo(1).triggerCameraRaw, std::optional<QString>("5"));
    QCOMPARE(demo(1).thumbURL, std::optional<QString>(demo(1).folderURL + "/thumb.png"));
    QCOMPARE(demo(2).reason.category, ReasonCategory::impact);
    QCOMPARE(demo(2).reason.accelValue, std::optional<double>(0.4));
    QVERIFY(!demo(2).thumbURL.has_value());
    // Event 3: no event.json, so no place, reason or camera.
    QVERIFY(demo(3).missingEventJSON);
    QVERIFY(!demo(3).city && !demo(3).latitude && !demo(3).longitude && !demo(3).reasonRaw);
    QVERIFY(!demo(3).triggerCameraRaw);
    QCOMPARE(demo(3).reason.category, ReasonCategory::unknown);
    QCOMPARE(demo(4).reason.category, ReasonCategory::manualSave);
    QCOMPARE(demo(4).thumbURL, std::optional<QString>(demo(4).folderURL + "/thumb.png"));
    QCOMPARE(demo(5).city, std::optional<QString>("Round Rock"));
    QCOMPARE(demo(5).reason.category, ReasonCategory::honk);
    QCOMPARE(demo(6).reason.category, ReasonCategory::recentDrive);
    QVERIFY(!demo(6).reasonRaw);
    for (int i = 1; i <= 6; ++i)
        QCOMPARE(demo(i).missingEventJSON, i == 3);
}

void TestMockEngine::demoClipsAsTabled()
{
    const ClipRef &first = demo(1).clips.front();
    QCOMPARE(first.url, demo(1).folderURL + "/2026-07-21_02-10-05-front.mp4");
    QCOMPARE(first.startDate, utc(2026, 7, 21, 2, 10, 5));
    QCOMPARE(first.fileSize, qint64(3325));
    QCOMPARE(first.duration, std::optional<double>(60.0));
    QCOMPARE(first.health, ClipHealth::ok);

    const auto cameras = [](const TeslaEvent &e) {
        QList<Camera::Value> out;
        for (const auto &c : e.clips)
            out << c.camera.value();
        return out;
    };
    using C = Camera;
    QCOMPARE(cameras(demo(1)), (QList<C::Value>{C::front, C::back, C::leftRepeater, C::rightRepeater}));
    QCOMPARE(cameras(demo(3)), (QList<C::Value>{C::front, C::back}));
    QCOMPARE(cameras(demo(6)), (QList<C::Value>{C::front, C::back, C::front, C::back}));

    QCOMPARE(demo(1).clips[2].url, demo(1).folderURL + "/2026-07-21_02-10-05-left_repeater.mp4");
    QCOMPARE(demo(1).clips[2].fileSize, qint64(0));
    QCOMPARE(demo(1).clips[2].health, ClipHealth::zeroByte);
    QCOMPARE(demo(2).clips[1].fileSize, qint64(900));
    QCOMPARE(demo(2).clips[1].health, ClipHealth::truncated);
    QCOMPARE(demo(5).clips[1].fileSize, qint64(3325));
    QCOMPARE(demo(5).clips[1].health, ClipHealth::unreadable);
    QCOMPARE(demo(6).clips[3].url, demo(6).folderURL + "/2026-07-20_14-01-00-back.mp4");
    QCOMPARE(demo(6).clips[3].startDate, utc(2026, 7, 20, 14, 1, 0));
    int damaged = 0;
    for (const auto &e : MockEngine::demoEvents())
        damaged += e.corruptClipCount();
    QCOMPARE(damaged, 3);
}

void TestMockEngine::scanClimbsThroughFivePhases()
{
    std::mutex mutex;
    std::vector<ScanProgress> seen;
    QThread *reportedOn = nullptr;
    QElapsedTimer clock;
    clock.start();
    const QString root = QStringLiteral("/nowhere/TeslaCam");
    QFuture<DriveScan> future = engine_.scanDrive(root, [&](const ScanProgress &p) {
        std::lock_guard lock(mutex);
        seen.push_back(p);
        reportedOn = QThread::currentThread();
    });
    const DriveScan scan = future.result();
    QVERIFY(clock.elapsed() >= 5 * 220 - 20);
    QVERIFY(reportedOn != QThread::currentThread());

    const std::vector<ScanProgress> expected{
        {QStringLiteral("Reading your drive\u2026"), 6, 0, 0},
        {QStringLiteral("Reading Sentry events\u2026"), 12, 2, 8},
        {QStringLiteral("Reading saved clips\u2026"), 18, 6, 22},
        {QStringLiteral("Reading recent driving\u2026"), 24, 12, 42},
        {QStringLiteral("Almost done\u2026"), 30, 18, 62},
    };
    QCOMPARE(seen.size(), expected.size());
    for (size_t i = 0; i < expected.size(); ++i)
        QVERIFY2(seen[i] == expected[i], qPrintable(seen[i].phase));

    QCOMPARE(scan.teslaCamURL, root);
    QCOMPARE(scan.volumeName, QStringLiteral("UNTITLED"));
    QVERIFY(scan.format == VolumeFormat::exFAT);
    QCOMPARE(scan.capacityBytes, std::optional<qint64>(128000000000));
    QCOMPARE(scan.freeBytes, std::optional<qint64>(21000000000));
    QVERIFY(scan.events == MockEngine::demoEvents());
    QVERIFY(scan.encryptedClipsPresent);
    QCOMPARE(scan.issues.size(), size_t(1));
    QCOMPARE(scan.issues[0].kind, ScanIssue::Kind::unknownCameraSuffix);
    QCOMPARE(scan.issues[0].path, QStringLiteral("cabin_camera.mp4"));
    QVERIFY(std::abs(scan.scannedAt.timeIntervalSince(Date::now())) < 5.0);
}

void TestMockEngine::scanStopsWhenCancelled()
{
    std::atomic<int> reports{0};
    QFuture<DriveScan> future = engine_.scanDrive(QStringLiteral("/x/TeslaCam"), [&](const ScanProgress &) { ++reports; });
    QTest::qWait(300);
    future.cancel();
    QTRY_VERIFY_WITH_TIMEOUT(future.isFinished(), 500);
    QTest::qWait(500);
    QVERIFY(reports.load() <= 2);
}

void TestMockEngine::cacheAndBookmarksLiveInMemory()
{
    QVERIFY(!engine_.cachedScan(QStringLiteral("UNTITLED|128000000000")).result().has_value());
    DriveScan scan;
    scan.volumeName = QStringLiteral("CACHED");
    engine_.storeScanInCache(scan, QStringLiteral("UNTITLED|128000000000")).waitForFinished();
    QCOMPARE(engine_.cachedScan(QStringLiteral("UNTITLED|128000000000")).result()->volumeName, QStringLiteral("CACHED"));
    // Nothing reaches the disk.
    QVERIFY(!QFile::exists(qEnvironmentVariable("XDG_DATA_HOME") + QStringLiteral("/Keelhold/scan-cache.json")));

    engine_.saveBookmark(QDir::tempPath(), BookmarkKey::teslaDrive);
    const BookmarkResult result = engine_.resolveBookmark(BookmarkKey::teslaDrive);
    QVERIFY(std::holds_alternative<BookmarkError>(result));
    QCOMPARE(std::get<BookmarkError>(result).errorCase(), BookmarkError::notFound);
}

void TestMockEngine::probeReturnsEventsUnchanged()
{
    QElapsedTimer clock;
    clock.start();
    const std::vector<TeslaEvent> probed = engine_.probeAll(MockEngine::demoEvents()).result();
    QVERIFY(clock.elapsed() >= 140);
    QVERIFY(probed == MockEngine::demoEvents());
}

void TestMockEngine::oneMountedCandidateAndASilentStream()
{
    const std::vector<VolumeCandidate> volumes = engine_.mountedTeslaCamVolumes();
    QCOMPARE(volumes.size(), size_t(1));
    QCOMPARE(volumes[0], (VolumeCandidate{MockEngine::fixtureURL(), QStringLiteral("UNTITLED"), true,
                                          qint64(128000000000), qint64(21000000000)}));
    const auto stream = engine_.driveEvents();
    QCOMPARE(engine_.driveEvents(), stream);
    QFuture<std::optional<DriveEvent>> next = stream->next();
    QTest::qWait(300);
    QVERIFY(!next.isFinished());
    QCOMPARE(stream->pendingCount(), 0);
}

void TestMockEngine::vaultIsEmptyBeforeAnyRun()
{
    MockEngine fresh;
    QVERIFY(fresh.scanVault(QStringLiteral("/any")).result().empty());
    QVERIFY(fresh.loadVaultIndex(QStringLiteral("/any")).events.empty());
    QVERIFY(fresh.loadAllTriageStates().result().isEmpty());
}

void TestMockEngine::runKeepsEventsInMemory()
{
    MockEngine fresh;
    EngineFacade &engine = fresh;
    const std::vector<TeslaEvent> chosen{demo(4), demo(1)};
    const ArchivePlan plan = engine.planArchive(chosen, VaultIndex());
    QCOMPARE(plan.items.size(), size_t(2));
    QVERIFY(!plan.items[0].isDuplicate && !plan.items[1].isDuplicate);

    std::mutex mutex;
    std::vector<ArchiveProgress> seen;
    QElapsedTimer clock;
    clock.start();
    const ArchiveReport report = engine
                                     .runArchive(plan, QStringLiteral("/vault"),
                                                 [&](const ArchiveProgress &p) {
                                                     std::lock_guard lock(mutex);
                                                     seen.push_back(p);
                                                 })
                                     .result();
    QVERIFY(clock.elapsed() >= 2 * 180 - 20);
    QCOMPARE(seen.size(), size_t(2));
    QCOMPARE(seen[0], (ArchiveProgress{4000000, 8000000, 1, 2, QStringLiteral("2026-07-18_09-15-32")}));
    QCOMPARE(seen[1], (ArchiveProgress{8000000, 8000000, 2, 2, QStringLiteral("2026-07-21_02-11-05")}));

    QCOMPARE(report.archivedEvents.size(), size_t(2));
    QCOMPARE(report.skippedDuplicates, 0);
    QVERIFY(report.failedFiles.empty());
    QCOMPARE(report.bytesCopied, qint64(8000000));
    QVERIFY(!report.cancelled);
    const ArchivedEvent &saved = report.archivedEvents[0];
    QCOMPARE(saved.eventID, demo(4).id());
    QCOMPARE(saved.kind, EventKind::saved);
    QCOMPARE(saved.timestamp, demo(4).timestamp);
    QVERIFY(saved.files.empty());
    QCOMPARE(saved.sourceVolume, QStringLiteral("UNTITLED"));
    QCOMPARE(saved.relativePath, QStringLiteral("saved/2026-07-18_09-15-32"));

    // The Vault lists them in the demo list's order, and both are kept.
    QCOMPARE(ids(engine.scanVault(QStringLiteral("/elsewhere")).result()), (QStringList{demo(1).id(), demo(4).id()}));
    QCOMPARE(engine.triageState(demo(1).id()), TriageState::kept);
    QCOMPARE(engine.triageState(demo(4).id()), TriageState::kept);
    QCOMPARE(engine.triageState(demo(2).id()), TriageState::new_);

    // Removing answers yes and changes nothing.
    QVERIFY(engine.removeFromVault(demo(1).id(), QStringLiteral("/vault")));
    QCOMPARE(ids(engine.scanVault(QStringLiteral("/vault")).result()), (QStringList{demo(1).id(), demo(4).id()}));

    // No duplicates are known: a second run appends second records.
    const ArchivePlan again = engine.planArchive(chosen, engine.loadVaultIndex(QStringLiteral("/vault")));
    QVERIFY(!again.items[0].isDuplicate);
    engine.runArchive(again, QStringLiteral("/vault"), {}).waitForFinished();
    QCOMPARE(engine.loadVaultIndex(QStringLiteral("/vault")).events.size(), size_t(4));
    QCOMPARE(engine.scanVault(QStringLiteral("/vault")).result().size(), size_t(2));
}

void TestMockEngine::runIgnoresCancellation()
{
    MockEngine fresh;
    const ArchivePlan plan = fresh.planArchive({demo(2), demo(3), demo(5)}, VaultIndex());
    std::atomic<int> reports{0};
    QFuture<ArchiveReport> future = fresh.runArchive(plan, QStringLiteral("/vault"), [&](const ArchiveProgress &) { ++reports; });
    QTest::qWait(50);
    future.cancel();
    // The run goes on to its end all the same.
    QTRY_COMPARE_WITH_TIMEOUT(fresh.loadVaultIndex(QStringLiteral("/vault")).events.size(), size_t(3), 3000);
    QCOMPARE(reports.load(), 3);
    QCOMPARE(fresh.triageState(demo(5).id()), TriageState::kept);
}

void TestMockEngine::triageMarks()
{
    MockEngine fresh;
    EngineFacade &engine = fresh;
    QCOMPARE(engine.triageState(QStringLiteral("sentry|unknown")), TriageState::new_);
    engine.setTriageState(TriageState::dismissed, demo(3).id());
    QCOMPARE(engine.triageState(demo(3).id()), TriageState::dismissed);
    const auto snapshot = engine.loadAllTriageStates().result();
    engine.setTriageState(TriageState::reviewed, demo(3).id());
    QCOMPARE(snapshot.value(demo(3).id()), TriageState::dismissed);
    QCOMPARE(engine.loadAllTriageStates().result().value(demo(3).id()), TriageState::reviewed);
    // Marks live in the instance only.
    QCOMPARE(MockEngine().triageState(demo(3).id()), TriageState::new_);
}

void TestMockEngine::exportReportsTenStepsAndWritesNothing()
{
    const QString destination = QDir::temp().filePath(QStringLiteral("keelhold-mock-export-%1.mp4"))
                                    .arg(QCoreApplication::applicationPid());
    std::mutex mutex;
    std::vector<double> fractions;
    QElapsedTimer clock;
    clock.start();
    engine_
        .exportFootage(Camera::front, demo(1), std::nullopt, destination,
                       [&](double f) {
                           std::lock_guard lock(mutex);
                           fractions.push_back(f);
                       })
        .waitForFinished();
    QVERIFY(clock.elapsed() >= 10 * 80 - 20);
    QCOMPARE(fractions.size(), size_t(10));
    for (size_t i = 0; i < fractions.size(); ++i)
        QCOMPARE(fractions[i], double(i + 1) / 10.0);
    QVERIFY(!QFile::exists(destination));

    // Cancelled midway: it stops, and its error would be the caller's own.
    fractions.clear();
    QFuture<void> cancelled = engine_.exportFootage(Camera::back, demo(1), std::pair(0.0, 10.0), destination,
                                                    [&](double f) {
                                                        std::lock_guard lock(mutex);
                                                        fractions.push_back(f);
                                                    });
    QTest::qWait(200);
    cancelled.cancel();
    QTRY_VERIFY_WITH_TIMEOUT(cancelled.isFinished(), 300);
    QTest::qWait(300);
    std::lock_guard lock(mutex);
    QVERIFY(fractions.size() < 5);
}

void TestMockEngine::combinedExportCountsFramesAndStopsWhenCancelled()
{
    const QString destination = QDir::temp().filePath(QStringLiteral("keelhold-mock-combined-%1.mp4"))
                                    .arg(QCoreApplication::applicationPid());
    std::mutex mutex;
    std::vector<CombinedExportProgress> reports;
    engine_
        .exportCombined(demo(1), CombinedExportOptions(), destination,
                        [&](const CombinedExportProgress &p) {
                            std::lock_guard lock(mutex);
                            reports.push_back(p);
                        })
        .waitForFinished();
    QCOMPARE(reports.size(), size_t(10));
    QVERIFY(reports.back().complete);
    QCOMPARE(reports.back().framesDone, reports.back().framesTotal);
    QVERIFY(!QFile::exists(destination));

    // Cancelled from its first report: it ends without the other nine.
    reports.clear();
    QFuture<void> future;
    std::unique_lock lock(mutex);
    future = engine_.exportCombined(demo(1), CombinedExportOptions(), destination,
                                    [&](const CombinedExportProgress &p) {
                                        std::lock_guard held(mutex);
                                        reports.push_back(p);
                                        future.cancel();
                                    });
    lock.unlock();
    QTRY_VERIFY_WITH_TIMEOUT(future.isFinished(), 5000);
    std::lock_guard held(mutex);
    QVERIFY(!reports.empty() && reports.size() < 10);
}

KEELHOLD_ISOLATED_TEST_MAIN(TestMockEngine)

#include "tst_mockengine.moc"
