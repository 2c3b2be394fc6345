#include "EventRoutes.h"

#include "engine/EngineFacade.h"

#include <QSet>

EventRoutes::EventRoutes(EngineFacade &engine, QObject *parent) : QObject(parent), engine_(engine) {}

EventRoutes::~EventRoutes()
{
    if (running_.isRunning())
        running_.cancel();
}

QString EventRoutes::keyOf(const TeslaEvent &event)
{
    for (const ClipRef &clip : event.clips)
        if (clip.camera == Camera::front)
            return event.id() + QLatin1Char('|') + clip.url;
    return event.id() + QLatin1Char('|');
}

void EventRoutes::request(const std::vector<TeslaEvent> &events)
{
    wanted_.clear();
    queue_.clear();
    QSet<QString> queued;
    for (const TeslaEvent &event : events) {
        const QString key = keyOf(event);
        wanted_.push_back(key);
        if (cache_.contains(key) || key == runningKey_ || queued.contains(key))
            continue;
        queued.insert(key);
        queue_.push_back(event);
    }
    startNext();
}

void EventRoutes::startNext()
{
    if (running_.isRunning() || queue_.empty())
        return;
    const TeslaEvent event = queue_.front();
    queue_.pop_front();
    runningKey_ = keyOf(event);
    running_ = engine_.loadTelemetry(event, Camera::front);
    // Thinned where it was read; only the route comes back to this thread.
    running_
        .then(QtFuture::Launch::Sync,
              [id = event.id()](EventTelemetry telemetry) { return MapRoute::fromTelemetry(id, telemetry); })
        .then(this, [this, key = runningKey_, id = event.id()](QFuture<MapRoute> done) {
            // Unreadable clips leave the event without a route, not without a pin.
            cache_.insert(key, done.resultCount() > 0 ? done.takeResult() : MapRoute{id, {}});
            runningKey_.clear();
            Q_EMIT changed();
            startNext();
        });
}

MapRoute EventRoutes::route(const TeslaEvent &event) const { return cache_.value(keyOf(event)); }

std::optional<MapRoute::Point> EventRoutes::firstFix(const TeslaEvent &event) const
{
    const auto it = cache_.constFind(keyOf(event));
    if (it == cache_.constEnd() || it->points.empty())
        return std::nullopt;
    return it->points.front();
}

MapRoutes EventRoutes::routes() const
{
    MapRoutes out;
    QSet<QString> seen;
    for (const QString &key : wanted_) {
        const auto it = cache_.constFind(key);
        if (it != cache_.constEnd() && !it->points.empty() && !seen.contains(key)) {
            seen.insert(key);
            out.append(*it);
        }
    }
    return out;
}
