#include "EventMapPresenter.h"

#include "InboxPresenter.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace EventMapPresenter {

namespace {
constexpr double tileSize = 256;
constexpr double maxLatitude = 85.05112878;
}

std::vector<TeslaEvent> allEvents(const std::vector<TeslaEvent> &driveEvents, const std::vector<TeslaEvent> &vaultEvents)
{
    // An event both on the drive and in the Vault is one event: its drive
    // copy stands for it, and the Vault's adds only what the drive lacks.
    std::vector<TeslaEvent> all = driveEvents;
    QSet<QString> onDrive;
    for (const TeslaEvent &e : driveEvents)
        onDrive.insert(e.id());
    for (const TeslaEvent &e : vaultEvents)
        if (!onDrive.contains(e.id()))
            all.push_back(e);
    return all;
}

bool isLocated(const TeslaEvent &event) { return event.latitude.has_value() && event.longitude.has_value(); }

std::vector<Section> sections(const std::vector<TeslaEvent> &events)
{
    //: Heading in the map's list over the events with a place
    Section located{QCoreApplication::translate("EventMapPresenter", "All located events"), {}};
    //: Heading in the map's list over the events without a place
    Section unlocated{QCoreApplication::translate("EventMapPresenter", "No location recorded"), {}};
    for (const TeslaEvent &e : events)
        (isLocated(e) ? located : unlocated).events.push_back(e);
    std::vector<Section> out;
    if (!located.events.empty())
        out.push_back(std::move(located));
    if (!unlocated.events.empty())
        out.push_back(std::move(unlocated));
    return out;
}

QString pinTint(const TeslaEvent &event)
{
    return event.reason.isUrgentForProtection() ? QStringLiteral("red") : QStringLiteral("accent");
}

QString rowTimestamp(const TeslaEvent &event) { return InboxPresenter::longTimestamp(event); }

QPointF project(double latitude, double longitude, double zoom)
{
    const double scale = tileSize * std::pow(2.0, zoom);
    const double lat = std::clamp(latitude, -maxLatitude, maxLatitude) * std::numbers::pi / 180.0;
    const double x = (longitude + 180.0) / 360.0 * scale;
    const double y = (1.0 - std::log(std::tan(lat) + 1.0 / std::cos(lat)) / std::numbers::pi) / 2.0 * scale;
    return {x, y};
}

QPointF unproject(QPointF p, double zoom)
{
    const double scale = tileSize * std::pow(2.0, zoom);
    const double lon = p.x() / scale * 360.0 - 180.0;
    const double n = std::numbers::pi * (1.0 - 2.0 * p.y() / scale);
    const double lat = std::atan(std::sinh(n)) * 180.0 / std::numbers::pi;
    return {lon, lat};
}

View fitting(const std::vector<QPointF> &latLons, double width, double height, double margin, double maxZoom)
{
    View view;
    if (latLons.empty())
        return view;
    double minX = 1, maxX = 0, minY = 1, maxY = 0;
    bool first = true;
    for (const QPointF &ll : latLons) {
        const QPointF p = project(ll.x(), ll.y(), 0);
        if (first) {
            minX = maxX = p.x();
            minY = maxY = p.y();
            first = false;
        }
        minX = std::min(minX, p.x());
        maxX = std::max(maxX, p.x());
        minY = std::min(minY, p.y());
        maxY = std::max(maxY, p.y());
    }
    const QPointF centre = unproject({(minX + maxX) / 2, (minY + maxY) / 2}, 0);
    view.centerLongitude = centre.x();
    view.centerLatitude = centre.y();
    const double usableW = std::max(1.0, width - 2 * margin);
    const double usableH = std::max(1.0, height - 2 * margin);
    const double spanX = maxX - minX;
    const double spanY = maxY - minY;
    double zoom = maxZoom;
    if (spanX > 0)
        zoom = std::min(zoom, std::log2(usableW / spanX));
    if (spanY > 0)
        zoom = std::min(zoom, std::log2(usableH / spanY));
    view.zoom = std::clamp(std::floor(zoom * 4) / 4, 1.0, maxZoom);
    return view;
}

} // namespace EventMapPresenter
