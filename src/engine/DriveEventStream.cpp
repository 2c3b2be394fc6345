#include "engine/DriveEventStream.h"

DriveEventStream::DriveEventStream(QObject *parent) : QObject(parent) {}

DriveEventStream::~DriveEventStream() { finish(); }

void DriveEventStream::send(const DriveEvent &event)
{
    if (finished_)
        return;
    // A reader that gave up must not swallow the event.
    while (!readers_.empty() && readers_.front().isCanceled()) {
        readers_.front().finish();
        readers_.pop_front();
    }
    if (!readers_.empty()) {
        QPromise<std::optional<DriveEvent>> reader = std::move(readers_.front());
        readers_.pop_front();
        reader.addResult(event);
        reader.finish();
        return;
    }
    queue_.push_back(event);
    Q_EMIT available();
}

void DriveEventStream::finish()
{
    if (finished_)
        return;
    finished_ = true;
    while (!readers_.empty()) {
        QPromise<std::optional<DriveEvent>> reader = std::move(readers_.front());
        readers_.pop_front();
        reader.addResult(std::optional<DriveEvent>());
        reader.finish();
    }
    Q_EMIT finishedStream();
}

QFuture<std::optional<DriveEvent>> DriveEventStream::next()
{
    QPromise<std::optional<DriveEvent>> reader;
    QFuture<std::optional<DriveEvent>> future = reader.future();
    reader.start();
    if (!queue_.empty() || finished_) {
        reader.addResult(takeNext());
        reader.finish();
        return future;
    }
    readers_.push_back(std::move(reader));
    return future;
}

std::optional<DriveEvent> DriveEventStream::takeNext()
{
    if (queue_.empty())
        return std::nullopt;
    DriveEvent event = std::move(queue_.front());
    queue_.pop_front();
    return event;
}
