#include "AppWindowHarness.h"
#include "FileDialogDriver.h"
#include "base/DiagnosticLog.h"
#include "base/LogCategories.h"
#include "drive/DriveBoundary.h"
#include "playback/MediaSource.h"
#include "engine/BookmarkStore.h"
#include "playback/TrackPlayer.h"
#include "support/DriveBuilder.h"
#include "support/FaultyFs.h"
#include "support/IsolatedHome.h"
#include "support/MountedVolume.h"
#include "support/TestClips.h"
#include "support/TeslaCamFixture.h"

#include <QClipboard>
#include <QDir>
#include <QJsonDocument>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QScopeGuard>
#include <QSettings>
#include <QTemporaryDir>
#include <unistd.h>

// The real application in this process, on a temporary home: the wizard's
// sample and picker paths clicked through, the failure screens reached from
// real drives, the sidebar and the help window, none leaving a QML warning.
//
// With KEELHOLD_SAVE_SCREENSHOTS=<folder> the screens are also saved there
// as PNGs (how docs/screenshots is made).

namespace {

class LockedGate final : public LicenceGate {
public:
    Status status() const override { return Status::locked; }
};

// What is on screen lies in the item tree (open popups too).
QList<QQuickItem *> allItems(QQuickWindow *window) { return AppWindowHarness::itemsUnder(window->contentItem()); }

QQuickItem *visibleItem(QQuickWindow *window, const QString &name)
{
    for (QQuickItem *item : allItems(window))
        if (item->objectName() == name && item->isVisible() && item->width() > 0)
            return item;
    return nullptr;
}

// Every text now on screen.
QStringList shownTexts(QQuickWindow *window)
{
    QStringList out;
    for (QQuickItem *item : allItems(window)) {
        if (!item->isVisible() || item->opacity() == 0 || !item->inherits("QQuickText"))
            continue;
        const QString t = item->property("text").toString();
        if (!t.isEmpty())
            out << t;
    }
    return out;
}

// Shown or not: menu items live in closed popups, reached through the objects.
QQuickItem *anyItem(QQuickWindow *window, const QString &name) { return window->findChild<QQuickItem *>(name); }

// Once it shows: screens come in over a frame or two.
bool click(QQuickWindow *window, const QString &name)
{
    QQuickItem *item = nullptr;
    if (!QTest::qWaitFor([&] { return (item = visibleItem(window, name)) != nullptr; }))
        return false;
    QTest::mouseClick(window, Qt::LeftButton, Qt::NoModifier, AppWindowHarness::centreOf(item));
    return true;
}

// A title of the menu bar, clicked as a user would: it opens or closes its menu.
bool clickMenuTitle(QQuickWindow *window, const QString &title)
{
    for (QQuickItem *item : allItems(window))
        if (QByteArray(item->metaObject()->className()).contains("MenuBarItem") && item->property("text").toString() == title) {
            QTest::mouseClick(window, Qt::LeftButton, Qt::NoModifier, AppWindowHarness::centreOf(item));
            return true;
        }
    return false;
}

void shoot(QQuickWindow *window, const QString &name)
{
    const QString dir = qEnvironmentVariable("KEELHOLD_SAVE_SCREENSHOTS");
    if (dir.isEmpty() || !window)
        return;
    AppWindowHarness::waitForFrame(window);
    QDir().mkpath(dir);
    window->grabWindow().save(dir + QLatin1Char('/') + name + QStringLiteral(".png"));
}

// A drive with one Sentry event of one sparse clip under the TeslaCam folder given; that folder.
QString addOneEvent(const QString &teslaCamRoot)
{
    TeslaCamFixture drive(teslaCamRoot);
    const QString folder = drive.addEvent(
        QStringLiteral("SentryClips"), QStringLiteral("2024-06-01_10-00-00"),
        TeslaCamFixture::eventJson(QStringLiteral("2024-06-01T10:00:00"), QStringLiteral("sentry_aware_object_detection")));
    drive.addClip(folder, QStringLiteral("2024-06-01_09-59-00"), QStringLiteral("front"), 64 * 1024);
    return teslaCamRoot;
}

} // namespace

class ShellFlowTest : public QObject {
    Q_OBJECT

    std::unique_ptr<KeelholdApp> app;
    QQuickWindow *window = nullptr;
    QStringList qmlWarnings;

    void start(bool onboardingDone = false)
    {
        if (onboardingDone)
            QSettings().setValue(AppState::onboardingKey, true);
        app = std::make_unique<KeelholdApp>();
        // No screen reached here may leave a QML warning (checked in cleanup).
        connect(&app->qmlEngine(), &QQmlApplicationEngine::warnings, this, [this](const QList<QQmlError> &list) {
            for (const QQmlError &e : list)
                // A thumbnail whose file has gone is drawn as none, by design.
                if (!e.description().contains(QLatin1String("Failed to get image from provider")))
                    qmlWarnings << e.toString();
        });
        QVERIFY(app->load());
        window = app->mainWindow();
        QVERIFY(window);
        window->resize(1100, 720);
        QVERIFY(QTest::qWaitForWindowExposed(window));
    }

    bool showing(const QString &text) { return shownTexts(window).contains(text); }
    bool showingPrefix(const QString &prefix)
    {
        const QStringList texts = shownTexts(window);
        return std::any_of(texts.begin(), texts.end(), [&](const QString &t) { return t.startsWith(prefix); });
    }

    // From the wizard's first step to its drive step.
    void toDriveStep()
    {
        QVERIFY(click(window, QStringLiteral("getStarted")));
        QTRY_VERIFY(visibleItem(window, QStringLiteral("chooseManually")));
    }

private Q_SLOTS:
    void init()
    {
        if (qEnvironmentVariableIsEmpty("DISPLAY"))
            QSKIP("needs a display (run the suite under xvfb-run)");
        QSettings().clear();
        qunsetenv(DrivePicker::answerEnv);
    }

    void cleanup()
    {
        window = nullptr;
        app.reset();
        const QStringList warnings = std::exchange(qmlWarnings, {});
        QVERIFY2(warnings.isEmpty(), qPrintable(warnings.join(QLatin1Char('\n'))));
    }

    void shellHasItsSectionsAndLeastSize()
    {
        start(true);
        QCOMPARE(window->minimumSize(), QSize(900, 600));
        QVERIFY(!visibleItem(window, QStringLiteral("wizardView")));
        for (const QString &label : {QStringLiteral("Keelhold"), QStringLiteral("Drive"), QStringLiteral("Vault"),
                                     QStringLiteral("Map"), QStringLiteral("Drive Health")})
            QVERIFY2(showing(label), qPrintable(label));
        QQuickItem *sidebar = visibleItem(window, QStringLiteral("sidebar"));
        QVERIFY(sidebar && sidebar->width() >= 140 && sidebar->width() <= 200);

        QVERIFY(click(window, QStringLiteral("section_Drive Health")));
        QCOMPARE(app->appState().selectedSection(), SidebarSection::health);
        QTRY_VERIFY(showing(QStringLiteral("No drive health yet")));
        shoot(window, QStringLiteral("health-no-report"));

        // The two menu items and what they do.
        QVERIFY(QMetaObject::invokeMethod(anyItem(window, QStringLiteral("menuHelp")), "triggered"));
        QTRY_VERIFY(app->help().window() && app->help().window()->isVisible());
        app->help().window()->close();
        QVERIFY(QMetaObject::invokeMethod(anyItem(window, QStringLiteral("menuSample")), "triggered"));
        QVERIFY(app->appState().isSampleMode());
        QCOMPARE(app->appState().selectedSection(), SidebarSection::drive);
        QTRY_VERIFY_WITH_TIMEOUT(!app->appState().isScanning(), 20000);
        app->appState().exitSampleMode();

        // Copy Diagnostic Information: versions and the log's newest lines,
        // the home folder never spelled out.
        DiagnosticLog::install(QDir::homePath() + QStringLiteral("/.local/state/Keelhold"));
        qCWarning(lcUi) << "a test warning about" << QDir::homePath() + QStringLiteral("/Videos/movie.mp4");
        QVERIFY(QMetaObject::invokeMethod(anyItem(window, QStringLiteral("menuCopyDiagnostics")), "triggered"));
        const QString copied = QGuiApplication::clipboard()->text();
        QVERIFY2(copied.startsWith(QStringLiteral("Keelhold ")), qPrintable(copied));
        QVERIFY(copied.contains(QStringLiteral("\nFFmpeg ")));
        QVERIFY(copied.contains(QStringLiteral("a test warning about \"~/Videos/movie.mp4\"")));
        QVERIFY(!copied.contains(QDir::homePath()));
        QVERIFY(clickMenuTitle(window, QStringLiteral("&Help")));
        QTRY_VERIFY(visibleItem(window, QStringLiteral("menuCopyDiagnostics")));
        shoot(window, QStringLiteral("help-menu"));
        QVERIFY(clickMenuTitle(window, QStringLiteral("&Help")));
        QTRY_VERIFY(!visibleItem(window, QStringLiteral("menuCopyDiagnostics")));

        // Graphics hardware for video: on by default, off from the Playback menu, remembered, applied at once.
        QVERIFY(MediaSource::hardwareDecodingEnabled());
        QVERIFY(clickMenuTitle(window, QStringLiteral("&Playback")));
        QTRY_VERIFY(visibleItem(window, QStringLiteral("menuHardwareDecoding")));
        QVERIFY(visibleItem(window, QStringLiteral("menuHardwareDecoding"))->property("checked").toBool());
        shoot(window, QStringLiteral("playback-menu"));
        QVERIFY(click(window, QStringLiteral("menuHardwareDecoding")));
        QTRY_VERIFY(!MediaSource::hardwareDecodingEnabled());
        QCOMPARE(QSettings().value(QStringLiteral("KHHardwareDecoding")).toBool(), false);
        MediaSource::setHardwareDecoding(true);
    }

    void wizardSamplePath()
    {
        start();
        QTRY_VERIFY(visibleItem(window, QStringLiteral("wizardView")));
        QVERIFY(showing(QStringLiteral("Welcome to Keelhold")));
        shoot(window, QStringLiteral("wizard-intro"));

        QVERIFY(click(window, QStringLiteral("trySample")));
        QTRY_VERIFY(!app->appState().showOnboarding());
        QVERIFY(app->appState().isSampleMode());
        QVERIFY(!app->appState().hasCompletedOnboarding());
        QVERIFY(!QSettings().value(AppState::onboardingKey).toBool());
        QTRY_VERIFY(!visibleItem(window, QStringLiteral("wizardView")));
        QTRY_VERIFY(showing(QStringLiteral("You're exploring sample footage · Connect your Tesla drive anytime")));

        // The health screen of the sample, once its clips are probed.
        QTRY_VERIFY_WITH_TIMEOUT(app->appState().healthReport() && app->appState().healthReport()->probedClipCount > 0,
                                 60000);
        QVERIFY(click(window, QStringLiteral("section_Drive Health")));
        QTRY_VERIFY(showing(QStringLiteral("Free Space")));
        QVERIFY(showing(QStringLiteral("2 of ") + QString::number(app->appState().healthReport()->probedClipCount)
                        + QStringLiteral(" checked clips didn't record properly.")));
        shoot(window, QStringLiteral("health-sample"));
    }

    // Its TeslaCam folder and a file URL are the picker's own test.
    void wizardPickerPath()
    {
        QTemporaryDir tmp;
        const QString root = addOneEvent(tmp.filePath(QStringLiteral("USBSTICK/TeslaCam")));
        start();
        QVERIFY(click(window, QStringLiteral("getStarted")));
        QTRY_VERIFY(showing(QStringLiteral("Show Me Your Tesla Drive")));

        // Back and forth.
        QVERIFY(click(window, QStringLiteral("back")));
        QTRY_VERIFY(showing(QStringLiteral("Welcome to Keelhold")));
        toDriveStep();

        qputenv(DrivePicker::answerEnv, tmp.filePath(QStringLiteral("USBSTICK")).toLocal8Bit());
        QVERIFY(click(window, QStringLiteral("chooseManually")));
        // The scanning step stands at once, before the scan has answered.
        QVERIFY(showing(QStringLiteral("Reading your drive…")));
        QCOMPARE(app->appState().driveRootURL().value_or(QString()), root);

        // The scan's end finishes the wizard by itself.
        QTRY_VERIFY_WITH_TIMEOUT(!app->appState().showOnboarding(), 10000);
        const AppState &state = app->appState();
        QCOMPARE(std::tuple(state.hasCompletedOnboarding(), state.isSampleMode(), state.driveScan()->events.size(),
                            state.currentFailure().has_value()),
                 std::tuple(true, false, size_t(1), false));
    }

    // The real folder dialogs, as a user meets them: the drive from the
    // wizard, then the Vault from its empty state, then a change of Vault.
    void realDialogsChooseTheDriveAndTheVault()
    {
        QTemporaryDir tmp;
        const QString drive = addOneEvent(tmp.filePath(QStringLiteral("USBSTICK/TeslaCam")));
        start();
        AppState &state = app->appState();
        toDriveStep();
        // No drive or sample open yet: nothing to go back to, so no Cancel.
        QVERIFY(!visibleItem(window, QStringLiteral("wizardCancel")));

        QVERIFY(click(window, QStringLiteral("chooseManually")));
        QFileDialog *dialog = FileDialogDriver::waitForDialog();
        QVERIFY(dialog);
        QCOMPARE(dialog->windowTitle(), QStringLiteral("Select Your Tesla's USB Drive"));
        QCOMPARE(FileDialogDriver::acceptButton(dialog)->text(), QStringLiteral("Use This Drive"));
        const QString guidance = QStringLiteral("Choose the drive itself, or its TeslaCam folder.");
        QVERIFY(FileDialogDriver::message(dialog).startsWith(guidance));
        QTRY_VERIFY(showingPrefix(guidance)); // the wizard says it too, for dialogs with no room for it
        QVERIFY(dialog->fileMode() == QFileDialog::Directory);
        if (const QString dir = qEnvironmentVariable("KEELHOLD_SAVE_SCREENSHOTS"); !dir.isEmpty())
            dialog->grab().save(dir + QStringLiteral("/wizard-folder-dialog.png"));

        // Cancelled: nothing happens.
        QVERIFY(FileDialogDriver::cancel());
        QVERIFY(!state.driveRootURL());
        QTRY_VERIFY(!showingPrefix(guidance));

        QVERIFY(click(window, QStringLiteral("chooseManually")));
        QVERIFY(FileDialogDriver::answer(tmp.filePath(QStringLiteral("USBSTICK"))));
        QTRY_VERIFY_WITH_TIMEOUT(!state.showOnboarding(), 10000);
        QCOMPARE(state.driveRootURL().value_or(QString()), drive);
        QTRY_VERIFY(state.driveScan() && state.driveScan()->events.size() == 1);

        // The Vault: no folder yet, then one chosen in the dialog.
        state.setSelectedSection(SidebarSection::vault);
        QTRY_VERIFY(showing(QStringLiteral("Choose a Vault Folder")));
        QVERIFY(click(window, QStringLiteral("emptyStateAction")));
        dialog = FileDialogDriver::waitForDialog();
        QVERIFY(dialog);
        QCOMPARE(dialog->windowTitle(), QStringLiteral("Choose Your Vault Folder"));
        QCOMPARE(FileDialogDriver::acceptButton(dialog)->text(), QStringLiteral("Use This Folder"));
        QVERIFY(FileDialogDriver::message(dialog).startsWith(QStringLiteral("Pick (or create) a folder")));
        const QString vault = tmp.filePath(QStringLiteral("My Vault"));
        QVERIFY(QDir().mkpath(vault));
        QVERIFY(FileDialogDriver::answer(vault));
        QTRY_COMPARE(state.vaultURL().value_or(QString()), vault);

        // An empty Vault with its folder set can still be pointed elsewhere.
        QTRY_VERIFY(showing(QStringLiteral("Your Vault is empty so far")));
        QTRY_VERIFY(showing(QStringLiteral("Change Vault Folder")));

        // The car's drive itself is refused with the reason, and the dialog opens again from there.
        QVERIFY(click(window, QStringLiteral("emptyStateAction")));
        QVERIFY(FileDialogDriver::answer(drive));
        QTRY_VERIFY_WITH_TIMEOUT(showing(DriveBoundary::vaultRefusal), 10000);
        QCOMPARE(state.vaultURL().value_or(QString()), vault);
        shoot(window, QStringLiteral("vault-choice-refused"));
        QVERIFY(click(window, QStringLiteral("chooseAnotherVaultFolder")));
        const QString other = tmp.filePath(QStringLiteral("Other Vault"));
        QVERIFY(QDir().mkpath(other));
        QVERIFY(FileDialogDriver::answer(other));
        QTRY_COMPARE(state.vaultURL().value_or(QString()), other);
        QVERIFY(std::holds_alternative<QString>(state.engine().resolveBookmark(BookmarkKey::vaultFolder)));
    }

    // Keep before any Vault folder exists: the first-choice dialog (not the
    // one that asks for a lost folder back), and the keep goes on once a
    // folder is chosen; a cancelled dialog keeps nothing.
    void firstKeepAsksForAVaultFolderAndGoesOn()
    {
        QTemporaryDir tmp;
        const QString drive = addOneEvent(tmp.filePath(QStringLiteral("USBSTICK/TeslaCam")));
        // No Vault folder yet: not even one an earlier test chose and removed.
        BookmarkStore::clear(BookmarkKey::vaultFolder);
        start(true);
        AppState &state = app->appState();
        state.beginScan(drive);
        QTRY_VERIFY(state.driveScan() && state.driveScan()->events.size() == 1 && !state.isScanning());
        const QString id = state.driveScan()->events.front().id();
        QVERIFY(!state.vaultURL());

        state.keepIDs({id});
        QFileDialog *dialog = FileDialogDriver::waitForDialog();
        QVERIFY(dialog);
        QCOMPARE(dialog->windowTitle(), QStringLiteral("Choose Your Vault Folder"));
        QVERIFY(FileDialogDriver::message(dialog).startsWith(QStringLiteral("Pick (or create) a folder")));
        QVERIFY(!state.currentFailure());
        QVERIFY(!showingPrefix(QStringLiteral("We need you to point us back")));
        QVERIFY(FileDialogDriver::cancel());
        QVERIFY(!state.hasKeepAwaitingVault());
        QVERIFY(!state.isArchiving());

        state.keepIDs({id});
        const QString vault = tmp.filePath(QStringLiteral("First Vault"));
        QVERIFY(QDir().mkpath(vault));
        QVERIFY(FileDialogDriver::answer(vault));
        QTRY_COMPARE(state.vaultURL().value_or(QString()), vault);
        QTRY_VERIFY_WITH_TIMEOUT(state.showArchiveReport(), 20000);
        QVERIFY2(state.lastArchiveReport()->completeEvents() == 1,
                 QJsonDocument(state.lastArchiveReport()->toJson()).toJson().constData());
        QCOMPARE(state.triageState(id).rawValue(), QStringLiteral("kept"));
    }

    // While a keep runs, no entry point starts another: the toolbar button,
    // K in the player and in the list, the row menu, the bulk bar and the
    // recent-driving banner. Cancel then reaches the one that runs. The keep
    // is held in place by a drive that stops answering partway through a file.
    void oneKeepAtATime()
    {
        KEELHOLD_FAULTY_FS(fs, mountPoint);
        QTemporaryDir vault;
        // The app lets go of the drive before it is unmounted, however the test ends.
        const auto teardown = qScopeGuard([&] {
            fs.release();
            // The player closes its clips as it goes.
            if (app) {
                app->appState().setSelectedEventID(std::nullopt);
                (void)QTest::qWaitFor([&] { return !visibleItem(window, QStringLiteral("eventPlayerView")); }, 5000);
                (void)QTest::qWaitFor([] { return TrackPlayer::runningWorkers() == 0; }, 10000); // stopped players go a little later
            }
            window = nullptr;
            app.reset();
        });
        const QByteArray clip = DriveBuilder::readQuietly(TestClips::clip());
        QVERIFY(!clip.isEmpty());
        const QByteArray json = TeslaCamFixture::eventJson(QStringLiteral("2026-05-01T10:00:30"), QStringLiteral("user_interaction_honk"));
        fs.addFile(QStringLiteral("TeslaCam/SavedClips/2026-05-01_10-00-30/event.json"), json);
        fs.addFile(QStringLiteral("TeslaCam/SavedClips/2026-05-01_10-00-30/2026-05-01_10-00-00-front.mp4"), clip);
        const QString stuck = QStringLiteral("TeslaCam/SavedClips/2026-05-02_10-00-30/2026-05-02_10-00-00-front.mp4");
        fs.addFile(QStringLiteral("TeslaCam/SavedClips/2026-05-02_10-00-30/event.json"), json);
        fs.addFile(stuck, clip);
        fs.addFile(QStringLiteral("TeslaCam/RecentClips/2026-05-03_10-00-00-front.mp4"), clip);
        start(true);
        AppState &state = app->appState();
        state.setVaultURL(vault.path());
        state.beginScan(mountPoint.filePath(QStringLiteral("TeslaCam")));
        QTRY_VERIFY_WITH_TIMEOUT(state.driveScan() && state.driveScan()->events.size() == 3 && !state.isScanning(), 20000);
        const QString first = QStringLiteral("saved|2026-05-01_10-00-30");
        const QString second = QStringLiteral("saved|2026-05-02_10-00-30");

        // Both Saved events ticked and kept: the first copies, the second hangs.
        QVERIFY(click(window, QStringLiteral("selectToggle")));
        state.toggleBulkSelection(first);
        state.toggleBulkSelection(second);
        fs.hangReadsFrom(stuck, clip.size() / 2);
        QVERIFY(click(window, QStringLiteral("bulkKeep")));
        QVERIFY(state.isArchiving());
        QTRY_VERIFY_WITH_TIMEOUT(fs.isHanging(), 10000);
        QTRY_VERIFY(state.archiveProgress() && state.archiveProgress()->bytesCopied > 0);

        // A second keep would start over from nothing; the running one only reports more (even late reports).
        const qint64 copiedBefore = state.archiveProgress()->bytesCopied;
        int startsOver = 0;
        QObject watching;
        connect(&state, &AppState::archiveProgressChanged, &watching, [&] {
            if (!state.archiveProgress() || state.archiveProgress()->bytesCopied < copiedBefore)
                ++startsOver;
        });
        QVERIFY(click(window, QStringLiteral("selectToggle")));
        state.setSelectedEventID(first);
        QTRY_VERIFY(visibleItem(window, QStringLiteral("keepButton")));
        for (const char *name : {"keepButton", "keepRecentNow"}) {
            QQuickItem *button = visibleItem(window, QString::fromLatin1(name));
            QVERIFY2(button && !button->isEnabled(), name);
            QVERIFY(click(window, QString::fromLatin1(name)));
        }
        QTest::keyClick(window, Qt::Key_K); // the player's key
        QQuickItem *list = visibleItem(window, QStringLiteral("inboxList"));
        QVERIFY(list);
        list->forceActiveFocus();
        QTest::keyClick(window, Qt::Key_K); // the list's key
        QObject *menuKeep = anyItem(window, QStringLiteral("menuKeep"));
        QVERIFY(menuKeep && !menuKeep->property("enabled").toBool());
        state.keepIDs({first});
        state.setSelectedEventIDsForBulk({first});
        state.keepBulkSelection();
        QCOMPARE(state.selectedEventIDsForBulk().size(), 1); // the tick waits
        // The keys act one turn later.
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        QCOMPARE(startsOver, 0);
        QVERIFY(state.isArchiving());

        // Cancel reaches the keep that runs.
        QVERIFY(click(window, QStringLiteral("cancelArchive")));
        fs.release();
        QTRY_VERIFY_WITH_TIMEOUT(!state.isArchiving(), 20000);
        QVERIFY(state.lastArchiveReport() && state.lastArchiveReport()->cancelled);
        QCOMPARE(state.triageState(first).rawValue(), QStringLiteral("kept"));
        QVERIFY(visibleItem(window, QStringLiteral("keepButton"))->isEnabled());
    }

    void lockedGateKeepsThePanelShutButNotTheSample()
    {
        QTemporaryDir tmp;
        addOneEvent(tmp.filePath(QStringLiteral("USBSTICK/TeslaCam")));
        qputenv(DrivePicker::answerEnv, tmp.filePath(QStringLiteral("USBSTICK")).toLocal8Bit());
        start();
        LockedGate locked;
        app->drivePicker().setLicenceGate(&locked);
        toDriveStep();
        QVERIFY(click(window, QStringLiteral("chooseManually")));
        QTRY_VERIFY(showing(QStringLiteral("A Keelhold licence is needed")));
        QVERIFY(!app->appState().driveRootURL());
        QVERIFY(app->appState().showOnboarding());
        QVERIFY(!std::holds_alternative<QString>(app->appState().engine().resolveBookmark(BookmarkKey::teslaDrive)));

        // The sample still opens, from the wizard's own button.
        QTest::keyClick(window, Qt::Key_Escape);
        QTRY_VERIFY(!showing(QStringLiteral("A Keelhold licence is needed")));
        QVERIFY(click(window, QStringLiteral("back")));
        QVERIFY(click(window, QStringLiteral("trySample")));
        QTRY_VERIFY(app->appState().isSampleMode());
        QTRY_VERIFY(!visibleItem(window, QStringLiteral("wizardView")));
        app->drivePicker().setLicenceGate(nullptr);
    }

    void pickerFollowsAMountedDrive()
    {
        if (geteuid() != 0)
            QSKIP("mounting a drive needs root");
        start();
        toDriveStep();

        // The owner's own drive of that name may be plugged in, so the test's is known by its mount point.
        const QString name = QStringLiteral("TESLADRIVE");
        MountedVolume namesake(QStringLiteral("exfat"), name);
        // Plugged in while the picker is up: it appears without a click.
        MountedVolume volume(QStringLiteral("exfat"), name);
        if (!volume.ok() || !namesake.ok())
            QSKIP("could not mount an exFAT image under /media");
        addOneEvent(namesake.path() + QStringLiteral("/TeslaCam"));
        addOneEvent(volume.path() + QStringLiteral("/TeslaCam"));
        const auto rowOf = [&] {
            const auto &candidates = app->appState().driveVolumeCandidates();
            for (size_t i = 0; i < candidates.size(); ++i)
                if (candidates[i].volumeURL == volume.path())
                    return int(i);
            return -1;
        };
        QTRY_VERIFY_WITH_TIMEOUT(rowOf() >= 0, 10000);
        const int row = rowOf();
        QTRY_VERIFY_WITH_TIMEOUT(showingPrefix(QStringLiteral("Is this your Tesla drive?")), 10000);
        QVERIFY(showingPrefix(QStringLiteral("Connected drives appear here the moment your system mounts them.")));
        QVERIFY(app->appState().driveVolumeCandidates()[size_t(row)].capacityBytes.has_value());
        shoot(window, QStringLiteral("wizard-drive-picker"));

        // A click on the row opens the panel at the volume; picking it scans its TeslaCam folder.
        qputenv(DrivePicker::answerEnv, volume.path().toLocal8Bit());
        QVERIFY(click(window, QStringLiteral("candidate_") + QString::number(row)));
        QCOMPARE(app->appState().driveRootURL().value_or(QString()), volume.path() + QStringLiteral("/TeslaCam"));
        QTRY_VERIFY_WITH_TIMEOUT(!app->appState().showOnboarding(), 10000);
        QCOMPARE(app->appState().driveScan()->format, VolumeFormat(VolumeFormat::exFAT));
        QVERIFY(!app->appState().currentFailure());

        // Pulled out: the drive view turns into the disconnected screen.
        volume.unmount();
        QTRY_VERIFY_WITH_TIMEOUT(showing(QStringLiteral("Your drive was disconnected")), 10000);
        QVERIFY(!app->appState().driveIsConnected());
        shoot(window, QStringLiteral("failure-drive-disconnected"));
    }

    void failureScreensFromRealDrives()
    {
        QTemporaryDir tmp;
        start(true);
        AppState &state = app->appState();
        auto scanned = [&](const QString &root) {
            state.beginScan(root);
            return QTest::qWaitFor([&] { return !state.isScanning() && !state.isRevalidatingScan(); }, 10000);
        };

        // A folder with no TeslaCam: the root's own name leads the message.
        QDir().mkpath(tmp.filePath(QStringLiteral("NOTACAR")));
        QVERIFY(scanned(tmp.filePath(QStringLiteral("NOTACAR/TeslaCam"))));
        QTRY_VERIFY(showing(QStringLiteral("We couldn't find a TeslaCam folder")));
        QVERIFY(showingPrefix(QStringLiteral("\"TeslaCam\" doesn't have a TeslaCam folder on it")));
        shoot(window, QStringLiteral("failure-no-teslacam"));
        QVERIFY(click(window, QStringLiteral("emptyStateAction")));
        QTRY_VERIFY(state.showOnboarding());
        state.setShowOnboarding(false);

        TeslaCamFixture empty(tmp.filePath(QStringLiteral("EMPTY/TeslaCam")));
        QVERIFY(scanned(empty.root()));
        QTRY_VERIFY(showing(QStringLiteral("This drive doesn't have any footage yet")));
        QVERIFY(!visibleItem(window, QStringLiteral("emptyStateAction")));
        shoot(window, QStringLiteral("failure-empty-drive"));
        // No dead end: the column keeps its title and Switch Drive, and the
        // screen offers another drive; the wizard that opens can be left.
        QVERIFY(showing(QStringLiteral("Drive")));
        QVERIFY(visibleItem(window, QStringLiteral("switchDrive")));
        QVERIFY(click(window, QStringLiteral("emptyStateSecondary")));
        QTRY_VERIFY(state.showOnboarding());
        QVERIFY(click(window, QStringLiteral("wizardCancel")));
        QTRY_VERIFY(!state.showOnboarding());
        QVERIFY(click(window, QStringLiteral("switchDrive")));
        QTRY_VERIFY(visibleItem(window, QStringLiteral("wizardView")));
        QTest::keyClick(window, Qt::Key_Escape);
        QTRY_VERIFY(!state.showOnboarding());
        QTRY_VERIFY(!visibleItem(window, QStringLiteral("wizardView")));

        TeslaCamFixture encrypted(tmp.filePath(QStringLiteral("ENC/TeslaCam")));
        TeslaCamFixture::makeDir(encrypted.path(QStringLiteral("EncryptedClips")));
        QVERIFY(scanned(encrypted.root()));
        QTRY_VERIFY(showing(QStringLiteral("Your car is encrypting this footage")));
        QVERIFY(visibleItem(window, QStringLiteral("switchDrive")));
        shoot(window, QStringLiteral("failure-encrypted-only"));
        // The screen may still be settling where the button lies: click until it answers.
        QTRY_VERIFY(visibleItem(window, QStringLiteral("emptyStateAction")));
        QTRY_VERIFY_WITH_TIMEOUT((click(window, QStringLiteral("emptyStateAction")), state.showEncryptionGuide()), 10000);
        QTRY_VERIFY(showing(QStringLiteral("Recording without encryption")));
        shoot(window, QStringLiteral("encryption-guide"));
        state.setShowEncryptionGuide(false);

        // A saved drive that has gone: the stale screen asks for it again.
        const QString gone = tmp.filePath(QStringLiteral("GONE/TeslaCam"));
        QDir().mkpath(gone);
        state.engine().saveBookmark(gone, BookmarkKey::teslaDrive);
        QDir(tmp.filePath(QStringLiteral("GONE"))).removeRecursively();
        state.resolveDriveBookmark();
        QTRY_VERIFY(showing(QStringLiteral("We need you to point us back to your Tesla drive")));
        shoot(window, QStringLiteral("failure-stale-drive"));
        QVERIFY(click(window, QStringLiteral("emptyStateAction")));
        QTRY_VERIFY(state.showOnboarding());
        state.setShowOnboarding(false);

        const QString vault = tmp.filePath(QStringLiteral("VAULT"));
        QDir().mkpath(vault);
        state.engine().saveBookmark(vault, BookmarkKey::vaultFolder);
        QDir(vault).removeRecursively();
        state.resolveVaultBookmark();
        QTRY_VERIFY(showing(QStringLiteral("We need you to point us back to your Vault folder")));
        shoot(window, QStringLiteral("failure-stale-vault"));
        // It asks for a Vault folder, not for a drive; the answer ends the failure.
        QVERIFY(click(window, QStringLiteral("emptyStateAction")));
        QFileDialog *dialog = FileDialogDriver::waitForDialog();
        QVERIFY(dialog);
        QCOMPARE(dialog->windowTitle(), QStringLiteral("Choose Your Vault Folder"));
        QVERIFY(!state.showOnboarding());
        QDir().mkpath(vault);
        QVERIFY(FileDialogDriver::answer(vault));
        QTRY_COMPARE(state.vaultURL().value_or(QString()), vault);
        QTRY_VERIFY(!state.currentFailure());

        // A drive in a format the car doesn't write and this computer doesn't own.
        if (geteuid() != 0)
            QSKIP("mounting a drive needs root");
        MountedVolume ram(QStringLiteral("ramfs"), QStringLiteral("RAMDRIVE-%1").arg(QCoreApplication::applicationPid()));
        if (!ram.ok())
            QSKIP("could not mount a ramfs under /media");
        addOneEvent(ram.path() + QStringLiteral("/TeslaCam"));
        QVERIFY(scanned(ram.path() + QStringLiteral("/TeslaCam")));
        QTRY_VERIFY(showing(QStringLiteral("This drive needs to be reformatted")));
        QVERIFY(showingPrefix(QStringLiteral("Your car needs a drive formatted as exFAT")));
        QCOMPARE(state.driveScan()->events.size(), size_t(1)); // events don't save it
        shoot(window, QStringLiteral("failure-unreadable-format"));
    }

    void helpWindowOpensSwitchesAndReopens()
    {
        start(true);
        HelpWindowController &help = app->help();
        QCOMPARE(HelpWindowController::shared(), &help);
        auto articleTitle = [&]() -> QString {
            auto *w = qobject_cast<QQuickWindow *>(help.window());
            if (!w)
                return {};
            QQuickItem *label = visibleItem(w, QStringLiteral("helpArticleTitle"));
            return label ? label->property("text").toString() : QString();
        };

        // The sidebar's help button opens it on the first article.
        QVERIFY(click(window, QStringLiteral("helpButton")));
        QTRY_VERIFY(help.window() && help.window()->isVisible());
        QWindow *first = help.window();
        QCOMPARE(first->title(), QStringLiteral("Keelhold Help"));
        QCOMPARE(first->size(), QSize(700, 480));
        QTRY_COMPARE(articleTitle(), QStringLiteral("What is Sentry Mode?"));

        // With an article while open: switched in place, the same window.
        help.show(HelpArticle::keyboardShortcuts);
        QCOMPARE(help.window(), first);
        QTRY_COMPARE(articleTitle(), QStringLiteral("Keyboard shortcuts"));
        auto *quick = qobject_cast<QQuickWindow *>(first);
        QVERIFY(shownTexts(quick).contains(QStringLiteral("•  K — keep a safe copy of the selected event in your Vault")));
        shoot(quick, QStringLiteral("help-window"));

        // Closed, then asked with no article: a fresh window on the last selection.
        first->close();
        QTRY_VERIFY(!help.window());
        help.show(std::nullopt);
        QTRY_VERIFY(help.window() && help.window()->isVisible());
        QTRY_COMPARE(articleTitle(), QStringLiteral("Keyboard shortcuts"));
        QCOMPARE(help.selection().selected(), HelpArticle::keyboardShortcuts);

        // A choice in the list is the selection the next call keeps.
        help.selection().setSelectedIndex(2);
        QTRY_COMPARE(articleTitle(), QStringLiteral("What does \"didn't record properly\" mean?"));
        help.show(-1);
        QCOMPARE(help.selection().selected(), HelpArticle::corruptionExplained);
    }
};

KEELHOLD_APP_TEST_MAIN(ShellFlowTest)

#include "tst_shellflow.moc"
