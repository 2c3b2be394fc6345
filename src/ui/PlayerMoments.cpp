#include "PlayerMoments.h"

#include "PlayerDrivingData.h"
#include "base/Awaiting.h"
#include "engine/MomentsAccess.h"
#include "moments/ActivityReader.h"
#include "playback/SyncPlayerController.h"
#include "state/ActivityPass.h"

PlayerMoments::PlayerMoments(QObject *parent) : QObject(parent) {}

PlayerMoments::~PlayerMoments()
{
    if (pending_.isRunning())
        pending_.cancel();
}

bool PlayerMoments::readsActivity(const TeslaEvent &event)
{
    // A moving car's cameras change all the time; the drive's own data says
    // more about it.
    return ActivityReader::isWorthAhead(event);
}

void PlayerMoments::load(MomentsAccess *engine, const std::optional<TeslaEvent> &event, ActivityPass *pass)
{
    const quint64 generation = ++generation_;
    if (pending_.isRunning())
        pending_.cancel();
    pending_ = {};
    pass_ = pass;
    if (!activity_.isEmpty() || !activity_.cameras.empty()) {
        activity_ = {};
        Q_EMIT activityChanged();
        publishPlaces();
    }
    if (!engine || !event || !readsActivity(*event)) {
        Q_EMIT loadFinished();
        return;
    }
    pending_ = engine->loadActivity(*event);
    loadTask(QPointer<PlayerMoments>(this), pending_, generation, event->id());
}

QCoro::Task<void> PlayerMoments::loadTask(QPointer<PlayerMoments> self, QFuture<EventActivity> pending,
                                          quint64 generation, QString id)
{
    auto ended = Awaiting::finished(pending);
    co_await ended;
    if (!self || self->generation_ != generation)
        co_return; // a newer event took over
    std::optional<EventActivity> activity;
    try {
        activity = Awaiting::take(pending);
    } catch (...) {
        // A drive that went away: the event plays without the strip.
        KEELHOLD_LOG_CAUGHT(lcUi);
    }
    if (activity) {
        if (self->pass_)
            self->pass_->note(id, *activity);
        self->activity_ = std::move(*activity);
        Q_EMIT self->activityChanged();
        self->publishPlaces();
    }
    Q_EMIT self->loadFinished();
}

void PlayerMoments::follow(SyncPlayerController *controller, PlayerDrivingData *drivingData)
{
    controller_ = controller;
    if (drivingData_ != drivingData) {
        disconnect(momentsConnection_);
        drivingData_ = drivingData;
        if (drivingData)
            momentsConnection_ = connect(drivingData, &PlayerDrivingData::momentsChanged, this, [this] {
                Q_EMIT marksChanged();
                publishPlaces();
            });
    }
    publishPlaces();
}

void PlayerMoments::publishPlaces()
{
    if (!controller_)
        return;
    std::vector<SyncPlayerController::Place> places;
    for (const ActivityBurst &burst : activity_.bursts)
        places.push_back({burst.start, burst.camera});
    if (drivingData_)
        for (const HardMoment &moment : drivingData_->moments())
            places.push_back({moment.time, std::nullopt});
    controller_->setPlaces(std::move(places));
}

QVariantList PlayerMoments::marks() const
{
    QVariantList list;
    if (!drivingData_)
        return list;
    for (const HardMoment &moment : drivingData_->moments()) {
        const QString when = SyncPlayerController::timeString(moment.time);
        list.append(QVariantMap{{QStringLiteral("time"), moment.time},
                                {QStringLiteral("word"), moment.displayName()},
                                //: %1 is a hard moment ("Hard braking"), %2 a time into the event
                                {QStringLiteral("tip"), tr("%1 at %2").arg(moment.displayName(), when)}});
    }
    return list;
}

QVariantMap PlayerMoments::texts()
{
    return {
        //: Button that jumps to the next thing that happened in the event
        {QStringLiteral("next"), tr("What happened")},
        {QStringLiteral("nextTip"),
         tr("Jump to the next thing that happened: someone moving in front of a camera, or a hard moment of the "
            "drive (N)")},
        {QStringLiteral("previousTip"), tr("Back to the thing that happened before (Shift+N)")},
    };
}
