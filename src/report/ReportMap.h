#pragma once

#include "model/EventTelemetry.h"

#include <QCoreApplication>
#include <QHash>
#include <QImage>
#include <QPointF>
#include <QRectF>
#include <functional>
#include <optional>
#include <vector>

class QPainter;

// The spot and the route of an event for the report: map tiles under them
// where the tile source gave some, otherwise the route and the pin on a
// plain background with a scale, so the page never shows an empty box.
class ReportMap {
    Q_DECLARE_TR_FUNCTIONS(ReportMap)

public:
    static constexpr double heightPerWidth = 0.55;
    // A 256-pixel web-mercator tile, when it can be had.
    using Tiles = std::function<std::optional<QImage>(int z, int x, int y)>;

    struct TileKey {
        int z = 0, x = 0, y = 0;
        bool operator==(const TileKey &) const = default;
    };

    // What the map shows: a stretch of the world (in web-mercator pixels at
    // zoom 0) around the route and the spot, and the zoom its tiles come at.
    struct Frame {
        QPointF centre;
        double spanX = 0;
        double spanY = 0;
        int zoom = 0;
    };
    static Frame frame(const std::vector<EventTelemetry::RoutePoint> &route, double latitude, double longitude);
    // The tiles that cover the frame, row by row.
    static std::vector<TileKey> tilesFor(const Frame &frame);

    static void paint(QPainter &painter, const QRectF &area, const std::vector<EventTelemetry::RoutePoint> &route,
                      double latitude, double longitude, const QHash<QString, QImage> &tiles = {});
    static QString keyOf(const TileKey &tile);
};
