#pragma once

#include "model/EventTelemetry.h"

#include <QCoreApplication>
#include <QImage>
#include <QRectF>
#include <functional>
#include <optional>
#include <vector>

class QPainter;

// The spot and the route of an event for the report: map tiles under them
// where a tile source gives some, otherwise the route and the pin on a plain
// background with a scale, so the page never shows an empty box.
class ReportMap {
    Q_DECLARE_TR_FUNCTIONS(ReportMap)

public:
    // A 256-pixel web-mercator tile, when it can be had now.
    using Tiles = std::function<std::optional<QImage>(int z, int x, int y)>;

    static void paint(QPainter &painter, const QRectF &area, const std::vector<EventTelemetry::RoutePoint> &route,
                      double latitude, double longitude, const Tiles &tiles = {});
    static double heightFor(double width) { return width * 0.55; }
};
