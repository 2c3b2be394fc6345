#include "drive/TeslaCamParser.h"
#include "engine/LiveEngine.h"
#include "engine/MockEngine.h"
#include "state/AppState.h"
#include "vault/ArchiveEngine.h"
#include "vault/VaultVerifier.h"
#include "support/DriveBuilder.h"
#include "support/FaultyFs.h"
#include "support/IsolatedHome.h"
#include "support/TeslaCamFixture.h"
#include "support/TestClips.h"

#include <QDir>
#include <QScopeGuard>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

namespace {

class FakeWindow final : public FocusWindow {
public:
    bool fullScreen = false;
    int toggles = 0;
    bool isFullScreen() const override { return fullScreen; }
    void toggleFullScreen() override
    {
        ++toggles;
        fullScreen = !fullScreen;
    }
    // The window's own button: it leaves full screen by itself.
    void leaveFullScreenByItself()
    {
        fullScreen = false;
        Q_EMIT willExitFullScreen();
    }
};

void setOnboardingDone(bool done)
{
    QSettings(QStringLiteral("Keelhold"), QStringLiteral("Keelhold")).setValue(AppState::onboardingKey, done);
}

} // namespace

class TestAppState : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        // Every case starts with no saved folders and the wizard up.
        QSettings(QStringLiteral("Keelhold"), QStringLiteral("Keelhold")).clear();
        setOnboardingDone(false);
    }

    void initialiserTouchesNothingAndMergesStoredTriage()
    {
        MockEngine engine;
        engine.setTriageState(TriageState::kept, QStringLiteral("sentry|a"));
        engine.setTriageState(TriageState::reviewed, QStringLiteral("sentry|b"));
        AppState state(engine);
        QVERIFY(!state.driveRootURL());
        // Set before the stored map arrives: it must win.
        state.setTriage(TriageState::dismissed, QStringLiteral("sentry|a"));
        QTRY_VERIFY(state.triageStates().contains(QStringLiteral("sentry|b")));
        QCOMPARE(state.triageStates().value(QStringLiteral("sentry|a")), TriageState::dismissed);
        QCOMPARE(state.triageStates().value(QStringLiteral("sentry|b")), TriageState::reviewed);
    }

    void focusMode()
    {
        MockEngine engine;
        AppState state(engine);
        FakeWindow window;
        state.setFocusWindow(&window);

        // Not full screen: exit leaves the window alone.
        state.exitFocusMode(true);
        QCOMPARE(window.toggles, 0);
        state.toggleFocusMode();
        QCOMPARE(std::tuple(state.isFocusMode(), state.columnVisibility(), window.fullScreen),
                 std::tuple(true, AppState::ColumnVisibility::detailOnly, true));

        // Leaving full screen by the window's own means ends focus mode.
        window.leaveFullScreenByItself();
        QCOMPARE(std::pair(state.isFocusMode(), state.columnVisibility()),
                 std::pair(false, AppState::ColumnVisibility::all));

        // Focus on while windowed (toggle blindly sends it full screen), and exit without touching the window.
        window.fullScreen = true;
        state.toggleFocusMode(); // toggles to windowed
        QVERIFY(state.isFocusMode() && !window.fullScreen);
        const int before = window.toggles;
        state.exitFocusMode(true);
        QCOMPARE(window.toggles, before);
        QVERIFY(!state.isFocusMode());
    }

    void cachedScanThenSilentRevalidationThenBulkDismissal()
    {
        MockEngine engine;
        AppState state(engine);
        const QString root = MockEngine::fixtureURL() + QStringLiteral("/TeslaCam");
        QSignalSpy epoch(&state, &AppState::resourceAccessEpochChanged);
        state.beginScan(root);
        QVERIFY(state.isScanning());
        QCOMPARE(state.scanProgress()->phase, AppState::gettingStartedPhase);
        QTRY_VERIFY_WITH_TIMEOUT(state.driveScan() && !state.isScanning(), 10000);
        QVERIFY(!state.isRevalidatingScan() && state.driveIsConnected() && !state.currentFailure());
        QTRY_VERIFY_WITH_TIMEOUT(state.healthReport().has_value(), 10000);

        // Same root again: the cache answers at once and the fresh scan behind it reports no progress.
        state.beginScan(root);
        QCOMPARE(epoch.count(), 2);
        QTRY_VERIFY_WITH_TIMEOUT(state.isRevalidatingScan(), 5000);
        QSignalSpy progress(&state, &AppState::scanProgressChanged);
        QTRY_VERIFY_WITH_TIMEOUT(!state.isRevalidatingScan(), 10000);
        QCOMPARE(progress.count(), 0);
        QCOMPARE(state.scanProgress()->phase, AppState::gettingStartedPhase);

        // Dismissing is the inbox window's test; here bulk dismissal passes over a ticked row already dismissed.
        const std::vector<TeslaEvent> all = state.visibleInboxEvents();
        QVERIFY(all.size() >= 2);
        const TeslaEvent a = all[0], gone = all[1];
        state.dismiss({gone});
        state.toggleBulkSelection(a.id());
        state.toggleBulkSelection(gone.id()); // dismissed, so hidden
        state.dismissBulkSelection();
        QVERIFY(state.selectedEventIDsForBulk().isEmpty());
        QCOMPARE(state.triageState(a), TriageState::dismissed);
    }

    void driveEventsFollowTheRoot()
    {
        MockEngine engine;
        AppState state(engine);
        state.rootViewAppeared();
        QCOMPARE(state.driveVolumeCandidates().size(), size_t(1));
        const QString root = QStringLiteral("/media/u/UNTITLED 1/TeslaCam");
        state.beginScan(root);
        QTRY_VERIFY_WITH_TIMEOUT(!state.isScanning() && !state.isRevalidatingScan(), 10000);
        auto stream = engine.driveEvents();

        // The text prefix counts "/media/u/UNTITLED" as the root's volume.
        stream->send(DriveEvent::makeUnmounted(QStringLiteral("/media/u/UNTITLED")));
        QTRY_VERIFY(state.currentFailure() && state.currentFailure()->kind() == DriveFailure::DriveDisconnected);
        QVERIFY(!state.driveIsConnected() && state.driveScan());

        // Another drive only joins the list.
        stream->send(DriveEvent::makeMounted(VolumeCandidate{QStringLiteral("/media/u/OTHER"), QStringLiteral("OTHER"), true, {}, {}}));
        QTRY_COMPARE(state.driveVolumeCandidates().back().volumeURL, QStringLiteral("/media/u/OTHER"));
        QCOMPARE(state.currentFailure()->kind(), DriveFailure::DriveDisconnected);
        QVERIFY(!state.driveIsConnected());

        // A rename touches only the list.
        stream->send(DriveEvent::makeRenamed(VolumeCandidate{QStringLiteral("/media/u/OTHER"), QStringLiteral("NEW"), true, {}, {}}));
        QTRY_COMPARE(state.driveVolumeCandidates().back().name, QStringLiteral("NEW"));
        QCOMPARE(state.currentFailure()->kind(), DriveFailure::DriveDisconnected);

        // The same drive back at the root's parent: connected again.
        stream->send(DriveEvent::makeMounted(VolumeCandidate{QStringLiteral("/media/u/UNTITLED 1"), QStringLiteral("UNTITLED"), true, {}, {}}));
        QTRY_VERIFY(state.driveIsConnected());

        // A root given as the volume itself has /media/u for parent, so its volume coming back never resumes it.
        const VolumeCandidate stick{QStringLiteral("/media/u/STICK"), QStringLiteral("STICK"), true, {}, {}};
        state.beginScan(stick.volumeURL);
        QTRY_VERIFY_WITH_TIMEOUT(!state.isScanning() && !state.isRevalidatingScan(), 10000);
        stream->send(DriveEvent::makeUnmounted(stick.volumeURL));
        QTRY_COMPARE(state.currentFailure(), DriveFailure::driveDisconnected());
        const int epoch = state.resourceAccessEpoch();
        stream->send(DriveEvent::makeMounted(stick));
        QTRY_COMPARE(state.driveVolumeCandidates().back().volumeURL, stick.volumeURL);
        // Unmounting raised no epoch either.
        QCOMPARE(std::tuple(state.currentFailure(), state.driveIsConnected(), state.resourceAccessEpoch()),
                 std::tuple(std::optional(DriveFailure::driveDisconnected()), false, epoch));

        // The Vault slot raises the epoch on every call, the same folder too.
        QTemporaryDir tmp;
        state.setVaultURL(tmp.path());
        state.setVaultURL(tmp.path());
        QCOMPARE(std::pair(state.resourceAccessEpoch(), state.vaultURL().value_or(QString())),
                 std::pair(epoch + 2, tmp.path()));
    }

    void bothBookmarksStaleShowsTheVaults()
    {
        QTemporaryDir tmp;
        {
            LiveEngine engine;
            QDir().mkpath(tmp.filePath(QStringLiteral("d/TeslaCam")));
            QDir().mkpath(tmp.filePath(QStringLiteral("v")));
            engine.saveBookmark(tmp.filePath(QStringLiteral("d/TeslaCam")), BookmarkKey::teslaDrive);
            engine.saveBookmark(tmp.filePath(QStringLiteral("v")), BookmarkKey::vaultFolder);
        }
        QDir(tmp.filePath(QStringLiteral("d"))).removeRecursively();
        QDir(tmp.filePath(QStringLiteral("v"))).removeRecursively();
        setOnboardingDone(true);
        LiveEngine engine;
        AppState state(engine);
        QVERIFY(!state.showOnboarding());
        state.rootViewAppeared();
        QCOMPARE(state.currentFailure(), DriveFailure::staleBookmark(BookmarkKey::vaultFolder));

        // Sample mode in and out with the stale saved drive: back to its failure.
        state.loadSampleFootage();
        QVERIFY(state.isSampleMode() && !state.currentFailure());
        QTRY_VERIFY_WITH_TIMEOUT(!state.isScanning(), 20000);
        state.exitSampleMode();
        QVERIFY(!state.isSampleMode() && !state.driveScan());
        QCOMPARE(state.currentFailure(), DriveFailure::staleBookmark(BookmarkKey::teslaDrive));
    }

    void sampleModeWithoutSavedDriveEndsInNothingLoaded()
    {
        LiveEngine engine;
        AppState state(engine);
        state.loadSampleFootage();
        QCOMPARE(state.scanProgress()->phase, AppState::loadingSamplePhase);
        QTRY_VERIFY_WITH_TIMEOUT(state.driveScan() && !state.isScanning(), 20000);
        // A real scan during sample mode ends it at once.
        QTemporaryDir tmp;
        TeslaCamFixture other(tmp.filePath(QStringLiteral("TeslaCam")));
        state.beginScan(other.root());
        QVERIFY(!state.isSampleMode());
        QVERIFY(state.driveScan()); // the sample scan stays until the first result
        QTRY_VERIFY_WITH_TIMEOUT(!state.isScanning() && !state.isRevalidatingScan(), 10000);
        state.loadSampleFootage();
        QTRY_VERIFY_WITH_TIMEOUT(!state.isScanning(), 20000);
        state.exitSampleMode();
        QCOMPARE(std::tuple(state.driveScan().has_value(), state.driveRootURL().has_value(), state.currentFailure().has_value(),
                            state.isScanning()),
                 std::tuple(false, false, false, false));
    }

    void keepThenADuplicate()
    {
        if (!TestClips::ffmpegAvailable())
            QSKIP("Needs the ffmpeg tool to make real clips.");
        const QString clip = TestClips::clip();
        QTemporaryDir tmp;
        TeslaCamFixture drive(tmp.filePath(QStringLiteral("drive/TeslaCam")));
        // Two Sentry events of one clip each.
        for (const QString &day : {QStringLiteral("2024-06-01"), QStringLiteral("2024-06-02")}) {
            const QString folder = drive.addEvent(
                QStringLiteral("SentryClips"), day + QStringLiteral("_10-00-00"),
                TeslaCamFixture::eventJson(day + QStringLiteral("T10:00:00"), QStringLiteral("sentry_aware_object_detection")));
            drive.addClip(folder, day + QStringLiteral("_09-59-00"), QStringLiteral("front"), 0, clip);
        }
        const QString vault = tmp.filePath(QStringLiteral("vault"));
        QDir().mkpath(vault);

        LiveEngine engine;
        AppState state(engine);
        state.beginScan(drive.root());
        QTRY_VERIFY_WITH_TIMEOUT(state.driveScan() && !state.isScanning() && !state.isRevalidatingScan(), 10000);
        const std::vector<TeslaEvent> events = state.driveScan()->events;
        QCOMPARE(events.size(), size_t(2));

        // Asking for a first Vault folder is the window's test; a file that
        // fails and the part it leaves, the pulled drive's below.
        state.setVaultURL(vault);
        // Watched by its signals: a small keep may be over between two looks.
        QSignalSpy archiving(&state, &AppState::isArchivingChanged);
        state.keep({events[0]});
        QTRY_VERIFY_WITH_TIMEOUT(state.showArchiveReport(), 20000);
        QVERIFY(archiving.count() >= 2); // it ran, and it ended
        QCOMPARE(state.lastArchiveReport()->plannedEvents, 1);
        QCOMPARE(std::tuple(state.isArchiving(), state.archiveProgress().has_value(), state.hasCurrentArchiveTask()),
                 std::tuple(false, false, false));
        QCOMPARE(state.triageState(events[0]), TriageState::kept);
        QCOMPARE(state.vaultIndex().events.size(), size_t(1));
        QTRY_COMPARE(state.vaultEvents().size(), size_t(1));

        // A duplicate keeps its own state; the new one becomes kept.
        state.setTriage(TriageState::reviewed, events[0]);
        state.setShowArchiveReport(false);
        state.keep({events[0], events[1]});
        QTRY_VERIFY_WITH_TIMEOUT(state.showArchiveReport(), 20000);
        QCOMPARE(state.lastArchiveReport()->skippedDuplicates, 1);
        QCOMPARE(std::pair(state.triageState(events[0]), state.triageState(events[1])),
                 std::pair(TriageState(TriageState::reviewed), TriageState(TriageState::kept)));
        QTRY_COMPARE(state.vaultEvents().size(), size_t(2));
        QVERIFY(state.healthReport());
    }

    // Unseen, only findings show; due a week after the last whole check, or the first keep.
    void weeklyCheckRunsUnseenWhenDue()
    {
        QTemporaryDir tmp;
        DriveBuilder drive(tmp.filePath(QStringLiteral("drive/TeslaCam")));
        drive.addEvent(QStringLiteral("SentryClips"), QStringLiteral("2026-07-18_09-15-32"), 2, 1000);
        const QString vault = tmp.filePath(QStringLiteral("vault"));
        ArchiveEngine::run(ArchiveEngine::plan(drive.scan(), VaultIndex{}), vault);
        LiveEngine engine;
        VaultIndex index = VaultIndex::load(vault);
        // Kept yesterday: not due. Kept 8 days ago but switched off: never.
        for (const bool switchedOff : {false, true}) {
            index.events[0].archivedAt = Date::now().addingTimeInterval((switchedOff ? -8 : -1) * 24 * 3600);
            index.save(vault);
            if (switchedOff)
                QSettings(QStringLiteral("Keelhold"), QStringLiteral("Keelhold")).setValue(AppState::verifyWeeklyKey, false);
            AppState state(engine);
            state.setVaultURL(vault);
            QTRY_COMPARE(state.vaultIndex(), index);
            QVERIFY(!state.verifyVaultIfDue());
        }
        QSettings(QStringLiteral("Keelhold"), QStringLiteral("Keelhold")).remove(AppState::verifyWeeklyKey);
        AppState state(engine);
        // Unseen: never a check in progress on the screens.
        QObject watching;
        bool everShown = false;
        connect(&state, &AppState::verificationChanged, &watching, [&] { everShown = everShown || state.isVerifyingVault(); });
        state.setVaultURL(vault);
        QTRY_VERIFY_WITH_TIMEOUT(state.verificationLog().wholeVaultCheckedAt.has_value(), 20000);
        QVERIFY(!everShown && !state.verificationProgress());
        QVERIFY(state.verificationLog().find(index.events[0].eventID)->ok());
        // Due again only a week after this check.
        QVERIFY(!state.verifyVaultIfDue());
        QCOMPARE(VerificationLog::load(vault).wholeVaultCheckedAt, state.verificationLog().wholeVaultCheckedAt);
    }

    // Its report says why it stopped short.
    void cancelWhilePausedEndsWithWhatWasDone()
    {
        KEELHOLD_FAULTY_FS(fs, mountPoint);
        QTemporaryDir vault;
        for (const QString &name : {QStringLiteral("2026-07-18_09-15-32"), QStringLiteral("2026-07-17_09-15-32")})
            for (const QString &clip : DriveBuilder::clipNames(name, 2))
                fs.addFile(QStringLiteral("TeslaCam/SentryClips/") + name + QLatin1Char('/') + clip,
                           DriveBuilder::randomBytes(1 << 20, 7));
        LiveEngine engine;
        AppState state(engine);
        state.setVaultURL(vault.path());
        const std::vector<TeslaEvent> events = TeslaCamParser::scan(mountPoint.filePath(QStringLiteral("TeslaCam"))).events;
        QCOMPARE(events.size(), size_t(2));
        // Gone during the second event's second clip.
        fs.vanishAfterBytes(fs.bytesServed() + 3 * (1 << 20) + 1000);
        state.keep(events);
        QTRY_VERIFY_WITH_TIMEOUT(state.isArchivePaused(), 20000);
        QVERIFY(!state.showArchiveReport());
        state.cancelCurrentArchiveTask();
        QCOMPARE(std::tuple(state.isArchivePaused(), state.isArchiving(), state.showArchiveReport()),
                 std::tuple(false, false, true));
        const ArchiveReport &report = *state.lastArchiveReport();
        QCOMPARE(std::tuple(report.cancelled, report.stoppedBecause, report.plannedEvents, report.completeEvents(),
                            report.archivedEvents.size()),
                 std::tuple(true, std::optional(ArchiveReport::StopReason::driveDisconnected), 2, 1, size_t(2)));
        QCOMPARE(state.triageState(events[0]), TriageState::kept);
        QVERIFY(state.triageState(events[1]) != TriageState::kept);
    }

    // Another drive where it was doesn't take it up; the same one back does, and one report tells the whole keep.
    void keepCutOffByAPulledDriveGoesOnWhenTheSameDriveReturns()
    {
        if (!FaultyFs::available())
            QSKIP("needs root and /dev/fuse");
        // Under /media, where the drive watcher sees it come and go.
        const QString mountPoint = QStringLiteral("/media/KHRESUME%1").arg(QCoreApplication::applicationPid());
        QVERIFY(QDir().mkpath(mountPoint));
        const auto removeMountPoint = qScopeGuard([&] { QDir().rmdir(mountPoint); });
        const qint64 clipSize = 3 << 20;
        const qint64 capacity = qint64(64) << 30;
        const QStringList names{QStringLiteral("2026-07-18_09-15-32"), QStringLiteral("2026-07-17_09-15-32"),
                                QStringLiteral("2026-07-16_09-15-32")};
        QHash<QString, QByteArray> contents;
        QHash<QString, qint64> jsonBytes;
        const auto fill = [&](FaultyFs &fs, quint32 seed) {
            for (const QString &name : names) {
                const QString folder = QStringLiteral("TeslaCam/SentryClips/") + name + QLatin1Char('/');
                const QByteArray json = TeslaCamFixture::eventJson(
                    name.left(10) + QLatin1Char('T') + name.mid(11).replace(QLatin1Char('-'), QLatin1Char(':')),
                    QStringLiteral("sentry_aware_object_detection"));
                jsonBytes.insert(name, json.size());
                fs.addFile(folder + QStringLiteral("event.json"), json);
                for (const QString &clip : DriveBuilder::clipNames(name, 2)) {
                    const QByteArray bytes = DriveBuilder::randomBytes(clipSize, seed++);
                    if (seed < 1000)
                        contents.insert(clip, bytes);
                    fs.addFile(folder + clip, bytes);
                }
            }
        };
        QTemporaryDir vaultDir;
        const QString vault = vaultDir.path();
        LiveEngine engine;
        AppState state(engine);
        state.rootViewAppeared();
        state.setVaultURL(vault);

        auto drive = std::make_unique<FaultyFs>(mountPoint);
        QVERIFY(drive->isMounted());
        drive->setCapacity(capacity);
        fill(*drive, 100);
        state.beginScan(mountPoint + QStringLiteral("/TeslaCam"));
        // Scanned, probed and its activity worked out: nothing else reads the drive from here on.
        QTRY_VERIFY_WITH_TIMEOUT(state.healthReport() && state.healthReport()->probedClipCount == 6, 30000);
        QTRY_VERIFY_WITH_TIMEOUT(!state.activity().isRunning(), 30000);
        const std::vector<TeslaEvent> events = state.driveScan()->events;
        QCOMPARE(events.size(), size_t(3));
        // Pulled halfway through the second event's second clip.
        drive->vanishAfterBytes(drive->bytesServed() + 3 * clipSize + clipSize / 2 + jsonBytes.value(names[0]));
        state.keep(events);
        QTRY_VERIFY_WITH_TIMEOUT(state.isArchivePaused(), 30000);
        QCOMPARE(std::tuple(state.isArchiving(), state.showArchiveReport(), state.hasCurrentArchiveTask()),
                 std::tuple(true, false, true));
        // What arrived counts at once: the whole event is kept, the cut-off one isn't.
        QCOMPARE(std::pair(state.triageState(events[0]), state.triageState(events[1])),
                 std::pair(TriageState(TriageState::kept), TriageState(TriageState::new_)));
        const ArchivedEvent *part = state.vaultIndex().newestRecord(events[1].id());
        QVERIFY(part && part->isIncomplete());

        // Pulled out for real.
        drive.reset();
        QTRY_VERIFY_WITH_TIMEOUT(state.currentFailure() && state.currentFailure()->kind() == DriveFailure::DriveDisconnected,
                                 10000);

        // Another drive at the same place, with the same name: not the one.
        QSignalSpy checked(&state, &AppState::keepDriveChecked);
        {
            FaultyFs other(mountPoint);
            QVERIFY(other.isMounted());
            other.setCapacity(capacity / 2);
            fill(other, 5000);
            QTRY_VERIFY_WITH_TIMEOUT(checked.count() == 1, 10000);
            QCOMPARE(checked.at(0).at(1).toBool(), false);
            QVERIFY(state.isArchivePaused());
        }
        QTRY_VERIFY_WITH_TIMEOUT(std::none_of(state.driveVolumeCandidates().begin(), state.driveVolumeCandidates().end(),
                                              [&](const VolumeCandidate &c) { return c.volumeURL == mountPoint; }),
                                 10000);

        // The same drive back: the keep goes on by itself, from where it stopped.
        FaultyFs back(mountPoint);
        QVERIFY(back.isMounted());
        back.setCapacity(capacity);
        fill(back, 100);
        QTRY_VERIFY_WITH_TIMEOUT(state.showArchiveReport(), 30000);
        QCOMPARE(checked.last().at(1).toBool(), true);
        QVERIFY(!state.isArchivePaused() && !state.isArchiving());
        // Only what hadn't arrived was read again.
        QCOMPARE(back.bytesServed(), 3 * clipSize + jsonBytes.value(names[1]) + jsonBytes.value(names[2]));
        const ArchiveReport &report = *state.lastArchiveReport();
        QCOMPARE(std::tuple(report.plannedEvents, report.completeEvents(), report.stoppedBecause.has_value(), report.cancelled,
                            report.failedFiles.size()),
                 std::tuple(3, 3, false, false, size_t(0)));
        // Every event kept, every kept clip with the first drive's bytes.
        const VaultIndex index = VaultIndex::load(vault);
        for (const TeslaEvent &e : events) {
            QCOMPARE(state.triageState(e), TriageState::kept);
            const ArchivedEvent *newest = index.newestRecord(e.id());
            QVERIFY(newest && !newest->isIncomplete());
            for (const ArchivedFile &f : newest->files)
                if (contents.contains(f.name))
                    QCOMPARE(DriveBuilder::sha256Hex(vault + QLatin1Char('/') + newest->relativePath + QLatin1Char('/') + f.name),
                             DriveBuilder::sha256Hex(contents.value(f.name)));
        }
        for (const EventCheck &check : VaultVerifier::verify(vault).events)
            QVERIFY2(check.ok(), qPrintable(check.eventID));
    }
};

KEELHOLD_ISOLATED_TEST_MAIN(TestAppState)

#include "tst_appstate.moc"
