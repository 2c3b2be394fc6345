#include "DrivingDataPreferences.h"
#include "ExportFlow.h"
#include "ListPlayerKeyRouter.h"
#include "PlayerKeyActions.h"
#include "PlayerLayout.h"
#include "EventPlayerPresenter.h"
#include "VideoMirror.h"
#include "drive/DriveBoundary.h"
#include "engine/LiveEngine.h"
#include "engine/MockEngine.h"
#include "playback/TrackPlayer.h"
#include "support/FaultyFs.h"
#include "support/TeslaCamFixture.h"
#include "support/TestClips.h"
#include "support/TmpfsMount.h"
#include "support/TreeSnapshot.h"

#include <QFile>
#include <QScopeGuard>
#include <QDir>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QVideoFrame>
#include <QVideoSink>
#include <QtTest>

#include <unistd.h>

class TestPlayerRules : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        QCoreApplication::setOrganizationName(QStringLiteral("KeelholdTest"));
    }

    void gridAndMarkAndTexts()
    {
        for (auto [cameras, columns] : {std::pair{1, 2}, {4, 2}, {5, 3}, {7, 3}})
            QCOMPARE(PlayerLayout::gridColumns(cameras), columns);
        // Thumb travel is inset 12 points at each end.
        QCOMPARE(PlayerLayout::momentMarkX(QVariant(30.0), 60.0, 224), 112.0);
        QCOMPARE(PlayerLayout::momentMarkX(QVariant(0.0), 60.0, 224), 12.0);
        QVERIFY(PlayerLayout::momentMarkX(QVariant(), 60.0, 224) < 0);
        QVERIFY(PlayerLayout::momentMarkX(QVariant(5.0), 0.0, 224) < 0);
        QCOMPARE(PlayerLayout::coordinatesText(QVariant(), QVariant(2.0)), QStringLiteral("Location unknown"));

        const QVariantList four{QVariantMap{{"camera", "front"}}, QVariantMap{{"camera", "back"}},
                                QVariantMap{{"camera", "left_repeater"}}, QVariantMap{{"camera", "right_repeater"}}};
        QCOMPARE(PlayerLayout::gridMode(QString(), four, false), QStringLiteral("grid"));
        QCOMPARE(PlayerLayout::gridMode(QStringLiteral("back"), four, false), QStringLiteral("focused"));
        // A focused camera with no tile of its own doesn't hide the grid.
        QCOMPARE(PlayerLayout::gridMode(QStringLiteral("left_pillar"), four, false), QStringLiteral("grid"));
        QCOMPARE(PlayerLayout::gridMode(QStringLiteral("left_pillar"), {}, true), QStringLiteral("loading"));
        // Tiles waiting for their clips already show the cameras.
        QCOMPARE(PlayerLayout::gridMode(QString(), four, true), QStringLiteral("grid"));
        QCOMPARE(PlayerLayout::gridMode(QString(), {}, false), QStringLiteral("empty"));

        QVERIFY(!PlayerLayout::detailEmptyState(false, false).value("action").toString().isEmpty());
        QVERIFY(PlayerLayout::detailEmptyState(false, true).value("action").toString().isEmpty());
        QVERIFY(PlayerLayout::detailEmptyState(true, false).value("message").toString().contains("no Tesla drive"));
    }

    void routerIgnoresModifiersAndStrangersAndDefersFocus()
    {
        MockEngine engine;
        AppState state(engine);
        ListPlayerKeyRouter router;
        router.setAppState(&state);
        QVERIFY(!router.keyPressed(Qt::Key_M, Qt::ShiftModifier, QStringLiteral("M")));
        QVERIFY(!router.keyPressed(Qt::Key_F, Qt::ControlModifier, QStringLiteral("f")));
        QVERIFY(!router.keyPressed(Qt::Key_8, 0, QStringLiteral("8")));
        QVERIFY(!router.keyPressed(Qt::Key_9, 0, QStringLiteral("9")));
        QVERIFY(router.keyPressed(Qt::Key_M, 0, QStringLiteral("m")));
        QVERIFY(router.keyPressed(Qt::Key_Space, 0, QStringLiteral(" ")));
        // No controller: a digit passes on.
        QVERIFY(!router.keyPressed(Qt::Key_3, 0, QStringLiteral("3")));
        router.setHandlesTriage(false);
        QVERIFY(!router.keyPressed(Qt::Key_K, 0, QStringLiteral("k")));
        router.setHandlesTriage(true);
        QVERIFY(router.keyPressed(Qt::Key_K, 0, QStringLiteral("k")));
        QCOMPARE(PlayerKeyActions::cameraDigit(QStringLiteral("7")), 7);
        QCOMPARE(PlayerKeyActions::cameraDigit(QStringLiteral("0")), 0);
        QCOMPARE(PlayerKeyActions::cameraDigit(QStringLiteral("12")), 0);

        // F acts one turn later.
        const bool before = state.isFocusMode();
        QVERIFY(router.keyPressed(Qt::Key_F, 0, QStringLiteral("f")));
        QCOMPARE(state.isFocusMode(), before);
        QTRY_COMPARE(state.isFocusMode(), !before);
    }

    // A cached scan of the same volume may show first; wait for this one.
    static void scan(AppState &state, const QString &root, int events)
    {
        state.setShowOnboarding(false);
        state.beginScan(root);
        QTRY_VERIFY_WITH_TIMEOUT(state.driveScan() && !state.isScanning() && !state.isRevalidatingScan() &&
                                     int(state.driveScan()->events.size()) == events &&
                                     state.driveScan()->events.front().folderURL.startsWith(root),
                                 30000);
    }

    static QString realEvent(TeslaCamFixture &fx, const QString &name, const QString &when, int cameras = 2)
    {
        const QString dir = fx.addEvent(QStringLiteral("SavedClips"), name,
                                        TeslaCamFixture::eventJson(when, QStringLiteral("user_interaction_honk"),
                                                                   QStringLiteral("Taylor"), QStringLiteral("30.6075"),
                                                                   QStringLiteral("-97.4812")));
        const QString source = TestClips::clip({.seconds = 2});
        const QString stamp = name.left(17) + QStringLiteral("00");
        const char *names[] = {"front", "back", "left_repeater", "right_repeater"};
        for (int i = 0; i < cameras; ++i)
            fx.addClip(dir, stamp, QString::fromLatin1(names[i]), 0, source);
        return QStringLiteral("saved|") + name;
    }

    // A saved event of sound clips that all start at `start`, as a scan lists it.
    static TeslaEvent savedEvent(const QString &folderName, Date start, const QList<std::pair<Camera, QString>> &clips)
    {
        TeslaEvent event;
        event.kind = EventKind::saved;
        event.folderName = folderName;
        event.timestamp = start;
        event.missingEventJSON = false;
        for (const auto &[camera, url] : clips) {
            ClipRef clip;
            clip.url = url;
            clip.camera = camera;
            clip.startDate = start;
            clip.health = ClipHealth::ok;
            event.clips.push_back(clip);
        }
        return event;
    }

    // The presenter on a real scanned drive: opening marks a new event
    // reviewed and hands its controller to the keys; a reviewed, kept or
    // dismissed event keeps its state; the one controller is reused; a
    // vanished event stops the player and lets go of the keys.
    void presenterOpensEventsOnOneController()
    {
        QTemporaryDir dir;
        TeslaCamFixture fx(dir.filePath(QStringLiteral("TeslaCam")));
        const QString a = realEvent(fx, QStringLiteral("2026-02-01_10-00-40"), QStringLiteral("2026-02-01T10:00:30"));
        const QString b = realEvent(fx, QStringLiteral("2026-02-02_11-00-40"), QStringLiteral("2026-02-02T11:00:30"));
        LiveEngine engine;
        AppState state(engine);
        scan(state, fx.root(), 2);
        state.setTriage(TriageState::dismissed, b);

        EventPlayerPresenter presenter;
        presenter.setAppState(&state);
        QVERIFY(!presenter.hasEvent());
        QVERIFY(!presenter.controller());
        presenter.setEventID(a);
        QVERIFY(presenter.hasEvent());
        SyncPlayerController *controller = presenter.controller();
        QVERIFY(controller);
        QCOMPARE(state.activePlayerController(), static_cast<QObject *>(controller));
        QCOMPARE(state.triageState(a).rawValue(), QStringLiteral("reviewed"));
        const QVariantMap meta = presenter.metadata();
        QCOMPARE((QStringList{meta.value("city").toString(), meta.value("coordinatesText").toString(),
                              meta.value("damagedCount").toString(), meta.value("verified").toString()}),
                 (QStringList{"Taylor", "30.6075, -97.4812", "0", "false"}));
        QVERIFY(meta.value("dateText").toString().contains(QStringLiteral("10:00:30")));
        QVERIFY(!presenter.keepProminent()); // a honk isn't urgent
        QTRY_VERIFY_WITH_TIMEOUT(!controller->isLoadingTiles(), 15000);
        QCOMPARE(int(controller->tiles().size()), 2);

        presenter.chooseRate(2.0);
        presenter.setEventID(b);
        QCOMPARE(presenter.controller(), controller);
        QCOMPARE(controller->rate(), 2.0f);
        QCOMPARE(state.triageState(b).rawValue(), QStringLiteral("dismissed"));
        QTRY_VERIFY_WITH_TIMEOUT(!controller->isLoadingTiles(), 15000);

        presenter.setEventID(QStringLiteral("saved|1999-01-01_00-00-00"));
        QVERIFY(!presenter.hasEvent());
        QVERIFY(!controller->isPlaying());
        QCOMPARE(state.activePlayerController(), nullptr);
        // The build may finish before setEventID returns, so watch the signal rather than the flag.
        QSignalSpy loading(controller, &SyncPlayerController::isLoadingTilesChanged);
        presenter.setEventID(b);
        QCOMPARE(state.activePlayerController(), static_cast<QObject *>(controller));
        QVERIFY(loading.count() >= 1);
        QTRY_VERIFY_WITH_TIMEOUT(!controller->isLoadingTiles(), 15000);
        QCOMPARE(int(controller->tiles().size()), 2);
    }

    // A view that joins late shows at once what the player shows now.
    void videoMirrorFansFramesOut()
    {
        TrackPlayer player{Composition()};
        QVideoSink first, second;
        VideoMirror a, b;
        a.setTarget(&first);
        a.setPlayer(&player);
        QVideoSink *hub = VideoMirror::hubFor(&player);
        QVERIFY(hub);
        QCOMPARE(player.videoSink(), hub);
        QCOMPARE(VideoMirror::hubFor(&player), hub);
        QVideoFrame frame(QVideoFrameFormat(QSize(16, 16), QVideoFrameFormat::Format_YUV420P));
        hub->setVideoFrame(frame);
        QCOMPARE(first.videoFrame().size(), QSize(16, 16));
        b.setPlayer(&player);
        b.setTarget(&second);
        QCOMPARE(second.videoFrame().size(), QSize(16, 16));
        QCOMPARE(player.videoSink(), hub); // the player's sink never moved
        // A view that loses its player keeps its last picture (the tile dims or hides it) and stops following.
        b.setPlayer(nullptr);
        hub->setVideoFrame(QVideoFrame(QVideoFrameFormat(QSize(32, 32), QVideoFrameFormat::Format_YUV420P)));
        QCOMPARE(first.videoFrame().size(), QSize(32, 32));
        QCOMPARE(second.videoFrame().size(), QSize(16, 16));
        // A new player without a picture yet leaves it too; its first picture replaces it.
        TrackPlayer next{Composition()};
        b.setPlayer(&next);
        QCOMPARE(second.videoFrame().size(), QSize(16, 16));
        VideoMirror::hubFor(&next)->setVideoFrame(
            QVideoFrame(QVideoFrameFormat(QSize(8, 8), QVideoFrameFormat::Format_YUV420P)));
        QCOMPARE(second.videoFrame().size(), QSize(8, 8));
        QVERIFY(!VideoMirror::hubFor(&a)); // not a player
    }

    // A real export through the live engine on generated clips (the sheet's
    // states and the movie itself are proven in the window test): the camera
    // choice, two exports in two folders, one copy at a time, and a failed
    // copy shown next to the earlier success.
    void exportFlowExportsRealFootage()
    {
        QTemporaryDir dir;
        TeslaCamFixture fx(dir.filePath(QStringLiteral("TeslaCam")));
        const QString id = realEvent(fx, QStringLiteral("2026-02-01_10-00-40"), QStringLiteral("2026-02-01T10:00:30"), 3);
        LiveEngine engine;
        AppState state(engine);
        scan(state, fx.root(), 1);
        const TeslaEvent event = state.driveScan()->events.front();
        QCOMPARE(event.id(), id);

        ExportFlow flow(engine, event);
        QCOMPARE(int(flow.availableCameras().size()), 3);
        QCOMPARE(flow.availableCameras().back(), Camera::back);
        flow.setProperty("selectedCamera", QStringLiteral("left_repeater"));
        QCOMPARE(flow.selectedCamera(), std::optional<Camera>(Camera::leftRepeater));
        flow.setProperty("selectedCamera", QStringLiteral("rear_backup")); // not in the event: ignored
        QCOMPARE(flow.selectedCamera(), std::optional<Camera>(Camera::leftRepeater));
        QVERIFY(flow.canExport());
        flow.startExport();
        QVERIFY(!flow.canExport());
        QTRY_COMPARE_WITH_TIMEOUT(flow.stateName(), QStringLiteral("ready"), 30000);
        const QString first = *flow.exportedPath();
        QVERIFY(first.endsWith(QStringLiteral(".mp4")));

        // Saving (over a file already there: the window test's real dialog).
        const QString target = dir.filePath(QStringLiteral("copy.mp4"));
        QSignalSpy saved(&flow, &ExportFlow::saveFinished);
        QVERIFY(flow.saveTo(QUrl::fromLocalFile(target).toString()));
        QVERIFY(flow.isSaving());
        QVERIFY(!flow.saveTo(target)); // one copy at a time
        QTRY_COMPARE_WITH_TIMEOUT(saved.count(), 1, 10000);
        QCOMPARE(saved.takeFirst().at(0).toBool(), true);
        QVERIFY(!flow.isSaving());
        QCOMPARE(QFileInfo(target).size(), QFileInfo(first).size());
        QVERIFY(flow.saveTo(dir.filePath(QStringLiteral("missing/dir/x.mp4"))));
        QTRY_COMPARE_WITH_TIMEOUT(saved.count(), 1, 10000);
        QCOMPARE(saved.takeFirst().at(0).toBool(), false);
        QCOMPARE(flow.saveErrorMessage(), std::optional<QString>(ExportFlow::saveFailureMessage));
        QCOMPARE(flow.savedText(), QStringLiteral("Saved as copy.mp4")); // both lines stand

        // A second export goes to a folder of its own.
        ExportFlow again(engine, event);
        again.startExport();
        QTRY_COMPARE_WITH_TIMEOUT(again.stateName(), QStringLiteral("ready"), 30000);
        QVERIFY(QFileInfo(*again.exportedPath()).path() != QFileInfo(first).path());
    }

    // Nothing of ours lands on the car's drive, outside its TeslaCam folder
    // too: a keep into a Vault chosen there before the drive was opened fails
    // with the reason, and a movie can't be saved there.
    void nothingOfOursLandsOnTheDrive()
    {
        if (::geteuid() != 0)
            QSKIP("needs root to mount a drive");
        QTemporaryDir dir;
        const TmpfsMount drive(dir.path(), QStringLiteral("drive-XXXXXX"), QStringLiteral("size=64m"));
        if (!drive.ok())
            QSKIP("tmpfs mount not available");
        const QDir mountPoint(drive.path());
        TeslaCamFixture fx(mountPoint.filePath(QStringLiteral("TeslaCam")));
        const QString id = realEvent(fx, QStringLiteral("2026-02-01_10-00-40"), QStringLiteral("2026-02-01T10:00:30"), 1);
        LiveEngine engine;
        AppState state(engine);
        scan(state, fx.root(), 1);
        const TreeSnapshot before = TreeSnapshot::take(mountPoint.path());
        // As if remembered from before this drive was plugged in.
        state.setVaultURL(mountPoint.filePath(QStringLiteral("Vault")));
        state.keep({state.driveScan()->events.front()});
        QTRY_VERIFY_WITH_TIMEOUT(state.lastArchiveReport() && !state.isArchiving(), 10000);
        QCOMPARE(state.lastArchiveReport()->archivedEvents.size(), size_t(0));
        QCOMPARE(state.lastArchiveReport()->failedFiles.size(), size_t(1));
        QCOMPARE(state.lastArchiveReport()->failedFiles.front().reason, DriveBoundary::vaultRefusal);

        EventPlayerPresenter presenter;
        presenter.setAppState(&state);
        presenter.setEventID(id);
        ExportFlow *flow = presenter.newExportFlow();
        QVERIFY(flow);
        flow->startExport();
        QTRY_COMPARE_WITH_TIMEOUT(flow->stateName(), QStringLiteral("ready"), 30000);
        QSignalSpy saved(flow, &ExportFlow::saveFinished);
        QVERIFY(flow->saveTo(mountPoint.filePath(QStringLiteral("TeslaCam/movie.mp4"))));
        QTRY_COMPARE_WITH_TIMEOUT(saved.count(), 1, 10000);
        QCOMPARE(saved.takeFirst().at(0).toBool(), false);
        QCOMPARE(flow->saveErrorMessage(), std::optional<QString>(DriveBoundary::exportRefusal));

        QCOMPARE(before.differences(TreeSnapshot::take(mountPoint.path()), true), QString());
    }

    void failedSaveKeepsTheOldFileAndLeavesNoPart()
    {
        QTemporaryDir dir;
        const QString source = dir.filePath(QStringLiteral("export.mp4"));
        TeslaCamFixture::writeFile(source, QByteArray(3 * 1024 * 1024, 'v'));
        const auto entries = [](const QString &folder) {
            return QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System);
        };

        // A folder in the way (plain replacing is the export's save test).
        QDir().mkpath(dir.filePath(QStringLiteral("out")));
        TeslaCamFixture::writeFile(dir.filePath(QStringLiteral("out/clip.mp4")), "old");
        QDir().mkpath(dir.filePath(QStringLiteral("out/folder.mp4")));
        QVERIFY(!ExportFlow::copyReplacing(source, dir.filePath(QStringLiteral("out/folder.mp4"))));
        QVERIFY(QFileInfo(dir.filePath(QStringLiteral("out/folder.mp4"))).isDir());
        QCOMPARE(entries(dir.filePath(QStringLiteral("out"))), QStringList{QStringLiteral("clip.mp4")});

        // A disk too small for the copy.
        if (::geteuid() != 0)
            QSKIP("needs root to mount a small tmpfs");
        const TmpfsMount smallDisk(dir.path(), QStringLiteral("small-XXXXXX"), QStringLiteral("size=1m"));
        if (!smallDisk.ok())
            QSKIP("tmpfs mount not available");
        const QDir mountPoint(smallDisk.path());
        const QString small = mountPoint.filePath(QStringLiteral("clip.mp4"));
        TeslaCamFixture::writeFile(small, "what the user had");
        QVERIFY(!ExportFlow::copyReplacing(source, small));
        QFile kept(small);
        QVERIFY(kept.open(QIODevice::ReadOnly));
        QCOMPARE(kept.readAll(), QByteArray("what the user had"));
        QCOMPARE(entries(mountPoint.path()), QStringList{QStringLiteral("clip.mp4")});
    }

    // A failure says so in plain words; a stop while the clips are still
    // being prepared (the drive hangs on the first read) goes back to
    // choosing without a message. Neither leaves its scratch folder behind.
    void exportFailureAndStop()
    {
        QTemporaryDir dir;
        TeslaCamFixture fx(dir.filePath(QStringLiteral("TeslaCam")));
        // Clips that are only zeros: nothing to export.
        const QString folder = fx.addEvent(QStringLiteral("SavedClips"), QStringLiteral("2026-02-03_10-00-40"),
                                           TeslaCamFixture::eventJson(QStringLiteral("2026-02-03T10:00:30"),
                                                                      QStringLiteral("user_interaction_honk")));
        fx.addClip(folder, QStringLiteral("2026-02-03_10-00-00"), QStringLiteral("front"), 200000);
        LiveEngine engine;
        AppState state(engine);
        scan(state, fx.root(), 1);
        // A copy: the probe that follows the scan replaces the state's list.
        const TeslaEvent bad = state.driveScan()->events.front();

        // Scratch folders go where the system's temporary files go.
        const QString scratch = dir.filePath(QStringLiteral("scratch"));
        QVERIFY(QDir().mkpath(scratch));
        const auto restore = qScopeGuard([old = qgetenv("TMPDIR")] {
            old.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", old);
        });
        qputenv("TMPDIR", QFile::encodeName(scratch));
        ExportFlow failing(engine, bad);
        failing.startExport();
        QTRY_VERIFY_WITH_TIMEOUT(!failing.isExporting(), 30000);
        QCOMPARE(failing.errorMessage(), std::optional<QString>(ExportFlow::failureMessage));
        QCOMPARE(failing.selectedCamera(), std::optional<Camera>(Camera::front)); // the choice survives
        QVERIFY(failing.canExport());
        // A new movie of the same clips fails in the same plain words.
        failing.setLayout(CombinedExportOptions::Layout::grid);
        failing.startExport();
        QTRY_VERIFY_WITH_TIMEOUT(!failing.isExporting(), 30000);
        QCOMPARE(failing.errorMessage(), std::optional<QString>(ExportFlow::failureMessage));
        QVERIFY(failing.isCombined() && failing.canExport());
        const auto everythingIn = [](const QString &folder) {
            return QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
        };
        QCOMPARE(everythingIn(scratch), QStringList());

        KEELHOLD_FAULTY_FS(fs, mountPoint);
        QFile source(TestClips::clip());
        QVERIFY(source.open(QIODevice::ReadOnly));
        const QString relative = QStringLiteral("TeslaCam/SavedClips/2026-02-05_10-00-40/2026-02-05_10-00-00-front.mp4");
        fs.addFile(relative, source.readAll());
        fs.hangReadsFrom(relative, 0);
        TeslaEvent event = savedEvent(QStringLiteral("2026-02-05_10-00-40"), Date(800000000.0),
                                      {{Camera::front, mountPoint.filePath(relative)}});
        event.folderURL = mountPoint.filePath(QStringLiteral("TeslaCam/SavedClips/2026-02-05_10-00-40"));
        event.clips.front().fileSize = source.size();
        // Another scratch: the drive's mount point and the test's clips went into the first.
        const QString stopScratch = dir.filePath(QStringLiteral("stop-scratch"));
        QVERIFY(QDir().mkpath(stopScratch));
        qputenv("TMPDIR", QFile::encodeName(stopScratch));
        ExportFlow stopped(engine, event);
        stopped.startExport();
        QTRY_VERIFY_WITH_TIMEOUT(fs.isHanging(), 10000);
        stopped.stop();
        // The preparation ends while the drive still holds the read, which is left behind until the drive answers.
        QTRY_VERIFY_WITH_TIMEOUT(!stopped.isExporting(), 30000);
        QVERIFY(fs.isHanging());
        QCOMPARE(everythingIn(stopScratch), QStringList());
        fs.release();
        QCOMPARE(std::pair(stopped.stateName(), stopped.errorMessage()),
                 std::pair(QStringLiteral("choosing"), std::optional<QString>()));
    }

    // The sheet's offers follow the event: its moment and length, its driving data, its cameras.
    void combinedChoicesFollowTheEvent()
    {
        TeslaEvent event = savedEvent(QStringLiteral("2026-02-06_10-00-40"), Date(800000000.0),
                                      {{Camera::back, QStringLiteral("/nowhere/back.mp4")},
                                       {Camera::front, QStringLiteral("/nowhere/front.mp4")}});
        event.timestamp = Date(800000030.0); // 30 s into the footage
        MockEngine engine;
        ExportFlow flow(engine, event);
        QVERIFY(flow.needsCamera());
        // Before the player knows its length only the whole event is offered.
        QVERIFY(!flow.momentOffered() && !flow.customOffered());
        flow.setRange(ExportFlow::Range::moment);
        QCOMPARE(flow.range(), ExportFlow::Range::whole);
        flow.setTimelineLength(40.0);
        QVERIFY(flow.momentOffered() && flow.customOffered());

        flow.setProperty("layout", QStringLiteral("single"));
        flow.setSelectedCamera(Camera::back);
        flow.setRange(ExportFlow::Range::moment);
        CombinedExportOptions options = flow.combinedOptions();
        QCOMPARE(options.layout, CombinedExportOptions::Layout::single);
        QCOMPARE(options.camera, std::optional<Camera>(Camera::back));
        QCOMPARE(options.range, (std::optional<std::pair<double, double>>({20.0, 40.0})));
        QVERIFY(options.overlay.telemetry); // offered while still unknown
        // The speed in the unit the player was last switched to.
        DrivingDataPreferences::shared()->setUseMiles(true);
        QCOMPARE(flow.combinedOptions().speedInMiles, std::optional<bool>(true));
        DrivingDataPreferences::shared()->setUseMiles(false);
        QCOMPARE(flow.combinedOptions().speedInMiles, std::optional<bool>(false));

        flow.setProperty("layout", QStringLiteral("front-sides"));
        QVERIFY(!flow.needsCamera());
        flow.setRange(ExportFlow::Range::custom);
        flow.setCustomStart(-5);
        flow.setCustomEnd(99);
        options = flow.combinedOptions();
        QCOMPARE(options.layout, CombinedExportOptions::Layout::frontAndSides);
        QVERIFY(!options.camera);
        QCOMPARE(options.range, (std::optional<std::pair<double, double>>({0.0, 40.0})));

        // Clips without driving data: the part is neither offered nor drawn.
        flow.setDrivingData(ExportFlow::DrivingData::absent);
        QVERIFY(!flow.drivingDataOffered());
        QVERIFY(!flow.combinedOptions().overlay.telemetry);
        flow.setShowTime(false);
        flow.setShowNames(false);
        QCOMPARE(flow.combinedOptions().overlay, (CombinedExportOptions::Overlay{false, false, true, false}));

        // Back to the plain copy: a camera is needed, the range doesn't matter.
        flow.setProperty("layout", QStringLiteral("original"));
        flow.setCustomStart(40);
        QVERIFY(flow.canExport());
    }
};

QTEST_MAIN(TestPlayerRules)
#include "tst_playerrules.moc"
