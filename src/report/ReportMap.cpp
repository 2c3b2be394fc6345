#include "ReportMap.h"

#include "model/DrivingDataText.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace {

constexpr double pi = 3.14159265358979323846;

// Web mercator in world pixels at zoom 0 (256 across).
QPointF project(double latitude, double longitude)
{
    const double lat = std::clamp(latitude, -85.0511, 85.0511) * pi / 180;
    return {(longitude + 180) / 360 * 256, (1 - std::log(std::tan(lat) + 1 / std::cos(lat)) / pi) / 2 * 256};
}

double metresPerWorldPixel(double latitude)
{
    return 40075016.686 * std::cos(latitude * pi / 180) / 256;
}

// A round length for the scale bar near the one given.
double roundMetres(double metres)
{
    const double power = std::pow(10, std::floor(std::log10(metres)));
    for (const double step : {5.0, 2.0, 1.0})
        if (metres >= step * power)
            return step * power;
    return power;
}

} // namespace

ReportMap::Frame ReportMap::frame(const std::vector<EventTelemetry::RoutePoint> &route, double latitude,
                                  double longitude)
{
    // Zero-sized rectangles don't unite: the corners are kept by hand.
    QPointF least(project(latitude, longitude)), most(least);
    for (const auto &point : route) {
        const QPointF w = project(point.latitude, point.longitude);
        least = QPointF(std::min(least.x(), w.x()), std::min(least.y(), w.y()));
        most = QPointF(std::max(most.x(), w.x()), std::max(most.y(), w.y()));
    }
    Frame f;
    f.centre = (least + most) / 2;
    // At least about 400 m across, so a lone pin shows its surroundings.
    const double narrowest = 400 / metresPerWorldPixel(latitude);
    f.spanX = std::max({(most.x() - least.x()) * 1.25, (most.y() - least.y()) * 1.25 / heightPerWidth, narrowest});
    f.spanY = f.spanX * heightPerWidth;
    // About five tiles across: sharp on paper, a couple of dozen to fetch.
    f.zoom = std::clamp(int(std::floor(std::log2(1280.0 / f.spanX))), 0, 19);
    return f;
}

std::vector<ReportMap::TileKey> ReportMap::tilesFor(const Frame &f)
{
    std::vector<TileKey> tiles;
    const double tileWorld = 256.0 / std::pow(2, f.zoom);
    const int n = 1 << f.zoom;
    const int top = int(std::floor((f.centre.y() - f.spanY / 2) / tileWorld));
    const int bottom = int(std::floor((f.centre.y() + f.spanY / 2) / tileWorld));
    const int left = int(std::floor((f.centre.x() - f.spanX / 2) / tileWorld));
    const int right = int(std::floor((f.centre.x() + f.spanX / 2) / tileWorld));
    for (int y = std::max(0, top); y <= std::min(n - 1, bottom); ++y)
        for (int x = left; x <= right; ++x)
            tiles.push_back({f.zoom, ((x % n) + n) % n, y});
    return tiles;
}

QString ReportMap::keyOf(const TileKey &tile)
{
    return QStringLiteral("%1/%2/%3").arg(tile.z).arg(tile.x).arg(tile.y);
}

void ReportMap::paint(QPainter &p, const QRectF &area, const std::vector<EventTelemetry::RoutePoint> &route,
                      double latitude, double longitude, const QHash<QString, QImage> &tiles)
{
    p.save();
    p.setClipRect(area);
    p.setRenderHint(QPainter::Antialiasing);
    const double unit = area.width() / 500.0;
    const Frame view = frame(route, latitude, longitude);
    const QPointF centre = view.centre;
    const double scale = area.width() / view.spanX; // page units per world pixel
    const auto toPage = [&](double lat, double lon) {
        const QPointF w = project(lat, lon);
        return QPointF(area.center().x() + (w.x() - centre.x()) * scale, area.center().y() + (w.y() - centre.y()) * scale);
    };

    p.fillRect(area, QColor(0xEE, 0xF0, 0xEC));
    // Tiles where every one needed was had; a patchwork would mislead.
    const std::vector<TileKey> needed = tilesFor(view);
    const bool tiled = !needed.empty() && std::all_of(needed.begin(), needed.end(), [&](const TileKey &t) {
        return tiles.contains(keyOf(t));
    });
    if (tiled) {
        const double tileWorld = 256.0 / std::pow(2, view.zoom);
        const int n = 1 << view.zoom;
        const int left = int(std::floor((centre.x() - view.spanX / 2) / tileWorld));
        for (const TileKey &t : needed) {
            // The column as laid out, before it was wrapped round the globe.
            int column = t.x;
            while (column < left)
                column += n;
            const QRectF target(area.center().x() + (column * tileWorld - centre.x()) * scale,
                                area.center().y() + (t.y * tileWorld - centre.y()) * scale, tileWorld * scale,
                                tileWorld * scale);
            p.drawImage(target, tiles.value(keyOf(t)));
        }
    }
    if (!tiled) {
        // A faint grid stands for the ground, so the scale reads.
        p.setPen(QPen(QColor(0xDD, 0xE0, 0xDA), unit * 0.5));
        for (double x = area.left(); x < area.right(); x += unit * 25)
            p.drawLine(QPointF(x, area.top()), QPointF(x, area.bottom()));
        for (double y = area.top(); y < area.bottom(); y += unit * 25)
            p.drawLine(QPointF(area.left(), y), QPointF(area.right(), y));
    }

    // The route, coloured by the driver assistance as on the app's map.
    for (size_t i = 1; i < route.size(); ++i) {
        if (route[i].time - route[i - 1].time > 5)
            continue;
        const QColor colour = route[i].autopilot == TelemetryRecord::AutopilotState::none
            ? QColor(0x15, 0x65, 0xC0)
            : DrivingDataText::assistanceColour(route[i].autopilot);
        p.setPen(QPen(colour, unit * 2.2, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(toPage(route[i - 1].latitude, route[i - 1].longitude), toPage(route[i].latitude, route[i].longitude));
    }
    if (!route.empty()) {
        p.setPen(QPen(Qt::white, unit));
        p.setBrush(QColor(0x2E, 0x7D, 0x32));
        p.drawEllipse(toPage(route.front().latitude, route.front().longitude), unit * 3, unit * 3);
    }

    // The pin: its point on the spot.
    const QPointF spot = toPage(latitude, longitude);
    QPainterPath pin;
    const double r = unit * 7;
    pin.moveTo(spot);
    pin.arcTo(QRectF(spot.x() - r, spot.y() - r * 3.2, r * 2, r * 2), 215, -250);
    pin.closeSubpath();
    p.setPen(QPen(Qt::white, unit));
    p.setBrush(QColor(0xD3, 0x2F, 0x2F));
    p.drawPath(pin);
    p.setBrush(Qt::white);
    p.drawEllipse(QPointF(spot.x(), spot.y() - r * 2.2), r * 0.35, r * 0.35);

    // Scale bar and north.
    const double metresPerUnit = metresPerWorldPixel(latitude) / scale;
    const double barMetres = roundMetres(metresPerUnit * area.width() / 4);
    const double barLength = barMetres / metresPerUnit;
    const QPointF barStart(area.left() + unit * 10, area.bottom() - unit * 10);
    p.setPen(QPen(QColor(0x42, 0x42, 0x42), unit * 1.2));
    p.drawLine(barStart, barStart + QPointF(barLength, 0));
    p.drawLine(barStart, barStart - QPointF(0, unit * 3));
    p.drawLine(barStart + QPointF(barLength, 0), barStart + QPointF(barLength, -unit * 3));
    QFont font = p.font();
    font.setPixelSize(std::max(1, int(unit * 8)));
    p.setFont(font);
    //: The map's scale bar: %1 kilometres
    const QString distance = barMetres >= 1000 ? tr("%1 km").arg(barMetres / 1000)
                                               //: The map's scale bar: %1 metres
                                               : tr("%1 m").arg(barMetres);
    p.drawText(QRectF(barStart.x(), barStart.y() - unit * 14, unit * 80, unit * 10), Qt::AlignLeft | Qt::AlignBottom,
               distance);
    p.drawText(QRectF(area.right() - unit * 20, area.top() + unit * 4, unit * 14, unit * 10), Qt::AlignCenter,
               //: The map's north arrow: N for north
               tr("N ↑"));
    if (tiled)
        p.drawText(QRectF(area.left(), area.bottom() - unit * 9, area.width() - unit * 4, unit * 8),
                   //: The map tiles' required credit; OpenStreetMap is a name
                   Qt::AlignRight | Qt::AlignVCenter, tr("Map data © OpenStreetMap contributors"));
    p.setPen(QPen(QColor(0x9E, 0x9E, 0x9E), unit * 0.6));
    p.setBrush(Qt::NoBrush);
    p.drawRect(area);
    p.restore();
}
