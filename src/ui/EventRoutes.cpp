#include "EventRoutes.h"

#include "base/Awaiting.h"
#include "base/LogCategories.h"
#include "base/AsyncRun.h"
#include "engine/TelemetryAccess.h"
#include "base/EnginePools.h"

#include <QSet>

EventRoutes::EventRoutes(TelemetryAccess &engine, QObject *parent) : QObject(parent), engine_(engine) {}

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
    if (!runningKey_.isEmpty() || queue_.empty())
        return;
    const TeslaEvent event = queue_.front();
    queue_.pop_front();
    runningKey_ = keyOf(event);
    running_ = engine_.loadTelemetry(event, Camera::front);
    readTask(QPointer<EventRoutes>(this), running_, runningKey_, event.id());
}

QCoro::Task<void> EventRoutes::readTask(QPointer<EventRoutes> self, QFuture<EventTelemetry> reading, QString key,
                                        QString id)
{
    auto readingEnded = Awaiting::finished(reading);
    co_await readingEnded;
    // Thinned off this thread; only the route comes back.
    QFuture<MapRoute> thinned = AsyncRun::onPool(EnginePools::quick(), [reading, id]() mutable {
        const std::optional<EventTelemetry> telemetry = Awaiting::take(reading);
        return telemetry ? MapRoute::fromTelemetry(id, *telemetry) : MapRoute{id, {}};
    });
    auto thinnedEnded = Awaiting::finished(thinned);
    co_await thinnedEnded;
    if (!self)
        co_return;
    // Unreadable clips leave the event without a route, not without a pin.
    MapRoute route{id, {}};
    try {
        route = thinned.takeResult();
    } catch (const std::exception &e) {
        qCInfo(lcUi) << "no route for an event:" << e.what();
    } catch (...) {
        KEELHOLD_LOG_CAUGHT(lcUi);
    }
    self->cache_.insert(key, std::move(route));
    self->runningKey_.clear();
    self->running_ = {};
    Q_EMIT self->changed();
    self->startNext();
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
