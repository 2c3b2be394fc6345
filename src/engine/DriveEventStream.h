#pragma once

#include "model/DriveEvent.h"

#include <QFuture>
#include <QObject>
#include <QPromise>
#include <deque>
#include <optional>

// An unbounded, ordered queue of drive events with one consumer. Events sent
// before anyone reads wait for the reader; none is ever dropped. Lives on
// one thread (the main thread) and is used only there.
class DriveEventStream : public QObject {
    Q_OBJECT
public:
    explicit DriveEventStream(QObject *parent = nullptr);
    ~DriveEventStream() override;

    // Sending end.
    void send(const DriveEvent &event);
    // Ends the stream: waiting readers get nothing, later sends are dropped.
    // Also the consumer's way to stop listening.
    void finish();

    // Receiving end. The next event in order, or nothing once the stream has
    // ended and everything sent before was read. Awaitable with co_await.
    QFuture<std::optional<DriveEvent>> next();
    // The next event if one is waiting now.
    std::optional<DriveEvent> takeNext();

    bool isFinished() const { return finished_; }
    qsizetype pendingCount() const { return qsizetype(queue_.size()); }

Q_SIGNALS:
    // A new event waits in the queue.
    void available();
    void finishedStream();

private:
    std::deque<DriveEvent> queue_;
    std::deque<QPromise<std::optional<DriveEvent>>> readers_;
    bool finished_ = false;
};
