#pragma once

#include "model/TeslaEvent.h"
#include "moments/EventActivity.h"
#include "timeline/HardMoments.h"

#include <QFuture>
#include <QObject>
#include <QPointer>
#include <QVariantList>
#include <QVariantMap>
#include <qcoro/qcorotask.h>

#include <optional>

class ActivityPass;
class MomentsAccess;
class PlayerDrivingData;
class SyncPlayerController;

// Where to look in the event on screen: each camera's activity, read when
// the event opens, and the drive's hard moments from its driving data.
// Both become the controller's places, which N and Shift+N visit.
class PlayerMoments : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool hasActivity READ hasActivity NOTIFY activityChanged)
    // An EventActivity, for the strip.
    Q_PROPERTY(QVariant activity READ activityForQml NOTIFY activityChanged)
    // [{time, word, tip}] for the marks on the timeline, by time.
    Q_PROPERTY(QVariantList marks READ marks NOTIFY marksChanged)
    Q_PROPERTY(QVariantMap texts READ texts CONSTANT)

public:
    explicit PlayerMoments(QObject *parent = nullptr);
    ~PlayerMoments() override;

    // A new event (or none): a load still running is dropped. What is read
    // is noted with the pass too, so the list can name it.
    void load(MomentsAccess *engine, const std::optional<TeslaEvent> &event, ActivityPass *pass);
    void follow(SyncPlayerController *controller, PlayerDrivingData *drivingData);

    bool hasActivity() const { return !activity_.isEmpty(); }
    const EventActivity &activity() const { return activity_; }
    QVariant activityForQml() const { return QVariant::fromValue(activity_); }
    QVariantList marks() const;
    static QVariantMap texts();
    // Whether the parked footage of this event is worth reading for activity.
    static bool readsActivity(const TeslaEvent &event);

Q_SIGNALS:
    void activityChanged();
    void marksChanged();
    // The activity load ended, read or not (for tests).
    void loadFinished();

private:
    static QCoro::Task<void> loadTask(QPointer<PlayerMoments> self, QFuture<EventActivity> pending, quint64 generation,
                                      QString id);
    void publishPlaces();

    quint64 generation_ = 0;
    QFuture<EventActivity> pending_;
    EventActivity activity_;
    QPointer<ActivityPass> pass_;
    QPointer<SyncPlayerController> controller_;
    QPointer<PlayerDrivingData> drivingData_;
    QMetaObject::Connection momentsConnection_;
};
