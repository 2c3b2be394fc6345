#pragma once

#include "engine/MomentsAccess.h"
#include "moments/EventActivity.h"

#include <QFuture>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <qcoro/qcorotask.h>

#include <vector>

// Works out, one event at a time, where something happened in the drive's
// parked and saved events, so the list can say it before anyone opens them.
// It waits while a keep runs (both read the same drive) and goes on where
// it was; what the player loads for an event is noted here too.
class ActivityPass : public QObject {
    Q_OBJECT

public:
    // The bursts the list names for an event.
    static constexpr int highlightCount = 3;

    explicit ActivityPass(MomentsAccess &engine, QObject *parent = nullptr);
    ~ActivityPass() override;

    // The events to work through from now on, in this order; events already
    // known are skipped. Worth-ahead filtering is the caller's.
    void start(std::vector<TeslaEvent> events);
    void stop();
    void setPaused(bool paused);
    bool isPaused() const { return paused_; }
    bool isRunning() const { return running_; }

    void note(const QString &eventID, const EventActivity &activity);
    // The strongest burst of up to highlightCount cameras, by time; empty
    // when unknown or quiet.
    std::vector<ActivityBurst> highlights(const QString &eventID) const { return highlights_.value(eventID); }
    bool isKnown(const QString &eventID) const { return highlights_.contains(eventID); }

Q_SIGNALS:
    void highlightsChanged(const QString &eventID);
    // The pass went through every event it was given.
    void finished();

private:
    static QCoro::Task<void> runTask(QPointer<ActivityPass> self, quint64 generation);
    void resume();

    MomentsAccess &engine_;
    std::vector<TeslaEvent> queue_;
    QHash<QString, std::vector<ActivityBurst>> highlights_;
    QFuture<EventActivity> current_;
    quint64 generation_ = 0;
    bool paused_ = false;
    bool running_ = false;
};
