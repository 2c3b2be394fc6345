// The car's driving data in the real application window: the overlay shows
// the record of the very frame on screen (told by the picture itself) after
// seeks, frame steps and while playing; events without records show
// nothing; the key, the toolbar button and the speed unit are remembered;
// the strip under the scrubber shows where the car braked hard.

#include "AppWindowHarness.h"
#include "DrivingDataPreferences.h"
#include "EventPlayerPresenter.h"
#include "MapViewModel.h"
#include "TileMap.h"
#include "PlayerDrivingData.h"
#include "SpeedStrip.h"
#include "playback/PlaybackClips.h"
#include "playback/SyncPlayerController.h"
#include "playback/TrackPlayer.h"
#include "support/IsolatedHome.h"
#include "support/TelemetryClipWriter.h"
#include "support/TeslaCamFixture.h"
#include "support/TestClips.h"

#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using Message = TelemetryClipWriter::Message;

namespace {

constexpr quint64 firstSequence = 1000;
const QString withRecords = QStringLiteral("saved|2024-06-02_08-59-02");
const QString withoutRecords = QStringLiteral("saved|2024-06-03_08-59-02");
const QString frontEndsEarly = QStringLiteral("saved|2024-06-04_08-59-02"); // the rear camera goes on 2 s longer

// Frame n of the front clip: a sequence number that names the frame, 20 m/s
// until 1.5 s, then a hard stop (8 m/s²) with the brake on to 12 m/s at 2.5 s.
Message recordOfFrame(int n)
{
    const double t = n / double(PlaybackClips::fps);
    Message m;
    m.set_version(1);
    m.set_frame_seq_no(firstSequence + quint64(n));
    m.set_gear_state(Message::GEAR_DRIVE);
    const bool braking = t >= 1.5 && t < 2.5;
    m.set_vehicle_speed_mps(float(t < 1.5 ? 20.0 : t < 2.5 ? 20.0 - 8.0 * (t - 1.5) : 12.0));
    m.set_brake_applied(braking);
    m.set_accelerator_pedal_position(braking ? 0.0f : float(n % 90));
    m.set_steering_wheel_angle(float(n - 54));
    m.set_blinker_on_left(n >= 10 && n < 20);
    m.set_autopilot_state(n < 54 ? Message::AUTOSTEER : Message::TRAFFIC_AWARE_CRUISE_CONTROL);
    m.set_heading_deg(45.0);
    m.set_latitude_deg(30.5 + n * 1e-5);
    m.set_longitude_deg(-97.7);
    return m;
}

} // namespace

class DrivingDataTest : public QObject {
    Q_OBJECT

    QTemporaryDir dir_;
    std::unique_ptr<AppWindowHarness> app_;

    AppState &state() const { return app_->state; }
    SyncPlayerController *controller() const { return qobject_cast<SyncPlayerController *>(state().activePlayerController()); }
    PlayerDrivingData *drivingData() const
    {
        auto *view = app_->find<QQuickItem>(QStringLiteral("eventPlayerView"));
        auto *presenter = view ? view->property("presenter").value<EventPlayerPresenter *>() : nullptr;
        return presenter ? presenter->drivingData() : nullptr;
    }
    QQuickItem *item(const QString &name) const { return AppWindowHarness::findItem(app_->window()->contentItem(), name, true); }
    TrackPlayer *frontPlayer() const
    {
        for (const auto &tile : controller()->tiles())
            if (tile.camera == Camera::front)
                return tile.player.get();
        return nullptr;
    }

    void open(const QString &id, bool hasData = true)
    {
        if (state().selectedEventID() == id) { // opened afresh, from its cue
            state().setSelectedEventID(std::nullopt);
            QTRY_VERIFY(!controller() && !app_->window()->findChild<QQuickItem *>(QStringLiteral("eventPlayerView")));
        }
        state().setSelectedSection(SidebarSection::drive);
        state().setSelectedEventID(id);
        QTRY_VERIFY_WITH_TIMEOUT(controller() && drivingData(), 10000);
        // Its cue has played it (a short event may have played to its end).
        QTRY_VERIFY_WITH_TIMEOUT(!controller()->isLoadingTiles() && (controller()->isPlaying() || controller()->currentTime() > 0),
                                 20000);
        controller()->pause();
        QVERIFY(frontPlayer());
        QTRY_VERIFY_WITH_TIMEOUT(frontPlayer()->hasPicture() && !frontPlayer()->isSeeking(), 10000);
        if (hasData)
            QTRY_VERIFY_WITH_TIMEOUT(drivingData()->hasData(), 20000);
    }

    void waitForExactFrame()
    {
        QTRY_VERIFY_WITH_TIMEOUT(!frontPlayer()->isSeeking() && !frontPlayer()->isShowingPreview(), 10000);
    }

    // The frame on screen, once exact, read from its pixels.
    void verifyOverlayMatchesPicture()
    {
        waitForExactFrame();
        const auto shown = PlaybackClips::identify(frontPlayer()->currentFrame());
        QVERIFY(shown);
        const TelemetryRecord *record = drivingData()->currentRecord();
        QVERIFY2(record, qPrintable(QStringLiteral("no record at frame %1").arg(shown->index)));
        QCOMPARE(record->frameSequenceNumber, firstSequence + quint64(shown->index));
        // And the window says the same.
        const Message expected = recordOfFrame(shown->index);
        QTRY_COMPARE(item(QStringLiteral("speedValue"))->property("text").toString(),
                     QString::number(qRound(expected.vehicle_speed_mps() * 3.6)));
        QCOMPARE(item(QStringLiteral("steeringWheel"))->rotation(), double(expected.steering_wheel_angle()));
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (qEnvironmentVariableIsEmpty("DISPLAY"))
            QSKIP("needs a display (run the suite under xvfb-run)");
        if (!TestClips::ffmpegAvailable())
            QSKIP("needs the ffmpeg tool to make clips");
        const QString front = dir_.filePath(QStringLiteral("front.mp4"));
        TelemetryClipWriter::remux(PlaybackClips::frameClip(0, 0), front, [](int frame, double) {
            return TelemetryClipWriter::FrameRecord{recordOfFrame(frame)};
        });
        auto padded = [&](const QString &source, const QString &name) {
            const QString path = dir_.filePath(name);
            QFile::copy(source, path);
            TestClips::padTo(path);
            return path;
        };
        TestClips::padTo(front);
        const QString back = padded(PlaybackClips::frameClip(1, 0), QStringLiteral("back.mp4"));
        const QString plainFront = padded(PlaybackClips::frameClip(0, 1), QStringLiteral("plain-front.mp4"));
        const QString longBack =
            padded(PlaybackClips::frameClip(1, 2, PlaybackClips::clipSeconds + 2), QStringLiteral("long-back.mp4"));
        TeslaCamFixture drive(dir_.filePath(QStringLiteral("TeslaCam")));
        for (const auto &[day, frontClip, backClip] : {std::tuple{QStringLiteral("02"), front, back},
                                                       std::tuple{QStringLiteral("03"), plainFront, back},
                                                       std::tuple{QStringLiteral("04"), front, longBack}}) {
            const QString folder = drive.addEvent(
                QStringLiteral("SavedClips"), QStringLiteral("2024-06-%1_08-59-02").arg(day),
                TeslaCamFixture::eventJson(QStringLiteral("2024-06-%1T08:59:02").arg(day),
                                           QStringLiteral("user_interaction_honk")));
            drive.addClip(folder, QStringLiteral("2024-06-%1_08-59-00").arg(day), QStringLiteral("front"), 0, frontClip);
            drive.addClip(folder, QStringLiteral("2024-06-%1_08-59-00").arg(day), QStringLiteral("back"), 0, backClip);
        }
        app_ = std::make_unique<AppWindowHarness>();
        QVERIFY(app_->load());
        app_->window()->resize(1280, 800);
        app_->window()->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(app_->window()));
        state().beginScan(drive.root());
        // Probed, so that opening an event twice opens the same clips.
        auto probed = [&] {
            if (!state().driveScan() || state().driveScan()->events.size() != 3 || state().isScanning())
                return false;
            for (const TeslaEvent &e : state().driveScan()->events)
                for (const ClipRef &c : e.clips)
                    if (c.health == ClipHealth::unknown)
                        return false;
            return true;
        };
        QTRY_VERIFY_WITH_TIMEOUT(probed(), 30000);
        for (const TeslaEvent &e : state().driveScan()->events)
            QCOMPARE(e.corruptClipCount(), 0);
        DrivingDataPreferences::shared()->setUseMiles(false);
    }

    void cleanupTestCase()
    {
        if (app_)
            state().setSelectedEventID(std::nullopt);
        app_.reset();
    }

    void overlayShowsTheRecordOfTheFrameOnScreen()
    {
        open(withRecords);
        QTRY_VERIFY(item(QStringLiteral("drivingDataOverlay")));
        verifyOverlayMatchesPicture();

        // Seeks, forward and back, land on frames between the key frames.
        for (double t : {2.2, 0.7, 1.51}) {
            controller()->seek(t);
            verifyOverlayMatchesPicture();
        }
        // Frame steps each way.
        const quint64 before = drivingData()->currentRecord()->frameSequenceNumber;
        controller()->stepFrame(+1);
        QTRY_COMPARE_WITH_TIMEOUT(drivingData()->currentRecord()->frameSequenceNumber, before + 1, 5000);
        verifyOverlayMatchesPicture();
        controller()->stepFrame(-1);
        controller()->stepFrame(-1);
        QTRY_COMPARE_WITH_TIMEOUT(drivingData()->currentRecord()->frameSequenceNumber, before - 1, 5000);
        verifyOverlayMatchesPicture();

        // At every frame the front camera presents while playing, the record is that frame's.
        for (float rate : {0.5f, 2.0f}) {
            controller()->seek(0);
            waitForExactFrame();
            controller()->setRate(rate);
            int checked = 0;
            QStringList mismatches;
            auto connection = connect(frontPlayer(), &TrackPlayer::framePresented, this, [&] {
                const auto shown = PlaybackClips::identify(frontPlayer()->currentFrame());
                const TelemetryRecord *record = drivingData()->currentRecord();
                if (!shown || frontPlayer()->isShowingPreview())
                    return;
                ++checked;
                if (!record || record->frameSequenceNumber != firstSequence + quint64(shown->index))
                    mismatches << QStringLiteral("frame %1 showed record %2").arg(shown->index).arg(record ? qint64(record->frameSequenceNumber) : -1);
            });
            controller()->play();
            QTRY_VERIFY_WITH_TIMEOUT(checked >= 20, 15000);
            disconnect(connection);
            controller()->pause();
            QVERIFY2(mismatches.isEmpty(), qPrintable(mismatches.join(QStringLiteral("; "))));
        }
        controller()->setRate(1.0f);
    }

    // The front camera's last picture may stand, but the car's state of that moment is not the state now.
    void overlayEndsWithTheFrontCamerasFootage()
    {
        open(frontEndsEarly);
        controller()->seek(1.0);
        verifyOverlayMatchesPicture();
        controller()->seek(PlaybackClips::clipSeconds + 1.5);
        QTRY_VERIFY_WITH_TIMEOUT(!drivingData()->currentRecord(), 10000);
        QTRY_COMPARE(item(QStringLiteral("speedValue"))->property("text").toString(), QStringLiteral("–"));
        // Back into the front footage, the overlay returns with its frame.
        controller()->seek(2.0);
        verifyOverlayMatchesPicture();
    }

    // How the slices are cut is the profile's own test; here the hard stop shows in red where it happened.
    void stripShowsSpeedAndHardBraking()
    {
        open(withRecords);
        const TelemetryProfile::Profile &profile = drivingData()->profile();
        auto sliceTime = [&](size_t i) { return (i + 0.5) * profile.duration / double(profile.slices.size()); };

        auto *strip = qobject_cast<SpeedStrip *>(item(QStringLiteral("speedStrip")));
        QVERIFY(strip);
        QTRY_COMPARE(strip->profile().slices.size(), profile.slices.size());
        size_t middle = 0;
        for (size_t i = 0; i < profile.slices.size(); ++i)
            if (profile.slices[i].hardBraking && sliceTime(i) > 1.9 && sliceTime(i) < 2.1)
                middle = i;
        QVERIFY(middle > 0);
        const QRectF r = strip->sliceRect(int(middle));
        const QPoint p = strip->mapToScene(QPointF(r.center().x(), strip->height() / 2)).toPoint();
        QColor seen;
        // Until the scene graph has drawn the strip's new slices.
        QTRY_VERIFY2(([&] {
                         const QImage shot = app_->window()->grabWindow();
                         seen = shot.pixelColor(p * shot.devicePixelRatio());
                         return seen.red() > 180 && seen.green() < 90 && seen.blue() < 90;
                     }()),
                     qPrintable(seen.name()));
    }

    void eventWithoutRecordsShowsNothing()
    {
        open(withRecords);
        QSignalSpy finished(drivingData(), &PlayerDrivingData::loadFinished);
        open(withoutRecords, false);
        QVERIFY(finished.count() > 0 || finished.wait(20000));
        QVERIFY(!drivingData()->hasData() && !drivingData()->hasRecord());
        QVERIFY(!item(QStringLiteral("drivingDataOverlay")) && !item(QStringLiteral("speedStrip")));
        QVERIFY(!item(QStringLiteral("drivingDataButton"))->isEnabled());
    }

    // The locale picks the unit until the user clicks the speed; then the choice stays, whatever the locale.
    void overlayAndSpeedUnitAreRemembered()
    {
        open(withRecords);
        QTRY_VERIFY_WITH_TIMEOUT(item(QStringLiteral("drivingDataOverlay")), 20000);
        QTest::keyClick(app_->window(), Qt::Key_T);
        QTRY_VERIFY(!item(QStringLiteral("drivingDataOverlay")));
        QCOMPARE(QSettings().value(DrivingDataPreferences::showOverlayKey).toBool(), false);
        QQuickItem *button = item(QStringLiteral("drivingDataButton"));
        QVERIFY(button);
        // In the toolbar's row, after the export button.
        QVERIFY(button->x() > item(QStringLiteral("exportButton"))->x());
        QCOMPARE(button->property("showing").toBool(), false);
        app_->click(button);
        QTRY_VERIFY(item(QStringLiteral("drivingDataOverlay")));
        QCOMPARE(QSettings().value(DrivingDataPreferences::showOverlayKey).toBool(), true);

        const QLocale original;
        const auto restore = qScopeGuard([&] { QLocale::setDefault(original); });
        QSettings().remove(DrivingDataPreferences::speedUnitKey);
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        QVERIFY(drivingData()->useMiles());
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        QVERIFY(!drivingData()->useMiles());

        controller()->seek(0.5);
        waitForExactFrame();
        QQuickItem *speed = item(QStringLiteral("speedValue"));
        QTRY_COMPARE(speed->property("text").toString(), QStringLiteral("72")); // 20 m/s
        app_->click(item(QStringLiteral("speedUnitButton")));
        QTRY_COMPARE(speed->property("text").toString(), QStringLiteral("45"));
        QCOMPARE(item(QStringLiteral("speedUnit"))->property("text").toString(), QStringLiteral("mph"));
        QCOMPARE(QSettings().value(DrivingDataPreferences::speedUnitKey).toString(), QStringLiteral("mph"));
        QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
        QVERIFY(drivingData()->useMiles());
        app_->click(item(QStringLiteral("speedUnitButton")));
        QTRY_COMPARE(speed->property("text").toString(), QStringLiteral("72"));
    }

    // The sample carries records on its driving events, so a user without a drive sees all of it.
    void sampleFootageShowsItsDrivingData()
    {
        state().setSelectedEventID(std::nullopt);
        state().loadSampleFootage();
        QTRY_VERIFY_WITH_TIMEOUT(state().isSampleMode() && state().driveScan() && !state().isScanning(), 60000);
        app_->window()->resize(1280, 800);
        DrivingDataPreferences::shared()->setShowOverlay(true);
        open(QStringLiteral("saved|2024-06-10_17-05-31"));
        // The honk came after the brakes: 89 s into the event they are on.
        controller()->seek(89.0);
        waitForExactFrame();
        QTRY_VERIFY(drivingData()->currentRecord() && drivingData()->currentRecord()->brakeApplied);
        QTRY_VERIFY(item(QStringLiteral("drivingDataOverlay")));
        QVERIFY(item(QStringLiteral("speedStrip")));
        QVERIFY(std::any_of(drivingData()->profile().slices.begin(), drivingData()->profile().slices.end(),
                            [](const TelemetryProfile::Slice &s) { return s.hardBraking; }));
        // The hard brake stands above the strip with its word, and Shift+N
        // from just after it plays from just before it.
        QTRY_VERIFY(item(QStringLiteral("hardMomentMarks")));
        const auto &moments = drivingData()->moments();
        const auto hard = std::find_if(moments.begin(), moments.end(),
                                       [](const HardMoment &m) { return m.kind == HardMoment::Kind::hardBraking; });
        QVERIFY(hard != moments.end());
        QVERIFY2(hard->time > 85 && hard->time < 92, qPrintable(QString::number(hard->time)));
        QVERIFY(controller()->hasPlaces());
        const double braking = hard->time;
        controller()->pause();
        controller()->seek(braking + 1);
        waitForExactFrame();
        QTest::keyClick(app_->window(), Qt::Key_N, Qt::ShiftModifier);
        QTRY_VERIFY_WITH_TIMEOUT(std::abs(controller()->currentTime() - (braking - SyncPlayerController::placeLead)) < 1.5,
                                 10000);
        controller()->pause();
        QTRY_VERIFY(item(QStringLiteral("routeMarker")));
        app_->shot(QStringLiteral("player-telemetry-overlay"));

        // Recent driving, on Autopilot.
        state().setSelectedEventID(std::nullopt);
        QString recent;
        for (const TeslaEvent &e : state().driveScan()->events)
            if (e.kind == EventKind::recent)
                recent = e.id();
        open(recent);
        controller()->seek(100.0);
        waitForExactFrame();
        QTRY_VERIFY(drivingData()->currentRecord()
                    && drivingData()->currentRecord()->autopilot == TelemetryRecord::AutopilotState::autosteer);
        QTRY_COMPARE(item(QStringLiteral("assistanceText"))->property("text").toString(), QStringLiteral("Autopilot"));
        // Four wide cameras leave no room beside the readings, so the route stands above them.
        QTRY_VERIFY(item(QStringLiteral("routeInset")));
        const QRectF inset = item(QStringLiteral("routeInset"))->mapRectToScene(item(QStringLiteral("routeInset"))->boundingRect());
        QQuickItem *hud = item(QStringLiteral("drivingDataOverlay"));
        QVERIFY(!inset.intersects(hud->mapRectToScene(hud->boundingRect())));
        app_->shot(QStringLiteral("timeline-speed-strip"));

        state().setSelectedSection(SidebarSection::map);
        auto *map = app_->find<TileMap>(QStringLiteral("tileMap"));
        QTRY_VERIFY(map && map->isVisible());
        QTRY_COMPARE_WITH_TIMEOUT(app_->screens.map()->routesForQml().value<MapRoutes>().size(), 3, 60000);
        map->fitTo(app_->screens.map()->pins());
        QTRY_VERIFY(!map->strokes().empty());
        // Closer in on the morning's drive, to see its colours.
        const MapRoutes routes = app_->screens.map()->routesForQml().value<MapRoutes>();
        for (const MapRoute &route : routes)
            if (route.eventID == recent) {
                const auto &mid = route.points[route.points.size() / 2];
                const QPointF at = map->toView(mid.latitude, mid.longitude);
                map->zoomAround(6, at.x(), at.y());
            }
        app_->shot(QStringLiteral("map-route"));
    }
};

KEELHOLD_APP_TEST_MAIN(DrivingDataTest)

#include "tst_drivingdata.moc"
