#pragma once

#include "MapRoute.h"
#include "model/TeslaEvent.h"

#include <QFuture>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <qcoro/qcorotask.h>

#include <deque>
#include <optional>

class TelemetryAccess;

// The GPS routes of the map's events, read from their front clips one event
// at a time on the engine's drive pool, and kept per event (and per copy:
// the drive's and the Vault's clips are read apart). Nothing waits on it:
// the map shows what has arrived and redraws as more does.
class EventRoutes : public QObject {
    Q_OBJECT

public:
    explicit EventRoutes(TelemetryAccess &engine, QObject *parent = nullptr);
    ~EventRoutes() override;

    // The events whose routes are wanted now; the ones already read are kept,
    // the others are queued in order, and ones no longer listed are dropped
    // from the queue.
    void request(const std::vector<TeslaEvent> &events);
    // The route read for this event: empty while unread or without fixes.
    MapRoute route(const TeslaEvent &event) const;
    // The first GPS fix of the event's clips, if they carry one.
    std::optional<MapRoute::Point> firstFix(const TeslaEvent &event) const;
    // The non-empty routes of the events last requested.
    MapRoutes routes() const;
    bool isIdle() const { return runningKey_.isEmpty() && queue_.empty(); }

Q_SIGNALS:
    // A route arrived (with or without fixes).
    void changed();

private:
    static QString keyOf(const TeslaEvent &event);
    void startNext();
    static QCoro::Task<void> readTask(QPointer<EventRoutes> self, QFuture<EventTelemetry> reading, QString key,
                                      QString id);

    TelemetryAccess &engine_;
    QHash<QString, MapRoute> cache_;
    std::vector<QString> wanted_;
    std::deque<TeslaEvent> queue_;
    QFuture<EventTelemetry> running_;
    QString runningKey_;
};
