#pragma once

#include "model/EventTelemetry.h"

#include <QList>
#include <QMetaType>
#include <QString>
#include <vector>

// One event's GPS route as the map draws it: the car's fixes, thinned to a
// few a second, each with the driver-assistance state of its stretch.
struct MapRoute {
    struct Point {
        double latitude = 0;
        double longitude = 0;
        TelemetryRecord::AutopilotState autopilot = TelemetryRecord::AutopilotState::none;
        bool operator==(const Point &) const = default;
    };

    QString eventID;
    std::vector<Point> points;

    // A fix at least this far in time from the last one kept, or a change
    // of state, is kept.
    static constexpr double spacingSeconds = 0.5;

    static MapRoute fromTelemetry(const QString &eventID, const EventTelemetry &telemetry);
    bool isEmpty() const { return points.empty(); }
    bool operator==(const MapRoute &) const = default;
};

using MapRoutes = QList<MapRoute>;
Q_DECLARE_METATYPE(MapRoutes)
