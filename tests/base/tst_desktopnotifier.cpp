#include "base/DesktopNotifier.h"
#include "support/NotificationServiceStandIn.h"

#include <QSignalSpy>
#include <QTest>

// Against a real session bus (the suite runs this under dbus-run-session)
// with the notification service played here.
class TestDesktopNotifier : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(QDBusConnection::sessionBus().isConnected(), "run under dbus-run-session");
    }

    void aNoteReachesTheServiceAndAClickComesBack()
    {
        NotificationServiceStandIn service;
        QVERIFY(service.ok());
        DesktopNotifier notifier(QStringLiteral("io.keelhold.Keelhold"));
        QSignalSpy answered(&notifier, &DesktopNotifier::answered);
        QSignalSpy activated(&notifier, &DesktopNotifier::activated);

        notifier.notify({QStringLiteral("Footage kept"), QStringLiteral("Kept 3 new events from TESLADRIVE"),
                         QStringLiteral("vault")});
        notifier.notify({QStringLiteral("Just news"), QStringLiteral("Nowhere to go"), QString()});
        QTRY_COMPARE(answered.size(), 2);
        QCOMPARE(service.received().size(), size_t(2));
        // Title and body as the desktop shows them: state_tst_autokeep.
        const auto &first = service.received()[0];
        QCOMPARE(first.hints.value(QStringLiteral("desktop-entry")).toString(), QStringLiteral("io.keelhold.Keelhold"));
        QVERIFY(first.actions.contains(QStringLiteral("default")));
        // Without a place to go there is nothing to click.
        QVERIFY(service.received()[1].actions.isEmpty());

        // Clicks on the one without a target, then on the one with it: only
        // the second leads anywhere, and a closed one is forgotten.
        service.click(service.received()[1].id);
        service.click(first.id);
        QVERIFY(activated.wait(10000));
        QCOMPARE(activated.size(), 1);
        QCOMPARE(activated[0][0].toString(), QStringLiteral("vault"));
    }

    void noServiceOrNoBusIsQuiet()
    {
        // Nobody owns the name: the call fails at once, nothing is waited for.
        DesktopNotifier onBus(QStringLiteral("io.keelhold.Keelhold"));
        QSignalSpy answered(&onBus, &DesktopNotifier::answered);
        onBus.notify({QStringLiteral("Footage kept"), QStringLiteral("…"), QStringLiteral("vault")});
        QTRY_COMPARE(answered.size(), 1);
        QCOMPARE(answered[0][0].toUInt(), 0u);

        // No bus at all.
        const QDBusConnection none = QDBusConnection::connectToBus(QStringLiteral("unix:path=/nonexistent/bus"),
                                                                   QStringLiteral("nowhere"));
        QVERIFY(!none.isConnected());
        DesktopNotifier offBus(QStringLiteral("io.keelhold.Keelhold"), none);
        QSignalSpy quiet(&offBus, &DesktopNotifier::answered);
        offBus.notify({QStringLiteral("Footage kept"), QStringLiteral("…"), QStringLiteral("vault")});
        QCOMPARE(quiet.size(), 1);
        QCOMPARE(quiet[0][0].toUInt(), 0u);
    }
};

QTEST_GUILESS_MAIN(TestDesktopNotifier)
#include "tst_desktopnotifier.moc"
