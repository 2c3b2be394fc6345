#include "ExportFlow.h"
#include "KeyboardHints.h"
#include "ListPlayerKeyRouter.h"
#include "PlayerKeyActions.h"
#include "PlayerLayout.h"
#include "engine/MockEngine.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

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
        QCOMPARE(PlayerLayout::gridColumns(1), 2);
        QCOMPARE(PlayerLayout::gridColumns(4), 2);
        QCOMPARE(PlayerLayout::gridColumns(5), 3);
        QCOMPARE(PlayerLayout::gridColumns(7), 3);
        // Thumb travel is inset 12 points at each end.
        QCOMPARE(PlayerLayout::momentMarkX(QVariant(30.0), 60.0, 224), 112.0);
        QCOMPARE(PlayerLayout::momentMarkX(QVariant(0.0), 60.0, 224), 12.0);
        QVERIFY(PlayerLayout::momentMarkX(QVariant(), 60.0, 224) < 0);
        QVERIFY(PlayerLayout::momentMarkX(QVariant(5.0), 0.0, 224) < 0);
        QCOMPARE(PlayerLayout::momentMarkTooltip(75), QStringLiteral("The moment it happened — 1:15 into the event."));
        QCOMPARE(PlayerLayout::speedLabel(1.0), QStringLiteral("1×"));
        QCOMPARE(PlayerLayout::speedLabel(0.5), QStringLiteral("0.5×"));
        QCOMPARE(PlayerLayout::speedLabel(4.0), QStringLiteral("4.0×"));
        QCOMPARE(PlayerLayout::coordinatesText(QVariant(), QVariant(2.0)), QStringLiteral("Location unknown"));
        QCOMPARE(PlayerLayout::coordinatesText(37.77493, -122.41942), QStringLiteral("37.7749, -122.4194"));
        QCOMPARE(PlayerLayout::stripTooltip(QStringLiteral("Front"), true), QStringLiteral("Front — currently enlarged."));
    }

    void hintBarSettingDefaultsOnAndPersists()
    {
        QSettings().remove(KeyboardHints::settingKey);
        KeyboardHints hints;
        QVERIFY(hints.showHints());
        QSignalSpy spy(&hints, &KeyboardHints::showHintsChanged);
        hints.setShowHints(false);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(KeyboardHints().showHints(), false);
        const QVariantList items = KeyboardHints::items();
        QCOMPARE(items.first().toMap().value(QStringLiteral("key")).toString(), QStringLiteral("Space"));
        QCOMPARE(items.last().toMap().value(QStringLiteral("label")).toString(), QStringLiteral("Dismiss"));
        hints.setShowHints(true);
    }

    void routerIgnoresModifiersAndStrangers()
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
    }

    void focusKeyIsDeferredOneTurn()
    {
        MockEngine engine;
        AppState state(engine);
        ListPlayerKeyRouter router;
        router.setAppState(&state);
        const bool before = state.isFocusMode();
        QVERIFY(router.keyPressed(Qt::Key_F, 0, QStringLiteral("f")));
        QCOMPARE(state.isFocusMode(), before);
        QTRY_COMPARE(state.isFocusMode(), !before);
    }

    void exportFlowRunsThroughItsStates()
    {
        MockEngine engine;
        const TeslaEvent event = MockEngine::demoEvents().front();
        ExportFlow flow(engine, event);
        QCOMPARE(flow.stateName(), QStringLiteral("choosing"));
        QVERIFY(flow.selectedCamera());
        QVERIFY(flow.canExport());
        QCOMPARE(flow.availableCameras().front().gridOrder() <= flow.availableCameras().back().gridOrder(), true);
        flow.startExport();
        QCOMPARE(flow.stateName(), QStringLiteral("exporting"));
        QTRY_COMPARE_WITH_TIMEOUT(flow.stateName(), QStringLiteral("ready"), 10000);
        QVERIFY(flow.readyText().startsWith(QStringLiteral("Ready: ")));
        const QString first = *flow.exportedPath();

        // Saving replaces a file already there and leaves the export in place.
        QTemporaryDir dir;
        const QString target = dir.filePath(QStringLiteral("copy.mp4"));
        QFile old(target);
        QVERIFY(old.open(QIODevice::WriteOnly));
        old.write("old");
        old.close();
        if (QFileInfo::exists(first)) {
            QVERIFY(flow.saveTo(target));
            QCOMPARE(flow.savedText(), QStringLiteral("Saved as copy.mp4"));
            QVERIFY(QFileInfo::exists(first));
        }
        QVERIFY(!flow.saveTo(dir.filePath(QStringLiteral("missing/dir/x.mp4"))) || !QFileInfo::exists(first));
    }

    void stopBeforeTheSessionEndsQuietly()
    {
        MockEngine engine;
        ExportFlow flow(engine, MockEngine::demoEvents().front());
        flow.startExport();
        flow.stop();
        QTRY_COMPARE_WITH_TIMEOUT(flow.isExporting(), false, 10000);
        QCOMPARE(flow.stateName(), QStringLiteral("choosing"));
        QVERIFY(!flow.errorMessage());
    }
};

QTEST_MAIN(TestPlayerRules)
#include "tst_playerrules.moc"
