#include "AppWindowHarness.h"

#include "InboxViewModel.h"
#include "MapViewModel.h"
#include "TileMap.h"
#include "TileSource.h"
#include "support/IsolatedHome.h"
#include "support/TelemetryClipWriter.h"
#include "support/LocalTileServer.h"
#include "support/TeslaCamFixture.h"
#include "support/TestClips.h"

#include <QSettings>
#include <QTcpServer>

// The map in the real window: tiles from a local server are asked for with
// the application's User-Agent and drawn; pins stand where their events
// happened, at the clips' own GPS fixes where they carry them, with the
// routes drawn; a pin or a row of the side list hands over to the Drive
// section.
class EventMapTest : public QObject {
    Q_OBJECT

    QTemporaryDir tmp;
    LocalTileServer tiles;
    std::unique_ptr<AppWindowHarness> app;
    QStringList located;
    QString unlocated;
    QStringList urgent;

    void buildDrive(const QString &root)
    {
        TeslaCamFixture drive(root);
        const QStringList reasons{QStringLiteral("sentry_aware_object_detection"), QStringLiteral("sentry_aware_accel_0.7"),
                                  QStringLiteral("user_interaction_honk")};
        for (int i = 0; i < 6; ++i) {
            const QString name = QStringLiteral("2024-05-0%1_10-00-00").arg(i + 1);
            const QString folder = drive.addEvent(
                QStringLiteral("SentryClips"), name,
                TeslaCamFixture::eventJson(QStringLiteral("2024-05-0%1T10:00:00").arg(i + 1), reasons[i % 3],
                                           QStringLiteral("Austin"), QString::number(30.25 + i * 0.01),
                                           QString::number(-97.75 + i * 0.012)));
            drive.addClip(folder, QStringLiteral("2024-05-0%1_09-59-00").arg(i + 1), QStringLiteral("front"), 16 * 1024);
            located << QStringLiteral("sentry|") + name;
            if (i % 3 == 1)
                urgent << QStringLiteral("sentry|") + name;
        }
        // No details file: no place.
        const QString folder = drive.addEvent(QStringLiteral("SavedClips"), QStringLiteral("2024-05-09_10-00-00"), std::nullopt);
        drive.addClip(folder, QStringLiteral("2024-05-09_09-59-00"), QStringLiteral("front"), 16 * 1024);
        unlocated = QStringLiteral("saved|2024-05-09_10-00-00");

        // A saved event whose event.json has only the coarse place, and recent driving with no place at all.
        if (!TestClips::ffmpegAvailable())
            return;
        TestClips::ClipOptions options;
        options.width = 160;
        options.height = 120;
        options.seconds = 2;
        const QString source = TestClips::clip(options);
        auto withFixes = [&](const QString &name, double lat) {
            const QString path = tmp.filePath(name);
            TelemetryClipWriter::remux(source, path, [lat](int frame, double) {
                TelemetryClipWriter::Message m;
                m.set_frame_seq_no(quint64(frame));
                m.set_vehicle_speed_mps(15);
                // Autopilot for the first second, then cruise.
                m.set_autopilot_state(frame < 30 ? TelemetryClipWriter::Message::AUTOSTEER
                                                 : TelemetryClipWriter::Message::TRAFFIC_AWARE_CRUISE_CONTROL);
                m.set_latitude_deg(lat + frame * 2e-5);
                m.set_longitude_deg(-97.7045);
                return TelemetryClipWriter::FrameRecord{m};
            });
            TestClips::padTo(path);
            return path;
        };
        const QString saved = drive.addEvent(
            QStringLiteral("SavedClips"), QStringLiteral("2024-05-10_10-00-00"),
            TeslaCamFixture::eventJson(QStringLiteral("2024-05-10T10:00:00"), QStringLiteral("user_interaction_honk"),
                                       QStringLiteral("Austin"), QStringLiteral("30.30"), QStringLiteral("-97.70")));
        drive.addClip(saved, QStringLiteral("2024-05-10_09-59-58"), QStringLiteral("front"), 0,
                      withFixes(QStringLiteral("saved.mp4"), preciseLatitude));
        drive.addRecentClip(QStringLiteral("2024-05-11_08-00-00"), QStringLiteral("front"), 0,
                            withFixes(QStringLiteral("recent.mp4"), recentLatitude));
    }

    static constexpr double preciseLatitude = 30.3123;
    static constexpr double recentLatitude = 30.2901;
    const QString withRoute = QStringLiteral("saved|2024-05-10_10-00-00");

    TileMap *map() const { return app->find<TileMap>(QStringLiteral("tileMap")); }

    void showMap()
    {
        app->state.setSelectedSection(SidebarSection::map);
        QTRY_VERIFY(map() && map()->isVisible() && map()->width() > 0 && map()->height() > 0);
        QVERIFY(app->waitForFrame());
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (qEnvironmentVariableIsEmpty("DISPLAY"))
            QSKIP("needs a display (run the suite under xvfb-run)");
        QVERIFY(tiles.start());
        QSettings().setValue(TileSource::templateKey, tiles.urlTemplate());
        buildDrive(tmp.filePath(QStringLiteral("drive/TeslaCam")));
        app = std::make_unique<AppWindowHarness>();
        QVERIFY(app->load());
        app->window()->resize(1300, 900);
        app->state.beginScan(tmp.filePath(QStringLiteral("drive/TeslaCam")));
        QTRY_VERIFY_WITH_TIMEOUT(app->state.driveScan() && !app->state.isScanning() && !app->state.isRevalidatingScan(), 30000);
        QCOMPARE(app->state.driveScan()->events.size(), size_t(TestClips::ffmpegAvailable() ? 9 : 7));
    }

    void tilesAreFetchedFromTheTemplateAndDrawn()
    {
        showMap();
        // Fitted to the pins on first show: far closer than the world view.
        QTRY_VERIFY(map()->zoom() > 8);
        QTRY_VERIFY_WITH_TIMEOUT(map()->tilesDrawn() > 0, 10000);
        QVERIFY(!app->find(QStringLiteral("noTilesText"))->isVisible());
        const QString z = QString::number(int(std::floor(map()->zoom() + 0.5)));
        QVERIFY2(!tiles.paths.filter(QRegularExpression(QStringLiteral("^/") + z + QStringLiteral("/\\d+/\\d+\\.png$"))).isEmpty(),
                 qPrintable(tiles.paths.join(QLatin1Char(' '))));
        // Named, with a way to reach us, as tile servers ask.
        QVERIFY(tiles.userAgents.first().startsWith(QStringLiteral("Keelhold/")));
        QVERIFY(tiles.userAgents.first().contains(QStringLiteral("(+")));

        // The tile's colour is on screen, in a corner with no pin (once the
        // tiles of a view refitted as routes arrive are in too).
        QColor seen;
        QTRY_VERIFY2(([&] {
                         const QImage shot = app->window()->grabWindow();
                         seen = shot.pixelColor(map()->mapToScene(QPointF(6, 6)).toPoint() * shot.devicePixelRatio());
                         return qAbs(seen.red() - LocalTileServer::colour.red()) < 6
                             && qAbs(seen.green() - LocalTileServer::colour.green()) < 6;
                     }()),
                     qPrintable(seen.name()));
        app->shot(QStringLiteral("event-map"));
        auto *attribution = app->find(QStringLiteral("mapAttribution"));
        QVERIFY(attribution && attribution->isVisible());
        QCOMPARE(attribution->property("text").toString(), QStringLiteral("© OpenStreetMap contributors"));
    }

    void pinsStandAtTheirPlacesInTheirColours()
    {
        showMap();
        for (const QString &id : located) {
            QQuickItem *pin = app->find(QStringLiteral("pin_") + id);
            QVERIFY2(pin && pin->isVisible(), qPrintable(id));
            const QColor tint = pin->property("tint").value<QColor>();
            QCOMPARE(tint == QColor(QStringLiteral("#dc2626")), urgent.contains(id));
            // Inside the map: the fit shows them all.
            const QPointF at = pin->property("at").toPointF();
            QVERIFY(at.x() > 0 && at.x() < map()->width() && at.y() > 0 && at.y() < map()->height());
        }
        QVERIFY(!app->find(QStringLiteral("pin_") + unlocated));
        QCOMPARE(app->screens.map()->sections().size(), 2); // how they are cut is the presenter's test
    }

    void dragPansAndWheelZooms()
    {
        showMap();
        const double lon = map()->centerLongitude();
        const QPoint start = AppWindowHarness::centreOf(map());
        QTest::mousePress(app->window(), Qt::LeftButton, Qt::NoModifier, start + QPoint(0, 80));
        for (int i = 1; i <= 8; ++i)
            QTest::mouseMove(app->window(), start + QPoint(i * 20, 80));
        QTest::mouseRelease(app->window(), Qt::LeftButton, Qt::NoModifier, start + QPoint(160, 80));
        QTRY_VERIFY(map()->centerLongitude() < lon); // dragged right: the view moves west

        const double zoom = map()->zoom();
        const QPointF pos = map()->mapToScene(QPointF(map()->width() / 2, map()->height() / 2));
        QWheelEvent wheel(pos, app->window()->mapToGlobal(pos), QPoint(), QPoint(0, 240), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(app->window(), &wheel);
        QTRY_VERIFY(map()->zoom() > zoom);
    }

    void aPinOrARowSelectsTheEventInTheDriveSection()
    {
        showMap();
        // The pins follow the view in their bindings, at once.
        map()->fitTo(app->screens.map()->pins());
        QQuickItem *pin = app->find(QStringLiteral("pin_") + urgent.first());
        QVERIFY(pin);
        QTest::mouseClick(app->window(), Qt::LeftButton, Qt::NoModifier, pin->mapToScene(QPointF(pin->width() / 2, 14)).toPoint());
        QTRY_COMPARE(app->state.selectedSection(), SidebarSection::drive);
        QCOMPARE(app->state.selectedEventID().value_or(QString()), urgent.first());
        // The inbox shows it selected.
        QTRY_COMPARE(app->screens.inbox()->rows()->selectedIndex(), app->screens.inbox()->rows()->indexOf(urgent.first()));

        showMap();
        QQuickItem *row = nullptr;
        QTRY_VERIFY((row = app->find(QStringLiteral("mapRow_") + unlocated)) && row->isVisible());
        app->click(row);
        QTRY_COMPARE(app->state.selectedSection(), SidebarSection::drive);
        QCOMPARE(app->state.selectedEventID().value_or(QString()), unlocated);
    }

    void withoutTilesThePinsStandOnAPlainBackground()
    {
        // Every tile of the working server has landed: one landing after the failures below would clear them.
        QTRY_COMPARE_WITH_TIMEOUT(TileSource::shared()->tilesArrived(), TileSource::shared()->requestsStarted(), 30000);
        // A port where nothing answers.
        QTcpServer closed;
        QVERIFY(closed.listen(QHostAddress::LocalHost));
        const quint16 port = closed.serverPort();
        closed.close();
        QSettings().setValue(TileSource::templateKey, QStringLiteral("http://127.0.0.1:%1/{z}/{x}/{y}.png").arg(port));
        showMap();
        map()->zoomAround(0.5, map()->width() / 2, map()->height() / 2);
        // The plain field says why it is plain.
        QTRY_VERIFY_WITH_TIMEOUT(map()->property("tilesUnavailable").toBool(), 10000);
        QQuickItem *note = app->find(QStringLiteral("noTilesText"));
        QTRY_VERIFY(note && note->isVisible());
        QCOMPARE(note->property("text").toString(),
                 QStringLiteral("Map tiles aren't available — check your internet connection."));
        app->shot(QStringLiteral("map-sample-no-tiles"));
        QCOMPARE(map()->tilesDrawn(), 0);
        for (const QString &id : located)
            QVERIFY(app->find(QStringLiteral("pin_") + id)->isVisible());
    }

    // The first GPS fix beats event.json's coarse place; clips without fixes keep the pins they had.
    void clipsWithFixesPinPreciselyAndDrawTheirRoutes()
    {
        if (!TestClips::ffmpegAvailable())
            QSKIP("needs the ffmpeg tool to make clips");
        showMap();
        auto pinOf = [&](const QString &id) -> QVariantMap {
            for (const QVariant &p : app->screens.map()->pins())
                if (p.toMap().value(QStringLiteral("id")).toString() == id)
                    return p.toMap();
            return {};
        };
        QTRY_COMPARE_WITH_TIMEOUT(pinOf(withRoute).value(QStringLiteral("latitude")).toDouble(), preciseLatitude, 20000);
        QCOMPARE(pinOf(withRoute).value(QStringLiteral("longitude")).toDouble(), -97.7045);
        QString recent;
        for (const TeslaEvent &e : app->state.driveScan()->events)
            if (e.kind == EventKind::recent)
                recent = e.id();
        QTRY_COMPARE_WITH_TIMEOUT(pinOf(recent).value(QStringLiteral("latitude")).toDouble(), recentLatitude, 20000);
        QVERIFY(app->find(QStringLiteral("pin_") + recent));
        // The sparse clips have no fixes: their pins stay at their places.
        QCOMPARE(pinOf(located.first()).value(QStringLiteral("latitude")).toDouble(), 30.25);
        QVERIFY(pinOf(unlocated).isEmpty());

        // Each route blue (Autopilot) then green (cruise); the map refits to take them in as they arrive.
        QTRY_COMPARE(app->screens.map()->routesForQml().value<MapRoutes>().size(), 2);
        auto allInView = [&] {
            for (const TileMap::Stroke &stroke : map()->strokes())
                for (const QPointF &p : stroke.points)
                    if (p.x() < 0 || p.x() > map()->width() || p.y() < 0 || p.y() > map()->height())
                        return false;
            return !map()->strokes().empty();
        };
        QTRY_VERIFY(allInView());
        QTRY_VERIFY(app->find(QStringLiteral("routeKey")) && app->find(QStringLiteral("routeKey"))->isVisible());
        QSet<QString> colours;
        for (const TileMap::Stroke &stroke : map()->strokes())
            colours.insert(stroke.colour.name());
        QCOMPARE(colours, (QSet<QString>{QStringLiteral("#2f7de1"), QStringLiteral("#2aa760")}));
    }

    void cleanupTestCase() { app.reset(); }
};

KEELHOLD_APP_TEST_MAIN(EventMapTest)

#include "tst_eventmap.moc"
