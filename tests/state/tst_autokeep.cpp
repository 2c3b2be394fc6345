#include "drive/TeslaCamParser.h"
#include "engine/BookmarkStore.h"
#include "engine/LiveEngine.h"
#include "state/AppState.h"
#include "state/DesktopNotices.h"
#include "support/DriveBuilder.h"
#include "support/FaultyFs.h"
#include "support/IsolatedHome.h"
#include "support/MountedVolume.h"
#include "support/NotificationServiceStandIn.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

// Real app state and live engine, a real exFAT drive under /media (root only), notifications on the test's own bus.
class TestAutoKeep : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void aDriveThatKeepsItselfIsKeptWhenItComesIn()
    {
        NotificationServiceStandIn desktop;
        QVERIFY(desktop.ok());
        MountedVolume drive(QStringLiteral("exfat"), QStringLiteral("KHAUTO"));
        if (!drive.ok())
            QSKIP("could not mount an exFAT image under /media");
        DriveBuilder car(drive.path() + QStringLiteral("/TeslaCam"));
        car.addEvent(QStringLiteral("SentryClips"), QStringLiteral("2026-07-13_10-00-00"), 2, 40000);
        car.addEvent(QStringLiteral("SavedClips"), QStringLiteral("2026-07-13_11-00-00"), 1, 40000);
        const std::optional<DriveIdentity::Mounted> identity = DriveIdentity::of(drive.path());
        QVERIFY(identity);
        drive.pull();

        LiveEngine engine;
        AppState state(engine);
        DesktopNotifier notifier(QStringLiteral("io.keelhold.Keelhold"));
        DesktopNotices notices(state, notifier);
        QTemporaryDir vault;
        state.setVaultURL(vault.path());
        QTRY_VERIFY(state.vaultURL());
        state.rootViewAppeared();
        QSignalSpy ended(&state, &AppState::keepEnded);

        // Not chosen yet: the desktop hears Sentry events wait, a click opens the drive, nothing is copied.
        QVERIFY(drive.plugIn());
        QTRY_COMPARE_WITH_TIMEOUT(desktop.received().size(), size_t(1), 30000);
        QCOMPARE(desktop.received()[0].title, QStringLiteral("1 Sentry event not kept yet"));
        QCOMPARE(desktop.received()[0].body,
                 QStringLiteral("KHAUTO is connected with Sentry events that aren't in your Vault."));
        desktop.click(desktop.received()[0].id);
        QTRY_COMPARE(state.driveRootURL().value_or(QString()), drive.path() + QStringLiteral("/TeslaCam"));
        QCOMPARE(ended.size(), 0);
        drive.pull();

        // Chosen, while the user keeps another drive: it waits its turn, then keeps itself without a sheet.
        state.autoKeep().set(identity->drive, true, false);
        QTemporaryDir faultyAt;
        FaultyFs other(faultyAt.path());
        QVERIFY(other.isMounted());
        const QString clip = QStringLiteral("TeslaCam/SentryClips/2026-07-12_09-00-00/2026-07-12_09-00-00-front.mp4");
        other.addFile(clip, DriveBuilder::randomBytes(3 * 1024 * 1024, 7));
        other.hangReadsFrom(clip, 1024 * 1024);
        const DriveScan otherScan = TeslaCamParser::scan(faultyAt.path() + QStringLiteral("/TeslaCam"));
        QCOMPARE(otherScan.events.size(), size_t(1));
        state.keep(otherScan.events);
        QTRY_VERIFY(other.isHanging());

        QVERIFY(drive.plugIn());
        QTRY_COMPARE_WITH_TIMEOUT(state.drivesWaitingToKeep(), 1, 30000);
        QVERIFY(!state.isKeepAutomatic());
        other.release();
        QTRY_COMPARE_WITH_TIMEOUT(ended.size(), 2, 60000);
        QCOMPARE(std::tuple(ended[0][1].toBool(), ended[1][1].toBool(), ended[1][3].toString()),
                 std::tuple(false, true, QStringLiteral("KHAUTO")));
        state.setShowArchiveReport(false);
        QCOMPARE(state.lastArchiveReport()->completeEvents(), 2);
        QVERIFY(!state.showArchiveReport());
        QTRY_COMPARE_WITH_TIMEOUT(desktop.received().size(), size_t(2), 20000);
        QVERIFY2(desktop.received()[1].body.startsWith(QStringLiteral("Kept 2 new events from KHAUTO \u2014 ")),
                 qPrintable(desktop.received()[1].body));

        // The car records one more: back again, only that one is copied.
        car.addEvent(QStringLiteral("SentryClips"), QStringLiteral("2026-07-13_12-00-00"), 1, 40000);
        drive.pull();
        QVERIFY(drive.plugIn());
        QTRY_COMPARE_WITH_TIMEOUT(ended.size(), 3, 60000);
        const ArchiveReport third = ended[2][0].value<ArchiveReport>();
        QCOMPARE(std::pair(third.completeEvents(), third.plannedEvents), std::pair(1, 1));
    }

    // Told only when it ran long (an export only behind other windows); a short one the user saw end.
    void longWorkIsToldOnlyWhenLong()
    {
        NotificationServiceStandIn desktop;
        QVERIFY(desktop.ok());
        LiveEngine engine;
        AppState state(engine);
        DesktopNotifier notifier(QStringLiteral("io.keelhold.Keelhold"));
        DesktopNotices notices(state, notifier);
        QSignalSpy answered(&notifier, &DesktopNotifier::answered);
        ArchiveReport kept;
        kept.plannedEvents = 1;
        kept.bytesCopied = 5'000'000;
        ArchivedEvent e;
        e.eventID = QStringLiteral("sentry|x");
        e.files = {{QStringLiteral("a.mp4"), 5'000'000, QStringLiteral("00")}};
        kept.archivedEvents = {e};

        Q_EMIT state.keepEnded(kept, false, 12, QStringLiteral("TESLADRIVE"));
        state.noteExportEnded(12, QStringLiteral("Export finished"), QStringLiteral("short.mp4 is ready."));
        Q_EMIT state.keepEnded(kept, false, 31, QStringLiteral("TESLADRIVE"));
        state.noteExportEnded(95, QStringLiteral("Export finished"), QStringLiteral("long.mp4 is ready."));
        QTRY_COMPARE(answered.size(), 2);
        QCOMPARE(desktop.received().size(), size_t(2));
        QCOMPARE(desktop.received()[0].body, QStringLiteral("Kept 1 new event from TESLADRIVE \u2014 5.0 MB, all verified"));
        QCOMPARE(desktop.received()[1].body, QStringLiteral("long.mp4 is ready."));
    }

    // Plugged in before Keelhold opened: a self-keeping drive is kept once the Vault is known; any other is left alone.
    void aDriveAlreadyMountedAtStart()
    {
        MountedVolume drive(QStringLiteral("exfat"), QStringLiteral("KHSTART"));
        MountedVolume other(QStringLiteral("exfat"), QStringLiteral("KHOTHER"));
        if (!drive.ok() || !other.ok())
            QSKIP("could not mount an exFAT image under /media");
        DriveBuilder(drive.path() + QStringLiteral("/TeslaCam"))
            .addEvent(QStringLiteral("SentryClips"), QStringLiteral("2026-07-14_10-00-00"), 1, 40000);
        DriveBuilder(other.path() + QStringLiteral("/TeslaCam"))
            .addEvent(QStringLiteral("SentryClips"), QStringLiteral("2026-07-14_11-00-00"), 1, 40000);
        const std::optional<DriveIdentity::Mounted> identity = DriveIdentity::of(drive.path());
        QVERIFY(identity);
        QTemporaryDir vault;
        BookmarkStore::save(vault.path(), BookmarkKey::vaultFolder);

        LiveEngine engine;
        engine.setFlag(AppState::onboardingKey, true);
        AppState state(engine);
        state.autoKeep().set(identity->drive, true, false);
        QSignalSpy ended(&state, &AppState::keepEnded);
        state.rootViewAppeared();
        QTRY_COMPARE_WITH_TIMEOUT(ended.size(), 1, 60000);
        QCOMPARE(std::pair(ended[0][1].toBool(), ended[0][3].toString()), std::pair(true, QStringLiteral("KHSTART")));
        const auto &kept = state.lastArchiveReport()->archivedEvents;
        QCOMPARE(std::pair(kept.size(), kept.at(0).eventID), std::pair(size_t(1), QStringLiteral("sentry|2026-07-14_10-00-00")));
    }
};

KEELHOLD_ISOLATED_TEST_MAIN(TestAutoKeep)
#include "tst_autokeep.moc"
