#include "PlayerDrivingData.h"

#include "DrivingDataPreferences.h"
#include "base/Awaiting.h"
#include "base/LogCategories.h"
#include "base/AsyncRun.h"
#include "base/EnginePools.h"
#include "model/DrivingDataText.h"
#include "SymbolIcons.h"
#include "engine/TelemetryAccess.h"
#include "playback/SyncPlayerController.h"
#include "playback/TrackPlayer.h"

#include <cmath>

PlayerDrivingData::PlayerDrivingData(QObject *parent) : QObject(parent)
{
    auto *prefs = DrivingDataPreferences::shared();
    connect(prefs, &DrivingDataPreferences::showOverlayChanged, this, &PlayerDrivingData::showOverlayChanged);
    connect(prefs, &DrivingDataPreferences::useMilesChanged, this, &PlayerDrivingData::useMilesChanged);
    connect(prefs, &DrivingDataPreferences::useMilesChanged, this, &PlayerDrivingData::recordChanged);
    noticeTimer_.setSingleShot(true);
    noticeTimer_.setInterval(noticeMs);
    connect(&noticeTimer_, &QTimer::timeout, this, [this] {
        notice_.clear();
        Q_EMIT noticeChanged();
    });
}

void PlayerDrivingData::sayNoData()
{
    notice_ = tr("No driving data in this event");
    noticeTimer_.start();
    Q_EMIT noticeChanged();
}

PlayerDrivingData::~PlayerDrivingData()
{
    if (pending_.isRunning())
        pending_.cancel();
}

void PlayerDrivingData::load(TelemetryAccess *engine, const std::optional<TeslaEvent> &event)
{
    const quint64 generation = ++generation_;
    if (pending_.isRunning())
        pending_.cancel();
    pending_ = {};
    const bool had = telemetry_ != nullptr;
    setCurrent(nullptr);
    telemetry_.reset();
    profile_ = {};
    route_ = {};
    const bool hadMoments = !moments_.empty();
    moments_.clear();
    if (hadMoments)
        Q_EMIT momentsChanged();
    loading_ = engine && event;
    if (had)
        Q_EMIT dataChanged();
    if (!loading_) {
        Q_EMIT loadFinished();
        return;
    }
    pending_ = engine->loadTelemetry(*event, Camera::front);
    loadTask(QPointer<PlayerDrivingData>(this), pending_, generation, *event);
}

QCoro::Task<void> PlayerDrivingData::loadTask(QPointer<PlayerDrivingData> self, QFuture<EventTelemetry> pending,
                                              quint64 generation, TeslaEvent event)
{
    const auto isCurrent = [&] { return self && self->generation_ == generation; };
    auto pendingEnded = Awaiting::finished(pending);
    co_await pendingEnded;
    std::optional<Loaded> loaded;
    // A drive that failed or a clip that couldn't be read leaves the event
    // without data: no overlay, no message.
    if (isCurrent()) {
        // The strip's slices and the route are made off this thread too.
        QFuture<Loaded> shaped = AsyncRun::onPool(EnginePools::quick(), [pending, event]() mutable {
            std::optional<EventTelemetry> telemetry = Awaiting::take(pending);
            auto shared = std::make_shared<const EventTelemetry>(telemetry ? std::move(*telemetry) : EventTelemetry{});
            const double end = shared->pieces.empty() ? 0.0 : shared->pieces.back().timelineEnd();
            return Loaded{shared, TelemetryProfile::make(*shared, end, profileSlices),
                          MapRoute::fromTelemetry(event.id(), *shared),
                          HardMoments::find(*shared, event, std::max(end, event.approximateDuration()))};
        });
        auto shapedEnded = Awaiting::finished(shaped);
        co_await shapedEnded;
        try {
            loaded = Awaiting::take(shaped);
        } catch (const std::exception &e) {
            qCInfo(lcUi) << "driving data not read:" << e.what();
        } catch (...) {
            KEELHOLD_LOG_CAUGHT(lcUi);
        }
    }
    if (!isCurrent())
        co_return; // a newer event took over
    self->loading_ = false;
    if (loaded && !loaded->moments.empty()) {
        self->moments_ = std::move(loaded->moments);
        Q_EMIT self->momentsChanged();
    }
    if (loaded && loaded->telemetry->hasRecords()) {
        self->telemetry_ = std::move(loaded->telemetry);
        self->profile_ = std::move(loaded->profile);
        self->route_ = std::move(loaded->route);
        Q_EMIT self->dataChanged();
        self->refresh();
    }
    Q_EMIT self->loadFinished();
}

void PlayerDrivingData::follow(SyncPlayerController *controller)
{
    if (controller_ == controller)
        return;
    disconnect(tilesConnection_);
    disconnect(timeConnection_);
    controller_ = controller;
    if (controller) {
        tilesConnection_ = connect(controller, &SyncPlayerController::tilesChanged, this, &PlayerDrivingData::attachToPrimary);
        // Past the front camera's footage no frame comes to say so.
        timeConnection_ = connect(controller, &SyncPlayerController::currentTimeChanged, this, &PlayerDrivingData::refresh);
    }
    attachToPrimary();
}

// The records are the front camera's: the overlay follows that camera's
// frames. Without a front picture there is nothing to match them to.
void PlayerDrivingData::attachToPrimary()
{
    TrackPlayer *front = nullptr;
    if (controller_)
        for (const auto &tile : controller_->tiles())
            if (tile.camera == Camera::front && tile.player)
                front = tile.player.get();
    if (front != player_) {
        disconnect(frameConnection_);
        player_ = front;
        if (front)
            frameConnection_ = connect(front, &TrackPlayer::framePresented, this, &PlayerDrivingData::refresh);
    }
    refresh();
}

void PlayerDrivingData::refresh()
{
    std::optional<double> shown = player_ ? player_->presentedTime() : std::nullopt;
    // A front picture left standing where its footage ended or paused for a
    // gap is not the car's state now; a seek's key frame still is its own.
    // The event's clock goes on where the front camera's track ends.
    const double now = std::max(player_ ? player_->currentSeconds() : 0.0, controller_ ? controller_->currentTime() : 0.0);
    if (shown && !player_->isSeeking() && now - *shown > staleAfter)
        shown.reset();
    setCurrent(telemetry_ && shown ? telemetry_->recordAt(*shown + lookupSlack) : nullptr);
}

void PlayerDrivingData::setCurrent(const TelemetryRecord *record)
{
    if (record == current_)
        return;
    current_ = record;
    Q_EMIT recordChanged();
}

QVariantMap PlayerDrivingData::recordForQml() const
{
    if (!current_)
        return {};
    const TelemetryRecord &r = *current_;
    const bool miles = useMiles();
    const double pedal = DrivingDataText::pedalFraction(r.acceleratorPedal);
    return {
        {QStringLiteral("speed"), DrivingDataText::speed(r.speed, miles)},
        {QStringLiteral("speedUnit"), DrivingDataText::speedUnit(miles)},
        {QStringLiteral("gear"), DrivingDataText::gear(r.gear)},
        {QStringLiteral("brake"), r.brakeApplied},
        {QStringLiteral("pedal"), pedal},
        //: How far the accelerator is pressed, as a percentage: "42 %"
        {QStringLiteral("pedalText"), tr("%1 %").arg(qRound(pedal * 100))},
        {QStringLiteral("blinkerLeft"), r.blinkerLeft},
        {QStringLiteral("blinkerRight"), r.blinkerRight},
        {QStringLiteral("steeringAngle"), std::isfinite(r.steeringAngle) ? double(r.steeringAngle) : 0.0},
        {QStringLiteral("steeringText"), DrivingDataText::steering(r.steeringAngle)},
        {QStringLiteral("assistance"), DrivingDataText::assistance(r.autopilot)},
        {QStringLiteral("assistanceColour"), DrivingDataText::assistanceColour(r.autopilot)},
        {QStringLiteral("heading"), std::isfinite(r.heading) ? r.heading : 0.0},
        {QStringLiteral("headingText"), DrivingDataText::heading(r.heading)},
        {QStringLiteral("hasPosition"), r.hasPosition()},
        {QStringLiteral("latitude"), r.latitude},
        {QStringLiteral("longitude"), r.longitude},
    };
}

QVariant PlayerDrivingData::profileForQml() const { return QVariant::fromValue(profile_); }

bool PlayerDrivingData::showOverlay() const { return DrivingDataPreferences::shared()->showOverlay(); }
void PlayerDrivingData::setShowOverlay(bool value) { DrivingDataPreferences::shared()->setShowOverlay(value); }
bool PlayerDrivingData::useMiles() const { return DrivingDataPreferences::shared()->useMiles(); }
void PlayerDrivingData::setUseMiles(bool value) { DrivingDataPreferences::shared()->setUseMiles(value); }

QVariantMap PlayerDrivingData::texts()
{
    return {
        //: Button that shows or hides the driving data over the video
        {QStringLiteral("toggle"), tr("Driving data")},
        {QStringLiteral("toggleIcon"), SymbolIcons::iconUrl(QStringLiteral("gauge.with.needle"))},
        {QStringLiteral("toggleTip"),
         tr("Show or hide the car's speed, pedals, steering and Autopilot state over the video. (T)")},
        {QStringLiteral("noData"), tr("This event's footage carries no driving data from the car.")},
        {QStringLiteral("unitTip"), tr("Click to switch between km/h and mph.")},
        //: Lamp over the video that is lit while the brake pedal is pressed; keep it short
        {QStringLiteral("brake"), tr("BRAKE")},
        {QStringLiteral("brakeTip"), tr("Lit while the brake pedal is pressed.")},
        {QStringLiteral("pedalTip"), tr("How far the accelerator pedal is pressed.")},
        {QStringLiteral("steeringTip"), tr("Steering wheel angle.")},
        {QStringLiteral("headingTip"), tr("Direction of travel.")},
        {QStringLiteral("stripTip"), tr("The car's speed over the event; red marks hard braking. Click to jump there.")},
    };
}
