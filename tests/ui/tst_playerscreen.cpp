// The real application window, in-process under xvfb-run: the player screen
// on the sample footage and on fixture drives, driven by real key presses
// and mouse clicks, checked by the state it leaves and by the pixels it draws.

#include "AppWindowHarness.h"
#include "FileDialogDriver.h"
#include "ActivityStrip.h"
#include "ExportFlow.h"
#include "KeyboardHints.h"
#include "playback/SyncPlayerController.h"
#include "playback/TrackPlayer.h"
#include "support/DriveBuilder.h"
#include "support/FaultyFs.h"
#include "support/IsolatedHome.h"
#include "support/MovieFacts.h"
#include "support/TeslaCamFixture.h"
#include "support/TestClips.h"

#include <QElapsedTimer>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QScopeGuard>
#include <QSet>
#include <QSettings>
#include <QTemporaryDir>

namespace {

const QString sixCameraEvent = QStringLiteral("sentry|2024-06-14_21-42-10");

// Shown items only: a closed sheet keeps its controls.
QQuickItem *findItem(QQuickItem *root, const QString &name) { return AppWindowHarness::findItem(root, name, true); }

// Whether the item's area of a window grab shows a picture rather than a
// black field with a placeholder: plenty of lit pixels and many colours.
bool showsPicture(const QImage &shot, QQuickItem *item, QString *why = nullptr)
{
    const QRectF scene = item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
    const QRect area = scene.toAlignedRect().adjusted(int(scene.width() * 0.2), int(scene.height() * 0.25),
                                                      -int(scene.width() * 0.2), -int(scene.height() * 0.1))
                           .intersected(shot.rect());
    if (area.isEmpty())
        return false;
    int lit = 0, total = 0;
    QSet<QRgb> colours;
    for (int y = area.top(); y <= area.bottom(); y += 2)
        for (int x = area.left(); x <= area.right(); x += 2) {
            const QRgb p = shot.pixel(x, y);
            ++total;
            if (qRed(p) + qGreen(p) + qBlue(p) > 90)
                ++lit;
            colours.insert(p & 0xF0F0F0);
        }
    if (why)
        *why = QStringLiteral("%1: %2 of %3 lit, %4 colours").arg(item->objectName()).arg(lit).arg(total).arg(colours.size());
    // Footage is mostly lit (sky, road); a placeholder is mostly black.
    return lit > total / 2 && colours.size() >= 3;
}

} // namespace

class PlayerScreenTest : public QObject {
    Q_OBJECT

    std::unique_ptr<KeelholdApp> app_;
    AppState *state_ = nullptr;
    QQmlApplicationEngine *qml_ = nullptr;
    QQuickWindow *window_ = nullptr;
    QTemporaryDir work_;
    QString shotsDir_;

    QQuickItem *shown(const QString &name) const { return findItem(window_->contentItem(), name); }

    SyncPlayerController *controller() const { return qobject_cast<SyncPlayerController *>(state_->activePlayerController()); }

    void key(Qt::Key k) { QTest::keyClick(window_, k, Qt::NoModifier); }

    void click(const QString &objectName)
    {
        QQuickItem *item = shown(objectName);
        QVERIFY2(item, qPrintable(objectName));
        // A sheet that grows re-centres at its next frame: click where the item stands still.
        QVERIFY(AppWindowHarness::settle(window_, item));
        QTest::mouseClick(window_, Qt::LeftButton, Qt::NoModifier, AppWindowHarness::centreOf(item));
    }

    // Opens a combo box's list and picks the entry of that name.
    void choose(const QString &combo, const QString &entry)
    {
        click(combo);
        QTRY_VERIFY2(shown(entry), qPrintable(entry));
        click(entry);
        QTRY_VERIFY2(!shown(entry), qPrintable(entry));
    }

    void typeInto(const QString &objectName, const QString &text)
    {
        click(objectName);
        QTest::keyClick(window_, Qt::Key_A, Qt::ControlModifier);
        for (const QChar c : text)
            QTest::keyClick(window_, c.toLatin1());
        QTest::keyClick(window_, Qt::Key_Return);
    }

    // The flow of the export sheet now open: its presenter's newest.
    ExportFlow *sheetFlow() const
    {
        QQuickItem *view = shown(QStringLiteral("eventPlayerView"));
        auto *presenter = view ? view->property("presenter").value<QObject *>() : nullptr;
        const auto flows = presenter ? presenter->findChildren<ExportFlow *>() : QList<ExportFlow *>();
        return flows.isEmpty() ? nullptr : flows.last();
    }

    // What of the sheet, from its title to its buttons, lies outside the window; empty when it all fits.
    QString sheetOverflow() const
    {
        const QRectF window(0, 0, window_->width(), window_->height());
        for (const char *name : {"exportPromise", "startExportButton", "exportFooterButton"}) {
            QQuickItem *item = shown(QString::fromLatin1(name));
            if (!item)
                continue;
            const QRectF area = item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
            if (!window.contains(area))
                return QStringLiteral("%1 at %2,%3 %4x%5").arg(QString::fromLatin1(name)).arg(area.x()).arg(area.y())
                    .arg(area.width()).arg(area.height());
        }
        return {};
    }

    // settle: move the pointer off the player first, so that no tooltip stands in the picture (runs the event loop).
    void saveShot(const QString &name, bool settle = true)
    {
        if (shotsDir_.isEmpty())
            return;
        if (settle) {
            QTest::mouseMove(window_, QPoint(60, window_->height() - 20));
            QVERIFY(AppWindowHarness::waitForFrame(window_));
        }
        window_->grabWindow().save(QDir(shotsDir_).filePath(name));
    }

    // Every tile of the open event has a player and is drawing its video.
    void verifyAllTilesShowPictures(const QString &prefix = QStringLiteral("cameraTile_"))
    {
        SyncPlayerController *c = controller();
        QVERIFY(c);
        QTRY_VERIFY_WITH_TIMEOUT(!c->isLoadingTiles(), 20000);
        for (const auto &tile : c->tiles()) {
            QVERIFY2(tile.player, qPrintable(tile.camera.rawValue()));
            QTRY_VERIFY_WITH_TIMEOUT(tile.player->hasPicture(), 10000);
        }
        // A grab draws the scene as it stands; the tiles take up their players' latest pictures as those arrive.
        QString why;
        QTRY_VERIFY2_WITH_TIMEOUT(tilesShowPictures(prefix, &why), qPrintable(why), 10000);
    }

    // A picture on each tile that has a player, and none on the others.
    bool tilesShowPictures(const QString &prefix, QString *why)
    {
        const QImage shot = window_->grabWindow();
        for (const auto &tile : controller()->tiles()) {
            // The focused camera's slot in the strip is dimmed; its picture is checked on the large tile.
            if (controller()->focusedCamera() == tile.camera)
                continue;
            QQuickItem *item = shown(prefix + tile.camera.rawValue());
            if (!item) {
                *why = prefix + tile.camera.rawValue() + QStringLiteral(" is not shown");
                return false;
            }
            if (showsPicture(shot, item, why) != bool(tile.player))
                return false;
        }
        return true;
    }

    void openEvent(const QString &id)
    {
        state_->setSelectedSection(SidebarSection::drive);
        state_->setSelectedEventID(id);
        QTRY_VERIFY_WITH_TIMEOUT(controller() != nullptr, 10000);
        QTRY_VERIFY_WITH_TIMEOUT(!controller()->isLoadingTiles(), 20000);
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (qEnvironmentVariableIsEmpty("DISPLAY"))
            QSKIP("needs a display (run the suite under xvfb-run)");
        QVERIFY(AppState::sampleFootageURL().has_value());
        shotsDir_ = qEnvironmentVariable("KEELHOLD_SAVE_SCREENSHOTS");
        app_ = std::make_unique<KeelholdApp>();
        state_ = &app_->appState();
        qml_ = &app_->qmlEngine();
        QStringList warnings;
        // Only while this runs: later warnings don't concern the load.
        QObject loading;
        connect(qml_, &QQmlApplicationEngine::warnings, &loading, [&warnings](const QList<QQmlError> &list) {
            for (const QQmlError &e : list)
                warnings << e.toString();
        });
        QVERIFY(app_->load());
        window_ = app_->mainWindow();
        QVERIFY(window_);
        window_->resize(1280, 800);
        window_->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(window_));
        state_->setShowOnboarding(false);
        QDir().mkpath(work_.filePath(QStringLiteral("Vault")));
        state_->setVaultURL(work_.filePath(QStringLiteral("Vault")));
        state_->loadSampleFootage();
        QTRY_VERIFY_WITH_TIMEOUT(state_->driveScan().has_value() && !state_->isScanning(), 60000);
        QVERIFY2(warnings.isEmpty(), qPrintable(warnings.join('\n')));
    }

    void cleanupTestCase() { app_.reset(); }

    // Someone walks past the side and rear cameras of the sample's Sentry
    // event: the list says where, the strip shows it on each camera's row,
    // and N and Shift+N play from just before each, that camera enlarged.
    void whereSomethingHappened()
    {
        openEvent(sixCameraEvent);
        SyncPlayerController *c = controller();
        ActivityStrip *strip = nullptr;
        QTRY_VERIFY_WITH_TIMEOUT((strip = qobject_cast<ActivityStrip *>(shown(QStringLiteral("activityStrip")))), 30000);
        QCOMPARE(strip->rowCount(), 6);
        const std::vector<ActivityBurst> named = state_->activity().highlights(sixCameraEvent);
        QVERIFY(!named.empty());
        QCOMPARE(named.front().camera, Camera(Camera::leftRepeater));
        QQuickItem *row = shown(QStringLiteral("eventRow_") + sixCameraEvent);
        QTRY_VERIFY(row && findItem(row, QStringLiteral("activityLine")));
        QVERIFY(findItem(row, QStringLiteral("activityLine"))->property("text").toString().startsWith(
            QStringLiteral("Activity: Left Side ") + SyncPlayerController::timeString(named.front().start)));

        c->pause();
        c->seek(0);
        QTRY_VERIFY_WITH_TIMEOUT(!c->isPlaying() && c->currentTime() < 0.5, 10000);
        QVERIFY(shown(QStringLiteral("nextPlaceButton")));
        key(Qt::Key_N);
        const double lead = SyncPlayerController::placeLead;
        QTRY_COMPARE_WITH_TIMEOUT(c->focusedCamera(), std::optional<Camera>(Camera::leftRepeater), 10000);
        QTRY_VERIFY_WITH_TIMEOUT(std::abs(c->currentTime() - (c->places().front().time - lead)) < 1.5, 10000);
        c->pause();
        // On to the next place, and back.
        const double first = c->places().front().time;
        const auto second = std::find_if(c->places().begin(), c->places().end(),
                                         [&](const SyncPlayerController::Place &p) { return p.time - lead > first - lead + 0.5; });
        QVERIFY(second != c->places().end());
        key(Qt::Key_N);
        QTRY_VERIFY_WITH_TIMEOUT(std::abs(c->currentTime() - (second->time - lead)) < 1.5, 10000);
        c->pause();
        QTest::keyClick(window_, Qt::Key_N, Qt::ShiftModifier);
        QTRY_VERIFY_WITH_TIMEOUT(std::abs(c->currentTime() - (first - lead)) < 1.5, 10000);
        QTRY_COMPARE_WITH_TIMEOUT(c->focusedCamera(), std::optional<Camera>(Camera::leftRepeater), 10000);
        c->pause();
        const QVariantList hints = KeyboardHints::items();
        QVERIFY(std::any_of(hints.begin(), hints.end(),
                            [](const QVariant &h) { return h.toMap().value(QStringLiteral("key")).toString().contains(QLatin1Char('N')); }));

        // The strip and the buttons at the smallest window and at full HD.
        c->clearFocus();
        c->seek(first + 1);
        for (const QSize size : {QSize(900, 600), QSize(1920, 1080)}) {
            window_->resize(size);
            QTRY_VERIFY(shown(QStringLiteral("activityStrip")));
            saveShot(QStringLiteral("player-activity-%1x%2.png").arg(size.width()).arg(size.height()));
        }
        window_->resize(1280, 800);

        // The honk drive's hard brake, marked with its word above the strip.
        openEvent(QStringLiteral("saved|2024-06-10_17-05-31"));
        QTRY_VERIFY_WITH_TIMEOUT(shown(QStringLiteral("hardMomentMarks")), 30000);
        controller()->pause();
        controller()->seek(88);
        saveShot(QStringLiteral("player-hard-moments.png"));
    }

    // Opened, kept, played back from the Vault with no drive, and one camera exported and checked.
    void wholeReviewEndToEnd()
    {
        // Open: every tile draws its camera.
        openEvent(sixCameraEvent);
        SyncPlayerController *c = controller();
        QCOMPARE(int(c->tiles().size()), 6);
        QVERIFY(shown(QStringLiteral("gridLayout")));
        verifyAllTilesShowPictures();
        // Its moment, 21:42:10, lies 130 s into footage that starts at 21:40.
        QCOMPARE(c->triggerOffset(), std::optional<double>(130.0));
        QTRY_VERIFY(shown(QStringLiteral("momentMark")));
        QVERIFY(shown(QStringLiteral("momentButton")));

        // Space pauses the playing event, Space plays it again.
        QTRY_VERIFY_WITH_TIMEOUT(c->isPlaying(), 10000);
        c->seek(95); // mid-event, for a picture of it playing
        QTRY_VERIFY_WITH_TIMEOUT(c->isPlaying() && c->currentTime() >= 95, 10000);
        key(Qt::Key_Space);
        QTRY_VERIFY_WITH_TIMEOUT(!c->isPlaying(), 10000);
        const double pausedAt = c->currentTime();
        key(Qt::Key_Space);
        QTRY_VERIFY_WITH_TIMEOUT(c->isPlaying(), 10000);
        // Playing on from where it was paused.
        QTRY_VERIFY_WITH_TIMEOUT(c->currentTime() >= pausedAt + 1.0, 20000);
        saveShot(QStringLiteral("player-grid.png"));
        key(Qt::Key_Space);
        QTRY_VERIFY_WITH_TIMEOUT(!c->isPlaying(), 10000);

        // "." and "," step one frame each way.
        const double paused = c->currentTime();
        key(Qt::Key_Period);
        QTRY_VERIFY_WITH_TIMEOUT(c->currentTime() > paused, 10000);
        const double forward = c->currentTime();
        QVERIFY(forward - paused <= 0.1 + 1e-3);
        key(Qt::Key_Comma);
        QTRY_VERIFY_WITH_TIMEOUT(c->currentTime() < forward, 10000);
        QVERIFY(std::abs(c->currentTime() - paused) <= 0.1 + 1e-3);
        QVERIFY(!c->isPlaying());

        // On a slow computer a seek shows each camera's key frame first and
        // says so under the timeline until the exact frame is in.
        const auto decodeDelay = [c](int ms) {
            for (const auto &tile : c->tiles())
                if (tile.player)
                    tile.player->setDecodeDelay(std::chrono::milliseconds(ms));
        };
        decodeDelay(60);
        c->seek(100.5);
        QTRY_VERIFY_WITH_TIMEOUT(c->isShowingApproximateFrames() && shown(QStringLiteral("approximateFramesNote")), 10000);
        QCOMPARE(shown(QStringLiteral("approximateFramesNote"))->property("text").toString(),
                 QStringLiteral("Finding the exact frame…"));
        saveShot(QStringLiteral("player-finding-exact-frame.png"), false);
        decodeDelay(0);
        QTRY_VERIFY_WITH_TIMEOUT(!c->isShowingApproximateFrames(), 10000);

        // M: ten seconds before the moment, playing.
        c->seek(60);
        key(Qt::Key_M);
        const double cue = 120.0;
        QTRY_VERIFY_WITH_TIMEOUT(c->isPlaying() && std::abs(c->currentTime() - cue) < 1.5, 10000);

        // 2: the second camera large over the strip; 0: the grid again, with playback going on, no jump.
        key(Qt::Key_2);
        QTRY_COMPARE_WITH_TIMEOUT(c->focusedCamera(), std::optional<Camera>(c->tiles()[1].camera), 10000);
        QTRY_VERIFY(shown(QStringLiteral("focusedLayout")));
        QVERIFY(shown(QStringLiteral("showAllCamerasButton")));
        QString why;
        QTRY_VERIFY2_WITH_TIMEOUT(showsPicture(window_->grabWindow(), shown(QStringLiteral("focusedTile")), &why),
                                  qPrintable(why), 10000);
        verifyAllTilesShowPictures(QStringLiteral("stripTile_"));
        saveShot(QStringLiteral("player-focused.png"));
        {
            // Time only ever runs on through the change, and goes on after it.
            std::vector<double> times{c->currentTime()};
            QObject watching;
            connect(c, &SyncPlayerController::currentTimeChanged, &watching, [&] { times.push_back(c->currentTime()); });
            key(Qt::Key_0);
            QTRY_VERIFY_WITH_TIMEOUT(!c->focusedCamera().has_value(), 10000);
            QVERIFY(c->isPlaying());
            const double cleared = c->currentTime();
            QTRY_VERIFY_WITH_TIMEOUT(c->currentTime() > cleared, 10000);
            QVERIFY2(std::is_sorted(times.begin(), times.end()), qPrintable(QString::number(times.front())));
        }
        QTRY_VERIFY(shown(QStringLiteral("gridLayout")));

        // F fills the window with the player; Esc gives the list back.
        key(Qt::Key_F);
        QTRY_VERIFY_WITH_TIMEOUT(state_->isFocusMode() && !shown(QStringLiteral("sidebar")), 10000);
        key(Qt::Key_Escape);
        QTRY_VERIFY_WITH_TIMEOUT(!state_->isFocusMode() && shown(QStringLiteral("sidebar")), 10000);
        // With a modifier held the keys are not the player's. The player acts
        // on its keys in order, one turn later: once a plain 3 has shown its
        // camera, the keys before it would have acted too.
        {
            QSignalSpy focusMode(state_, &AppState::isFocusModeChanged);
            QSignalSpy focusedCamera(c, &SyncPlayerController::focusedCameraChanged);
            QTest::keyClick(window_, Qt::Key_F, Qt::ControlModifier);
            QTest::keyClick(window_, Qt::Key_2, Qt::ShiftModifier);
            key(Qt::Key_3);
            QTRY_COMPARE_WITH_TIMEOUT(c->focusedCamera(), std::optional<Camera>(c->tiles()[2].camera), 10000);
            QCOMPARE(focusedCamera.count(), 1);
            QCOMPARE(focusMode.count(), 0);
            key(Qt::Key_0);
            QTRY_VERIFY_WITH_TIMEOUT(!c->focusedCamera().has_value(), 10000);
        }

        // Typing into a text field never reaches the player.
        {
            QQmlComponent field(qml_);
            field.setData("import QtQuick.Controls\nTextField { objectName: \"probeField\"; width: 200 }", QUrl());
            auto *item = qobject_cast<QQuickItem *>(field.create(qml_->rootContext()));
            QVERIFY(item);
            item->setParentItem(window_->contentItem());
            item->forceActiveFocus();
            QSignalSpy playing(c, &SyncPlayerController::isPlayingChanged);
            QSignalSpy focusMode(state_, &AppState::isFocusModeChanged);
            QTest::keyClick(window_, Qt::Key_Space);
            QTest::keyClick(window_, Qt::Key_F);
            QCOMPARE(item->property("text").toString(), QStringLiteral(" f"));
            delete item;
            // The player's next key is its own, and comes after those two.
            key(Qt::Key_3);
            QTRY_COMPARE_WITH_TIMEOUT(c->focusedCamera(), std::optional<Camera>(c->tiles()[2].camera), 10000);
            QCOMPARE(playing.count(), 0);
            QCOMPARE(focusMode.count(), 0);
            key(Qt::Key_0);
            QTRY_VERIFY_WITH_TIMEOUT(!c->focusedCamera().has_value(), 10000);
        }

        // K keeps it: the report sheet's flag goes up and the event is kept.
        key(Qt::Key_K);
        QTRY_VERIFY_WITH_TIMEOUT(state_->showArchiveReport(), 30000);
        QCOMPARE(state_->triageState(sixCameraEvent).rawValue(), QStringLiteral("kept"));
        QVERIFY(!c->isPlaying()); // keeping pauses the player
        state_->setShowArchiveReport(false);
        QTRY_VERIFY_WITH_TIMEOUT(std::any_of(state_->vaultEvents().begin(), state_->vaultEvents().end(),
                                             [](const TeslaEvent &e) { return e.id() == sixCameraEvent; }),
                                 10000);

        // The drive goes away; the kept copy plays from the Vault.
        state_->exitSampleMode();
        QTRY_VERIFY(!state_->driveScan().has_value());
        state_->setSelectedSection(SidebarSection::vault);
        state_->setSelectedVaultEventID(sixCameraEvent);
        QTRY_VERIFY_WITH_TIMEOUT(controller() != nullptr && controller() != c, 10000);
        c = controller();
        QTRY_VERIFY_WITH_TIMEOUT(!c->isLoadingTiles(), 20000);
        QCOMPARE(int(c->tiles().size()), 6);
        verifyAllTilesShowPictures();
        QVERIFY(shown(QStringLiteral("verifiedBadge")));
        QTRY_VERIFY_WITH_TIMEOUT(c->isPlaying(), 20000); // cued to its moment, as on the drive
        // K and D act on the event shown, though it is now only in the Vault:
        // nothing to copy, so the report says it is already there.
        key(Qt::Key_K);
        QTRY_VERIFY(state_->showArchiveReport());
        QCOMPARE(state_->lastArchiveReport()->skippedDuplicates, 1);
        QVERIFY(state_->lastArchiveReport()->archivedEvents.empty() && !state_->isArchiving());
        state_->setShowArchiveReport(false);
        key(Qt::Key_D);
        QTRY_COMPARE(state_->triageState(sixCameraEvent).rawValue(), QStringLiteral("dismissed"));

        // Export & Share: the front camera, then a copy over an existing file.
        click(QStringLiteral("exportButton"));
        QTRY_VERIFY(shown(QStringLiteral("startExportButton")));
        ExportFlow *flow = sheetFlow();
        QVERIFY(flow);
        QCOMPARE(flow->selectedCamera(), std::optional<Camera>(Camera::front));
        QCOMPARE(flow->stateName(), QStringLiteral("choosing"));
        QVERIFY(shown(QStringLiteral("exportPromise")));
        // Player keys don't act behind the sheet, checked until the export ends, many turns later.
        QSignalSpy playingBehind(c, &SyncPlayerController::isPlayingChanged);
        QSignalSpy focusedBehind(c, &SyncPlayerController::focusedCameraChanged);
        key(Qt::Key_Space);
        key(Qt::Key_2);
        saveShot(QStringLiteral("export-choosing.png"));
        click(QStringLiteral("startExportButton"));
        QCOMPARE(flow->stateName(), QStringLiteral("exporting"));
        saveShot(QStringLiteral("export-exporting.png"), false);
        QTRY_COMPARE_WITH_TIMEOUT(flow->stateName(), QStringLiteral("ready"), 60000);
        QTRY_VERIFY(shown(QStringLiteral("saveToButton")));
        QCOMPARE(playingBehind.count(), 0);
        QCOMPARE(focusedBehind.count(), 0);
        saveShot(QStringLiteral("export-ready.png"));

        const QString destination = work_.filePath(QStringLiteral("Videos/front.mp4"));
        TeslaCamFixture::writeFile(destination, "an older file in the way");
        // The real save dialog: at the Videos folder with the movie's name;
        // a name typed over it, and the file in the way replaced on request.
        click(QStringLiteral("saveToButton"));
        QFileDialog *dialog = FileDialogDriver::waitForDialog();
        QVERIFY(dialog);
        QCOMPARE(dialog->acceptMode(), QFileDialog::AcceptSave);
        QCOMPARE(dialog->windowTitle(), QStringLiteral("Save to…"));
        QVERIFY(FileDialogDriver::typedName(dialog).endsWith(QStringLiteral(".mp4")));
        QVERIFY(FileDialogDriver::answer(destination, FileDialogDriver::ReplaceExisting::yes));
        QTRY_COMPARE(flow->savedText(), QStringLiteral("Saved as front.mp4"));

        click(QStringLiteral("exportFooterButton")); // Done
        QTRY_VERIFY(!shown(QStringLiteral("saveToButton")));
        QVERIFY(QFileInfo::exists(*flow->exportedPath())); // left in the scratch folder

        // A new movie of every camera, stopped once it is under way: back to
        // choosing, quietly, and nothing of it left in the scratch folder.
        {
            QTemporaryDir scratch;
            const QByteArray oldTemp = qgetenv("TMPDIR");
            qputenv("TMPDIR", QFile::encodeName(scratch.path()));
            const auto restore = qScopeGuard([&] {
                if (oldTemp.isEmpty())
                    qunsetenv("TMPDIR");
                else
                    qputenv("TMPDIR", oldTemp);
            });
            click(QStringLiteral("exportButton"));
            QTRY_VERIFY(shown(QStringLiteral("startExportButton")));
            ExportFlow *combined = sheetFlow();
            QVERIFY(combined && combined != flow);
            QVERIFY(!combined->isCombined()); // the plain copy stays the default
            QVERIFY(!shown(QStringLiteral("exportShowTime")));
            choose(QStringLiteral("exportLayoutChoice"), QStringLiteral("exportLayout_grid"));
            QCOMPARE(combined->layout(), std::optional(CombinedExportOptions::Layout::grid));
            QVERIFY(!shown(QStringLiteral("exportCameraChoice")));
            QVERIFY(shown(QStringLiteral("exportShowTime")));
            QCOMPARE(sheetOverflow(), QString());
            saveShot(QStringLiteral("export-sheet-combined.png"));
            click(QStringLiteral("startExportButton"));
            QCOMPARE(combined->stateName(), QStringLiteral("exporting"));
            // Under way: frames done, the speed and the time left are known.
            QTRY_VERIFY_WITH_TIMEOUT(combined->progressText().contains(QStringLiteral("left")), 60000);
            // A tenth of three minutes of six cameras: far from its end.
            QTRY_VERIFY_WITH_TIMEOUT(combined->progress() >= 0.1, 120000);
            QQuickItem *line = shown(QStringLiteral("exportProgressText"));
            QVERIFY(line);
            QTRY_COMPARE(line->property("text").toString(), combined->progressText());
            QVERIFY2(QRegularExpression(QStringLiteral("^[0-9,]+ of [0-9,]+ frames · [0-9.]+× real time · .+ left$"))
                         .match(combined->progressText()).hasMatch(),
                     qPrintable(combined->progressText()));
            QCOMPARE(sheetOverflow(), QString());
            saveShot(QStringLiteral("export-sheet-exporting.png"));
            click(QStringLiteral("exportFooterButton")); // Stop
            QTRY_COMPARE_WITH_TIMEOUT(combined->stateName(), QStringLiteral("choosing"), 20000);
            QVERIFY(!combined->errorMessage());
            QVERIFY(!combined->exportedPath());
            QCOMPARE(QDir(scratch.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
                     QStringList());
            click(QStringLiteral("exportFooterButton")); // Cancel
            QTRY_VERIFY(!shown(QStringLiteral("startExportButton")));
        }

        // The hint bar's close button hides it and remembers that.
        QTRY_VERIFY(shown(QStringLiteral("keyboardHintBar")));
        click(QStringLiteral("hideHintsButton"));
        QTRY_VERIFY(!shown(QStringLiteral("keyboardHintBar")));
        QVERIFY(!KeyboardHints().showHints()); // as the next start reads it
        QSettings().setValue(KeyboardHints::settingKey, true);
    }

    // A new movie made from the sheet on generated clips: three cameras in
    // a grid at 720p, four seconds typed in as the custom part; it ends
    // ready to hand on, and plays as chosen.
    void combinedMovieFromTheSheet()
    {
        QTemporaryDir drive;
        TeslaCamFixture fx(drive.filePath(QStringLiteral("TeslaCam")));
        const QString source = TestClips::clip({.seconds = 30, .fps = 10, .gop = 10});
        const QString dir = fx.addEvent(QStringLiteral("SavedClips"), QStringLiteral("2026-03-05_10-00-15"),
                                        TeslaCamFixture::eventJson(QStringLiteral("2026-03-05T10:00:15"),
                                                                   QStringLiteral("user_interaction_honk")));
        for (const char *camera : {"front", "back", "left_repeater"})
            fx.addClip(dir, QStringLiteral("2026-03-05_10-00-00"), QString::fromLatin1(camera), 0, source);
        state_->setSelectedSection(SidebarSection::drive);
        state_->beginScan(fx.root());
        QTRY_VERIFY_WITH_TIMEOUT(state_->driveScan() && state_->driveScan()->events.size() == 1 && !state_->isScanning()
                                     && !state_->isRevalidatingScan(),
                                 30000);
        openEvent(state_->driveScan()->events.front().id());
        QVERIFY(std::abs(controller()->duration() - 30.0) < 0.5);

        click(QStringLiteral("exportButton"));
        QTRY_VERIFY(shown(QStringLiteral("startExportButton")));
        ExportFlow *flow = sheetFlow();
        QVERIFY(flow);
        choose(QStringLiteral("exportLayoutChoice"), QStringLiteral("exportLayout_grid"));
        click(QStringLiteral("exportSize_720"));
        QCOMPARE(flow->size(), CombinedExportOptions::Size::p720);
        click(QStringLiteral("exportShowReason"));
        QVERIFY(!flow->showReason());
        // The moment is 15 s in: the custom part starts out as its 5 to 30 s.
        click(QStringLiteral("exportRange_custom"));
        QCOMPARE(flow->range(), ExportFlow::Range::custom);
        QCOMPARE(std::pair(flow->customStart(), flow->customEnd()), std::pair(5.0, 30.0));
        // An end before the start is refused in words, and Export waits.
        typeInto(QStringLiteral("exportRangeEnd"), QStringLiteral("0:04"));
        QTRY_COMPARE(flow->customEnd(), 4.0);
        QTRY_VERIFY(shown(QStringLiteral("exportRangeProblem")));
        QVERIFY(!shown(QStringLiteral("startExportButton"))->isEnabled());
        typeInto(QStringLiteral("exportRangeStart"), QStringLiteral("20"));
        typeInto(QStringLiteral("exportRangeEnd"), QStringLiteral("0:24"));
        QTRY_COMPARE(std::pair(flow->customStart(), flow->customEnd()), std::pair(20.0, 24.0));
        QTRY_VERIFY(!shown(QStringLiteral("exportRangeProblem")));
        QCOMPARE(sheetOverflow(), QString());

        click(QStringLiteral("startExportButton"));
        QTRY_COMPARE_WITH_TIMEOUT(flow->stateName(), QStringLiteral("ready"), 120000);
        QVERIFY(!flow->errorMessage());
        QTRY_VERIFY(shown(QStringLiteral("saveToButton")));
        QVERIFY(shown(QStringLiteral("showInFolderButton")));
        QCOMPARE(shown(QStringLiteral("readyText"))->property("text").toString(),
                 QStringLiteral("Ready: ") + flow->exportedFileName());

        const MovieFacts facts = MovieFacts::read(*flow->exportedPath());
        const MovieFacts::Stream *video = facts.firstOf(QStringLiteral("video"));
        QVERIFY(video);
        QCOMPARE(std::pair(QSize(video->width, video->height), video->decodeErrors), std::pair(QSize(1280, 720), 0));
        QVERIFY2(std::abs(facts.duration - 4.0) < 0.3, qPrintable(QString::number(facts.duration)));
        QVERIFY2(std::abs(video->decodedFrames - 40) <= 1, qPrintable(QString::number(video->decodedFrames)));

        click(QStringLiteral("exportFooterButton")); // Done
        QTRY_VERIFY(!shown(QStringLiteral("saveToButton")));

        // The incident report from the same sheet: nothing to choose but
        // the report itself, then handed on like a movie.
        click(QStringLiteral("exportButton"));
        QTRY_VERIFY(shown(QStringLiteral("startExportButton")));
        ExportFlow *report = sheetFlow();
        choose(QStringLiteral("exportLayoutChoice"), QStringLiteral("exportLayout_report"));
        QVERIFY(report->isReport());
        QVERIFY(!shown(QStringLiteral("exportCameraChoice")));
        QVERIFY(!shown(QStringLiteral("exportShowTime")));
        QVERIFY(shown(QStringLiteral("exportReportAbout")));
        QVERIFY(!shown(QStringLiteral("exportIncludeKeys"))); // clear footage
        QCOMPARE(sheetOverflow(), QString());
        saveShot(QStringLiteral("export-sheet-report.png"));
        click(QStringLiteral("startExportButton"));
        QTRY_COMPARE_WITH_TIMEOUT(report->stateName(), QStringLiteral("ready"), 60000);
        QVERIFY(!report->errorMessage());
        QVERIFY(report->exportedFileName().startsWith(QStringLiteral("Keelhold Report")));
        QFile pdf(*report->exportedPath());
        QVERIFY(pdf.open(QIODevice::ReadOnly));
        QCOMPARE(pdf.read(5), QByteArray("%PDF-"));
        QTRY_VERIFY(shown(QStringLiteral("saveToButton")));
        click(QStringLiteral("exportFooterButton")); // Done
        QTRY_VERIFY(!shown(QStringLiteral("saveToButton")));
    }

    // A clip the drive never answers for costs that one tile, and the main
    // thread never waits for the drive while the event loads.
    void hangingClipCostsOnlyItsTile()
    {
        // The drive stops answering for one clip: every read of it is held.
        KEELHOLD_FAULTY_FS(fs, drive);
        // The players let go of the drive before it is unmounted.
        const auto teardown = qScopeGuard([&] {
            fs.release();
            state_->setSelectedEventID(std::nullopt);
            (void)QTest::qWaitFor([&] { return controller() == nullptr; }, 5000);
            (void)QTest::qWaitFor([] { return TrackPlayer::runningWorkers() == 0; }, 10000); // stopped players go a little later
        });
        const QByteArray clip = DriveBuilder::readQuietly(TestClips::clip({.seconds = 4}));
        QVERIFY(!clip.isEmpty());
        // A honk event of the given day with these cameras.
        const auto addEvent = [&](const QString &day, const QStringList &cameras) {
            const QString folder = QStringLiteral("TeslaCam/SavedClips/%1_10-00-30/").arg(day);
            fs.addFile(folder + "event.json",
                       TeslaCamFixture::eventJson(day + QStringLiteral("T10:00:20"), QStringLiteral("user_interaction_honk")));
            for (const QString &camera : cameras)
                fs.addFile(folder + day + "_10-00-00-" + camera + ".mp4", clip);
        };
        addEvent(QStringLiteral("2026-03-04"), {"front", "back", "left_repeater", "right_repeater"});
        const QString held = QStringLiteral("TeslaCam/SavedClips/2026-03-04_10-00-30/2026-03-04_10-00-00-right_repeater.mp4");
        // Opened first, so the screen is up before the load that is measured.
        addEvent(QStringLiteral("2026-03-03"), {"front", "back"});

        state_->setSelectedSection(SidebarSection::drive);
        state_->beginScan(drive.filePath(QStringLiteral("TeslaCam")));
        QTRY_VERIFY_WITH_TIMEOUT(state_->driveScan() && state_->driveScan()->events.size() == 2 && !state_->isScanning(),
                                 30000);
        const QString id = QStringLiteral("saved|2026-03-04_10-00-30");
        window_->resize(960, 640);
        openEvent(QStringLiteral("saved|2026-03-03_10-00-30"));
        QTRY_VERIFY_WITH_TIMEOUT(!controller()->isLoadingTiles() && controller()->isPlaying(), 20000);
        controller()->pause();

        // The longest the main thread goes without a turn of its event loop.
        qint64 longestWait = 0;
        QElapsedTimer sinceTick;
        QTimer ticker;
        ticker.setInterval(10);
        connect(&ticker, &QTimer::timeout, this, [&] { longestWait = std::max(longestWait, sinceTick.restart()); });
        sinceTick.start();
        ticker.start();
        fs.hangReadsFrom(held, 0);
        state_->setSelectedEventID(id);
        // Meanwhile the click is answered: a tile for each camera, each saying what it waits for.
        QTRY_VERIFY(fs.isHanging());
        for (const char *camera : {"front", "back", "left_repeater", "right_repeater"}) {
            QQuickItem *tile = shown(QStringLiteral("cameraTile_") + QLatin1String(camera));
            QVERIFY2(tile && tile->isVisible(), camera);
            QQuickItem *waiting = findItem(tile, QStringLiteral("waitingText"));
            QVERIFY2(waiting && waiting->isVisible() && waiting->property("text").toString()
                         == SyncPlayerController::waitingReason(), camera);
        }
        saveShot(QStringLiteral("player-waiting-for-the-drive.png"));
        // The drive never answers for the held clip: the player's watchdog
        // gives up on it after its limit and leaves the read behind.
        QTRY_VERIFY_WITH_TIMEOUT(controller() && !controller()->isLoadingTiles(), 60000);
        for (const auto &tile : controller()->tiles())
            if (tile.player)
                QTRY_VERIFY_WITH_TIMEOUT(tile.player->hasPicture(), 20000);
        ticker.stop();
        QVERIFY(fs.isHanging()); // loaded while the read is still held
        qInfo("longest wait of the main thread: %lld ms", longestWait);
        // Waiting on the drive would hold the loop for the watchdog's whole limit; a busy machine delays it far less.
        QVERIFY2(longestWait < SyncPlayerController::clipTimeout.count() / 2,
                 qPrintable(QStringLiteral("the main thread waited %1 ms").arg(longestWait)));

        // Each tile plays, or says why not.
        SyncPlayerController *c = controller();
        QStringList tiles;
        for (const auto &tile : c->tiles())
            tiles << tile.camera.rawValue() + (tile.player ? "" : tile.placeholderReason ? " (why)" : " (blank)");
        tiles.sort();
        QCOMPARE(tiles, (QStringList{"back", "front", "left_repeater", "right_repeater (why)"}));
        // 4 tiles: two columns; the placeholder keeps its place and says why.
        QTRY_VERIFY(shown(QStringLiteral("gridLayout")));
        QString why;
        QTRY_VERIFY2_WITH_TIMEOUT(tilesShowPictures(QStringLiteral("cameraTile_"), &why), qPrintable(why), 10000);
        QQuickItem *front = shown(QStringLiteral("cameraTile_front"));
        QQuickItem *right = shown(QStringLiteral("cameraTile_right_repeater"));
        QVERIFY(front && right);
        QCOMPARE(front->width(), right->width());
        QVERIFY(right->x() > front->x() || right->y() > front->y());
    }

};

KEELHOLD_APP_TEST_MAIN(PlayerScreenTest)

#include "tst_playerscreen.moc"
