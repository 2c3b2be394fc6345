#include "MapRoute.h"

MapRoute MapRoute::fromTelemetry(const QString &eventID, const EventTelemetry &telemetry)
{
    MapRoute route;
    route.eventID = eventID;
    const auto fixes = telemetry.route();
    double lastTime = 0;
    for (size_t i = 0; i < fixes.size(); ++i) {
        const auto &fix = fixes[i];
        const bool last = i + 1 == fixes.size();
        const bool stateChanged = !route.points.empty() && route.points.back().autopilot != fix.autopilot;
        if (route.points.empty() || last || stateChanged || fix.time - lastTime >= spacingSeconds) {
            route.points.push_back({fix.latitude, fix.longitude, fix.autopilot});
            lastTime = fix.time;
        }
    }
    return route;
}
