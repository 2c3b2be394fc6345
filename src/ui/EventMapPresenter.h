#pragma once

#include "model/TeslaEvent.h"

#include <QPointF>
#include <QtGlobal>
#include <QString>
#include <vector>

// The map's rules: which events get pins, the side list's sections, the tile maths.
namespace EventMapPresenter {

// Drive events then Vault events, unsorted; an event in both stands twice.
std::vector<TeslaEvent> allEvents(const std::vector<TeslaEvent> &driveEvents, const std::vector<TeslaEvent> &vaultEvents);
// A pin needs both coordinates.
bool isLocated(const TeslaEvent &event);

struct Section {
    QString title;
    std::vector<TeslaEvent> events;
};
// Each section is left out when it would be empty.
std::vector<Section> sections(const std::vector<TeslaEvent> &events);

QString pinTint(const TeslaEvent &event); // "red" or "accent"
QString rowTimestamp(const TeslaEvent &event);

// Translated where shown, in the "EventMapPresenter" context.
inline const char *emptyTitle = QT_TRANSLATE_NOOP("EventMapPresenter", "No events have a location yet");
inline const char *emptyText = QT_TRANSLATE_NOOP("EventMapPresenter",
                                                 "Your car only records a location for some events. Once you have "
                                                 "events with a place attached, they'll appear here as pins.");
// The map data's licence asks for this credit as it stands.
inline const char *attribution = "© OpenStreetMap contributors";

// Web Mercator: world pixel coordinates at a zoom level, 256-pixel tiles.
QPointF project(double latitude, double longitude, double zoom);
QPointF unproject(QPointF worldPixel, double zoom); // x = longitude, y = latitude

struct View {
    double centerLatitude = 0;
    double centerLongitude = 0;
    double zoom = 2;
};
// The view that shows every point inside the given size with a margin; one point gets a street-level zoom.
View fitting(const std::vector<QPointF> &latLons, double width, double height, double margin = 48, double maxZoom = 16);

} // namespace EventMapPresenter
