#pragma once

#include "MapRoute.h"
#include "model/EventTelemetry.h"
#include "model/TeslaEvent.h"
#include "timeline/HardMoments.h"
#include "timeline/TelemetryProfile.h"

#include <QFuture>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QVariantMap>
#include <qcoro/qcorotask.h>

#include <memory>
#include <optional>

class TelemetryAccess;
class SyncPlayerController;
class TrackPlayer;

// The car's driving data for the event in the player: read once per event
// off the window's thread, then the record of the front camera's frame on
// screen, looked up each time that camera presents a frame, so the overlay
// never runs ahead of or behind the picture (play, seek, frame step, any
// rate). An event without records has no data and says nothing.
class PlayerDrivingData : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool hasData READ hasData NOTIFY dataChanged)
    Q_PROPERTY(bool hasRecord READ hasRecord NOTIFY recordChanged)
    // {speed, speedUnit, gear, brake, pedal (0–1), pedalText, blinkerLeft,
    //  blinkerRight, steeringAngle, steeringText, assistance, headingText,
    //  heading, latitude, longitude, hasPosition}; empty without a record.
    Q_PROPERTY(QVariantMap record READ recordForQml NOTIFY recordChanged)
    // The strip under the scrubber; a TelemetryProfile::Profile.
    Q_PROPERTY(QVariant profile READ profileForQml NOTIFY dataChanged)
    // The event's GPS route, as MapRoutes of one, for the small map.
    Q_PROPERTY(QVariant route READ routeForQml NOTIFY dataChanged)
    Q_PROPERTY(bool hasRoute READ hasRoute NOTIFY dataChanged)
    Q_PROPERTY(bool showOverlay READ showOverlay WRITE setShowOverlay NOTIFY showOverlayChanged)
    Q_PROPERTY(bool useMiles READ useMiles WRITE setUseMiles NOTIFY useMilesChanged)
    Q_PROPERTY(QVariantMap texts READ texts CONSTANT)
    // A short word for the player, such as after T on an event without data; empty most of the time.
    Q_PROPERTY(QString notice READ notice NOTIFY noticeChanged)

public:
    // Records are looked up a hair after the presented time: the player's
    // times and the reader's may differ in the last bits.
    static constexpr double lookupSlack = 1e-3;
    // How far the clock may run ahead of the front picture before its record is stale.
    static constexpr double staleAfter = 0.5;

    explicit PlayerDrivingData(QObject *parent = nullptr);
    ~PlayerDrivingData() override;

    // A new event (or none): any load still running is dropped, and its
    // result, should it come, is ignored.
    void load(TelemetryAccess *engine, const std::optional<TeslaEvent> &event);
    // The controller whose front camera the overlay follows.
    void follow(SyncPlayerController *controller);

    bool hasData() const { return telemetry_ && telemetry_->hasRecords(); }
    bool isLoading() const { return loading_; }
    std::shared_ptr<const EventTelemetry> telemetry() const { return telemetry_; }
    const TelemetryProfile::Profile &profile() const { return profile_; }
    // The record of the frame on screen; null when it carries none.
    const TelemetryRecord *currentRecord() const { return current_; }
    bool hasRecord() const { return current_ != nullptr; }
    QVariantMap recordForQml() const;
    QVariant profileForQml() const;
    const MapRoute &route() const { return route_; }
    // The drive's hard moments, on the event's axis; the car's emergency
    // braking is one even without records.
    const std::vector<HardMoment> &moments() const { return moments_; }
    bool hasRoute() const { return route_.points.size() > 1; }
    QVariant routeForQml() const { return QVariant::fromValue(MapRoutes{route_}); }

    bool showOverlay() const;
    void setShowOverlay(bool value);
    bool useMiles() const;
    void setUseMiles(bool value);
    static QVariantMap texts();
    QString notice() const { return notice_; }
    // Shows "No driving data in this event" for a few seconds.
    Q_INVOKABLE void sayNoData();
    static constexpr int noticeMs = 2500;

    // The number of slices of the strip.
    static constexpr int profileSlices = 600;

Q_SIGNALS:
    void dataChanged();
    void recordChanged();
    void showOverlayChanged();
    void useMilesChanged();
    // A load ended, with data or without (for tests and the map).
    void loadFinished();
    void noticeChanged();
    void momentsChanged();

private:
    struct Loaded {
        std::shared_ptr<const EventTelemetry> telemetry;
        TelemetryProfile::Profile profile;
        MapRoute route;
        std::vector<HardMoment> moments;
    };

    static QCoro::Task<void> loadTask(QPointer<PlayerDrivingData> self, QFuture<EventTelemetry> pending,
                                      quint64 generation, TeslaEvent event);
    void attachToPrimary();
    void refresh();
    void setCurrent(const TelemetryRecord *record);

    quint64 generation_ = 0;
    QFuture<EventTelemetry> pending_;
    bool loading_ = false;
    std::shared_ptr<const EventTelemetry> telemetry_;
    TelemetryProfile::Profile profile_;
    MapRoute route_;
    std::vector<HardMoment> moments_;
    const TelemetryRecord *current_ = nullptr;
    QPointer<SyncPlayerController> controller_;
    QPointer<TrackPlayer> player_;
    QMetaObject::Connection tilesConnection_;
    QMetaObject::Connection timeConnection_;
    QMetaObject::Connection frameConnection_;
    QString notice_;
    QTimer noticeTimer_;
};
