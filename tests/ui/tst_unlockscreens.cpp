#include "AppWindowHarness.h"

#include "ColorScheme.h"
#include "EventListModel.h"
#include "InboxViewModel.h"
#include "TileSource.h"
#include "UnlockController.h"
#include "playback/SyncPlayerController.h"
#include "support/DriveBuilder.h"
#include "support/EncryptedDrive.h"
#include "support/IsolatedHome.h"
#include "support/KeyServiceStandIn.h"
#include "support/SecretStoreSession.h"
#include "support/TestClips.h"
#include "unlock/KeyService.h"

#include <QDirIterator>
#include <QSettings>

// The car's encrypted footage in the real window: listed with a lock and its
// reason, the notice above the list, the unlock sheet with a token pasted
// and checked against a stand-in of the service, the marks after, a locked
// camera's tile, a sign-in that lapsed, and "Remember on this computer"
// in a secret store of the test's own.
namespace {
const QByteArray token = QByteArrayLiteral("window-stand-in-token-33c0f7");
}

class UnlockScreensTest : public QObject {
    Q_OBJECT

    QTemporaryDir tmp;
    KeyServiceStandIn service;
    std::unique_ptr<SecretStoreSession> store;
    std::unique_ptr<EncryptedDrive> drive;
    std::unique_ptr<AppWindowHarness> app;

    UnlockController &unlock() { return app->keelhold.unlock(); }
    EventListModel *rows() { return app->screens.inbox()->rows(); }

    QString rowLock(const QString &id)
    {
        const int row = rows()->indexOf(id);
        return row < 0 ? QStringLiteral("missing") : rows()->data(rows()->index(row), EventListModel::LockStateRole).toString();
    }

    void pasteAndUnlock(const QByteArray &pasted, bool remember)
    {
        auto *field = app->find(QStringLiteral("tokenField"));
        QVERIFY(field && field->isVisible());
        field->setProperty("text", QString::fromLatin1(pasted));
        auto *box = app->find(QStringLiteral("rememberBox"));
        QVERIFY(box);
        box->setProperty("checked", remember);
        auto *button = app->find(QStringLiteral("unlockButton"));
        QTRY_VERIFY(button && button->property("enabled").toBool());
        app->click(button);
        QTRY_VERIFY_WITH_TIMEOUT(!unlock().busy(), 30000);
        // Handed over, the token leaves the field at once.
        QCOMPARE(field->property("text").toString(), QString());
    }

    // With KEELHOLD_SCREENSHOT_DIR set: the window at 900x600 and at full HD,
    // named for the scheme it runs in (KEELHOLD_COLOR_SCHEME=dark for dark).
    void shots(const QString &name)
    {
        if (qEnvironmentVariableIsEmpty("KEELHOLD_SCREENSHOT_DIR"))
            return;
        const QString scheme = ColorScheme::current() == ColorScheme::Scheme::dark ? QStringLiteral("-dark") : QString();
        const QSize was = app->window()->size();
        for (const QSize size : {QSize(900, 600), QSize(1920, 1080)}) {
            app->window()->resize(size);
            QTRY_COMPARE(app->window()->size(), size);
            // Layouts and the list follow the size over a few frames.
            for (int i = 0; i < 5; ++i)
                app->waitForFrame();
            app->shotNow(QStringLiteral("%1-%2x%3%4").arg(name).arg(size.width()).arg(size.height()).arg(scheme));
        }
        app->window()->resize(was);
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (qEnvironmentVariableIsEmpty("DISPLAY"))
            QSKIP("needs a display (run the suite under xvfb-run)");
        // Before anything in this process talks to a session bus.
        store = std::make_unique<SecretStoreSession>();
        if (store->ok())
            store->enterHere();
        QSettings().setValue(TileSource::templateKey, QStringLiteral("http://127.0.0.1:9/{z}/{x}/{y}.png"));
        QSettings().setValue(KeyService::settingsKey, service.baseURL());
        service.setAcceptedToken(token);
        const QString plain = tmp.filePath(QStringLiteral("plain.mp4"));
        QVERIFY(QFile::copy(TestClips::clip(), plain));
        TestClips::padTo(plain);
        drive = std::make_unique<EncryptedDrive>(tmp.filePath(QStringLiteral("drive/TeslaCam")), plain, &service);
        app = std::make_unique<AppWindowHarness>();
        QVERIFY(app->load());
        app->window()->resize(1300, 900);
        app->state.beginScan(drive->root());
        QTRY_VERIFY_WITH_TIMEOUT(app->state.driveScan() && !app->state.isScanning() && !app->state.isRevalidatingScan(),
                                 60000);
        QVERIFY(!app->state.currentFailure());
        QTRY_COMPARE(app->state.lockedEventCount(), 3);
    }

    void encryptedEventsStandWithALockAndTheirReason()
    {
        QCOMPARE(rows()->count(), 5);
        QCOMPARE(rowLock(EncryptedDrive::sentryID), QStringLiteral("locked"));
        QCOMPARE(rowLock(EncryptedDrive::clearID), QString());
        const QModelIndex sentry = rows()->index(rows()->indexOf(EncryptedDrive::sentryID));
        QCOMPARE(rows()->data(sentry, EventListModel::ReasonLabelRole).toString(), QStringLiteral("Encrypted by your car"));
        QCOMPARE(rows()->data(sentry, EventListModel::CorruptCountRole).toInt(), 0);
        auto *notice = app->find(QStringLiteral("encryptedNotice"));
        QTRY_VERIFY(notice && notice->isVisible());
        QVERIFY(app->find(QStringLiteral("noticeText"))->property("text").toString().startsWith(QStringLiteral("3 events")));
        shots(QStringLiteral("unlock-inbox-locked"));
    }

    void aLockedEventShowsLockedTilesInThePlayer()
    {
        app->state.setSelectedEventID(EncryptedDrive::sentryID);
        auto *bar = app->find(QStringLiteral("lockedBar"));
        QTRY_VERIFY(bar && bar->isVisible());
        QQuickItem *tile = nullptr;
        QTRY_VERIFY((tile = app->find(QStringLiteral("cameraTile_front"))) != nullptr);
        auto *text = AppWindowHarness::findItem(tile, QStringLiteral("placeholderText"));
        QVERIFY(text);
        QTRY_COMPARE(text->property("text").toString(), QStringLiteral("Unlock to watch"));
        shots(QStringLiteral("unlock-player-locked"));
    }

    // A lapsed sign-in says so, and offers to sign in again.
    void aRefusedTokenIsOneSentence()
    {
        app->click(app->find(QStringLiteral("noticeUnlock")));
        QTRY_VERIFY(unlock().showSheet());
        shots(QStringLiteral("unlock-sheet"));
        pasteAndUnlock("an-expired-token", false);
        QCOMPARE(unlock().messages(), QStringList{KeyService::sentence(KeyService::Outcome::signInExpired)});
        QVERIFY(!unlock().hasToken());
        QCOMPARE(service.requests().size(), size_t(1)); // the check alone
        QCOMPARE(app->state.lockedEventCount(), 3);
    }

    void unlockingThroughTheSheet()
    {
        service.clearRequests();
        pasteAndUnlock(token, store->ok());
        QCOMPARE(unlock().summary(), QStringLiteral("Unlocked 5 of 7 clips."));
        QCOMPARE(unlock().messages(), (QStringList{KeyService::sentence(KeyService::Outcome::zeroKeyBlock),
                                                   KeyService::sentence(KeyService::Outcome::damagedHeader)}));
        // The check, then one batch of the five that can be unlocked.
        QCOMPARE(service.requests().size(), size_t(2));
        QCOMPARE(service.requests()[1].items, 5);
        QTRY_COMPARE(app->state.lockedEventCount(), 0);
        QTRY_COMPARE(rowLock(EncryptedDrive::sentryID), QStringLiteral("unlocked"));
        QTRY_VERIFY(!app->find(QStringLiteral("encryptedNotice"))->isVisible());
        QVERIFY(unlock().hasToken());
        QCOMPARE(unlock().isRemembered(), store->ok());
        shots(QStringLiteral("unlock-sheet-done"));
        app->click(app->find(QStringLiteral("closeUnlock")));
        QTRY_VERIFY(!unlock().showSheet());
        shots(QStringLiteral("unlock-inbox-unlocked"));
    }

    // Unlocked, its cameras decode the clips' pictures through the decrypting reader.
    void anUnlockedEventPlaysItsPictures()
    {
        app->state.setSelectedEventID(std::nullopt);
        QTRY_VERIFY(!app->state.activePlayerController());
        app->state.setSelectedEventID(EncryptedDrive::sentryID);
        SyncPlayerController *c = nullptr;
        QTRY_VERIFY_WITH_TIMEOUT((c = qobject_cast<SyncPlayerController *>(app->state.activePlayerController())) && !c->isLoadingTiles() && !c->tiles().empty(),
                                 20000);
        const auto front = std::find_if(c->tiles().begin(), c->tiles().end(),
                                        [](const SyncPlayerController::Tile &t) { return t.camera == Camera::front; });
        QVERIFY(front != c->tiles().end());
        QVERIFY2(front->player, qPrintable(front->placeholderReason.value_or(QString())));
        QVERIFY(!front->locked);
        QTRY_VERIFY_WITH_TIMEOUT(front->player->hasPicture(), 10000);
        QVERIFY(c->duration() > 0);
        shots(QStringLiteral("unlock-player-unlocked"));
    }

    // Remembered in the desktop's secret store: a new window finds it there.
    void rememberedSignInOutlivesTheWindow()
    {
        if (!store->ok())
            QSKIP(qPrintable(store->why()));
        app.reset();
        app = std::make_unique<AppWindowHarness>();
        QVERIFY(app->load());
        unlock().openFor({EncryptedDrive::savedID});
        QTRY_VERIFY_WITH_TIMEOUT(unlock().hasToken(), 20000);
        QVERIFY(unlock().isRemembered());
        unlock().forgetSignIn();
        QTRY_VERIFY(!unlock().hasToken());
        app.reset();
        app = std::make_unique<AppWindowHarness>();
        QVERIFY(app->load());
        unlock().openFor({EncryptedDrive::savedID});
        // Asked and not found: nothing comes.
        QTRY_VERIFY_WITH_TIMEOUT(unlock().storeAnswered(), 20000);
        QVERIFY(!unlock().hasToken());
    }

    void cleanupTestCase()
    {
        app.reset();
        store.reset();
        const QString home = QDir::homePath();
        QDirIterator it(home, QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString path = it.next();
            QVERIFY2(!DriveBuilder::readQuietly(path).contains(token), qPrintable(path));
        }
    }
};

KEELHOLD_APP_TEST_MAIN(UnlockScreensTest)

#include "tst_unlockscreens.moc"
