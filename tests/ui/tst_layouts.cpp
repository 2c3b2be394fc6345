#include "AppWindowHarness.h"
#include "support/IsolatedHome.h"

#include <QSettings>
#include <QRegularExpression>

// The player's screen holds together at the sizes people use: the smallest
// window, a laptop, and full HD. The driving-data readings and the route
// leave at least three quarters of every camera in view, the transport keeps
// its controls apart, and popups stay inside the window.
//
// With KEELHOLD_SCREENSHOT_DIR set, each size is saved there as a PNG.

namespace {

QRectF sceneRect(QQuickItem *item)
{
    return item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
}

} // namespace

class LayoutsTest : public QObject {
    Q_OBJECT

    std::unique_ptr<AppWindowHarness> app;

    QQuickItem *shown(const QString &name) const
    {
        for (QQuickItem *item : app->shownItems(name))
            if (item->opacity() > 0)
                return item;
        return nullptr;
    }
    QList<QQuickItem *> shownWithPrefix(const QString &prefix) const { return app->shownItems(prefix, true); }

    // The event of the sample footage that carries driving data and a route.
    QString drivingEvent() const
    {
        for (const TeslaEvent &e : app->state.driveScan()->events)
            if (e.kind == EventKind::saved)
                return e.id();
        return {};
    }

    // Layouts settle over a frame or two, so this is polled.
    bool controlsHold(const QStringList &names, QString *why) const
    {
        const QRectF bounds(QPointF(0, 0), QSizeF(app->window()->size()));
        QList<QRectF> rects;
        for (const QString &name : names) {
            QQuickItem *item = shown(name);
            if (!item)
                return *why = name + QStringLiteral(" is not shown"), false;
            rects << sceneRect(item);
            if (!bounds.contains(rects.last().adjusted(1, 1, -1, -1)))
                return *why = name + QStringLiteral(" is cut off"), false;
        }
        for (int i = 0; i < rects.size(); ++i)
            for (int j = i + 1; j < rects.size(); ++j)
                if (rects[i].intersects(rects[j]))
                    return *why = names[i] + QStringLiteral(" overlaps ") + names[j], false;
        return true;
    }

    void openDrivingEvent()
    {
        app->state.setSelectedEventID(drivingEvent());
        QTRY_VERIFY_WITH_TIMEOUT(
            shown(QStringLiteral("drivingDataOverlay")) || shown(QStringLiteral("drivingDataBelow")), 30000);
        QTRY_VERIFY(!shownWithPrefix(QStringLiteral("cameraTile_")).isEmpty());
    }

private Q_SLOTS:
    void initTestCase()
    {
        const QString sample = QStringLiteral(KEELHOLD_BUILD_DIR "/resources/SampleTeslaCam/TeslaCam");
        if (!QFileInfo(sample).isDir())
            QSKIP("the sample footage was not made in this build");
        qputenv(AppState::sampleFootageEnv, sample.toLocal8Bit());
        QSettings(QStringLiteral("Keelhold"), QStringLiteral("Keelhold")).setValue(AppState::onboardingKey, true);
        app = std::make_unique<AppWindowHarness>();
        QVERIFY(app->load());
        app->state.loadSampleFootage();
        QTRY_VERIFY_WITH_TIMEOUT(app->state.driveScan() && !app->state.isScanning(), 60000);
        QVERIFY(!drivingEvent().isEmpty());
    }

    void cleanupTestCase() { app.reset(); }

    void readingsLeaveEveryCameraInView_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("smallest") << QSize(900, 600);
        QTest::newRow("laptop") << QSize(1280, 800);
        QTest::newRow("full HD") << QSize(1920, 1080);
    }

    void readingsLeaveEveryCameraInView()
    {
        QFETCH(QSize, size);
        app->window()->resize(size);
        openDrivingEvent();
        QVERIFY(app->waitForFrame());
        QList<QQuickItem *> covering;
        for (const QString &name : {QStringLiteral("drivingDataOverlay"), QStringLiteral("routeInset")})
            if (QQuickItem *item = shown(name))
                covering << item;
        // Too small for either: the readings step below the cameras.
        if (covering.isEmpty())
            QVERIFY(shown(QStringLiteral("drivingDataBelow")));
        for (QQuickItem *tile : shownWithPrefix(QStringLiteral("cameraTile_"))) {
            const QRectF area = sceneRect(tile);
            double hidden = 0;
            for (QQuickItem *over : covering) {
                // As drawn: the overlay may be scaled from its corner.
                const QRectF both = area.intersected(sceneRect(over));
                hidden += both.width() * both.height();
            }
            const double share = hidden / (area.width() * area.height());
            QVERIFY2(share <= 0.25, qPrintable(QStringLiteral("%1 is %2% covered at %3x%4").arg(tile->objectName())
                                                   .arg(qRound(share * 100)).arg(size.width()).arg(size.height())));
        }
        QString why;
        QTRY_VERIFY2(controlsHold({QStringLiteral("keepButton"), QStringLiteral("dismissButton"), QStringLiteral("exportButton"),
                                   QStringLiteral("focusModeButton"), QStringLiteral("stepBackButton"),
                                   QStringLiteral("playPauseButton"), QStringLiteral("stepForwardButton"),
                                   QStringLiteral("speedPicker")},
                                  &why),
                     qPrintable(why));
        QStringList alone{QStringLiteral("durationText"), QStringLiteral("currentTimeText"), QStringLiteral("switchDrive"),
                          QStringLiteral("selectToggle")};
        for (QQuickItem *tile : shownWithPrefix(QStringLiteral("cameraTile_")))
            alone << tile->objectName();
        for (const QString &name : alone)
            QVERIFY2(controlsHold({name}, &why), qPrintable(why));
        // Room for rows under the banners (which scroll away with the list).
        QQuickItem *list = shown(QStringLiteral("inboxList"));
        QVERIFY(list);
        auto *header = list->property("headerItem").value<QQuickItem *>();
        if (size.height() >= 800)
            QVERIFY(list->height() - (header ? header->height() : 0) >= 5 * 64);
        app->shot(QStringLiteral("player-%1x%2").arg(size.width()).arg(size.height()));
    }

    // The readings move between over the cameras and below them, in one layout pass each: no polish loop.
    void sizeJumpsSettleWithoutALoop()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral("Polish loop")));
        app->window()->resize(1920, 1080);
        openDrivingEvent();
        for (const QSize size : {QSize(900, 600), QSize(1920, 1080), QSize(1280, 800), QSize(900, 600),
                                 QSize(2560, 1440), QSize(900, 600)}) {
            app->window()->resize(size);
            QVERIFY(app->waitForFrame() && app->waitForFrame());
        }
        // Maximised and back to the smallest, as a user's window manager does.
        for (int i = 0; i < 3; ++i) {
            app->window()->showMaximized();
            QVERIFY(app->waitForFrame());
            app->window()->showNormal();
            app->window()->resize(900, 600);
            QVERIFY(app->waitForFrame() && app->waitForFrame());
        }
    }

    // Full size before any event opens, as when the app starts maximised.
    void transportHoldsWhenTheWindowIsLargeFromTheStart()
    {
        app->state.setSelectedEventID(std::nullopt);
        QVERIFY(app->waitForFrame());
        app->window()->resize(1600, 1000);
        QVERIFY(app->waitForFrame());
        openDrivingEvent();
        QVERIFY(app->waitForFrame());
        const QStringList names{QStringLiteral("frameBackButton"), QStringLiteral("stepBackButton"),
                                QStringLiteral("playPauseButton"), QStringLiteral("stepForwardButton"),
                                QStringLiteral("frameForwardButton"), QStringLiteral("momentButton"),
                                QStringLiteral("speedPicker")};
        QString why;
        QTRY_VERIFY2_WITH_TIMEOUT(controlsHold(names, &why), qPrintable(why), 5000);
        app->shot(QStringLiteral("player-large-from-the-start"));
    }
};

KEELHOLD_APP_TEST_MAIN(LayoutsTest)
#include "tst_layouts.moc"
