// The sample engine, driven through the facade as the application would.

#include "engine/MockEngine.h"
#include "support/IsolatedHome.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTest>
#include <QThread>

#include <latch>
#include <mutex>

namespace {

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
    void scanClimbsThroughFivePhases();
    void scanStopsWhenCancelled();
    void cacheAndBookmarksLiveInMemory();
    void oneMountedCandidateAndASilentStream();
    void runKeepsEventsInMemory();
    void runIgnoresCancellation();
    void triageMarks();
    void exportReportsTenStepsAndWritesNothing();
    void combinedExportCountsFramesAndStopsWhenCancelled();

private:
    MockEngine mock_;
    EngineFacade &engine_ = mock_;
};

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

    QCOMPARE(seen.size(), size_t(5));
    for (size_t i = 1; i < seen.size(); ++i)
        QVERIFY(seen[i].clipsFound >= seen[i - 1].clipsFound);

    QCOMPARE(scan.teslaCamURL, root);
    QVERIFY(scan.events == MockEngine::demoEvents());
    QVERIFY(std::abs(scan.scannedAt.timeIntervalSince(Date::now())) < 5.0);
}

void TestMockEngine::scanStopsWhenCancelled()
{
    // Cancelled at its first report, it ends without a scan instead of
    // going through the four phases still ahead.
    std::atomic<int> reports{0};
    QFuture<DriveScan> future;
    std::latch started(1);
    future = engine_.scanDrive(QStringLiteral("/x/TeslaCam"), [&](const ScanProgress &) {
        started.wait();
        if (++reports == 1)
            future.cancel();
    });
    started.count_down();
    QTRY_VERIFY_WITH_TIMEOUT(future.isFinished(), 20000);
    QVERIFY(future.isCanceled());
    QCOMPARE(future.resultCount(), 0);
    QVERIFY2(reports.load() < 5, qPrintable(QString::number(reports.load())));
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

void TestMockEngine::oneMountedCandidateAndASilentStream()
{
    QCOMPARE(engine_.mountedTeslaCamVolumes().size(), size_t(1));
    const auto stream = engine_.driveEvents();
    QCOMPARE(engine_.driveEvents(), stream);
    // Nothing in the sample engine ever sends on it.
    QFuture<std::optional<DriveEvent>> next = stream->next();
    QVERIFY(!next.isFinished());
    QCOMPARE(stream->pendingCount(), 0);
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
    QCOMPARE(seen.back().eventsCompleted, seen.back().totalEvents);
    QCOMPARE(report.archivedEvents.size(), size_t(2));
    QCOMPARE(report.archivedEvents[0].eventID, demo(4).id());
    QCOMPARE(report.archivedEvents[0].relativePath, QStringLiteral("saved/2026-07-18_09-15-32"));

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
    // Cancelled at its first report, the run goes on to its end all the same.
    std::atomic<int> reports{0};
    QFuture<ArchiveReport> future;
    std::latch started(1);
    future = fresh.runArchive(plan, QStringLiteral("/vault"), [&](const ArchiveProgress &) {
        started.wait();
        if (++reports == 1)
            future.cancel();
    });
    started.count_down();
    QTRY_VERIFY_WITH_TIMEOUT(future.isFinished(), 20000);
    QCOMPARE(fresh.loadVaultIndex(QStringLiteral("/vault")).events.size(), size_t(3));
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

    // Cancelled at its second step: it stops short of the end.
    fractions.clear();
    QFuture<void> cancelled;
    std::latch started(1);
    cancelled = engine_.exportFootage(Camera::back, demo(1), std::pair(0.0, 10.0), destination, [&](double f) {
        started.wait();
        std::lock_guard lock(mutex);
        fractions.push_back(f);
        if (fractions.size() == 2)
            cancelled.cancel();
    });
    started.count_down();
    QTRY_VERIFY_WITH_TIMEOUT(cancelled.isFinished(), 20000);
    QVERIFY(cancelled.isCanceled());
    std::lock_guard lock(mutex);
    QVERIFY2(fractions.size() < 10, qPrintable(QString::number(fractions.size())));
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
