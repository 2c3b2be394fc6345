#include "report/ReportMap.h"

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

void ReportMap::paint(QPainter &p, const QRectF &area, const std::vector<EventTelemetry::RoutePoint> &route,
                      double latitude, double longitude, const Tiles &tiles)
{
    p.save();
    p.setClipRect(area);
    p.setRenderHint(QPainter::Antialiasing);
    const double unit = area.width() / 500.0;

    // Zero-sized rectangles don't unite: the corners are kept by hand.
    QPointF least(project(latitude, longitude)), most(least);
    for (const auto &point : route) {
        const QPointF w = project(point.latitude, point.longitude);
        least = QPointF(std::min(least.x(), w.x()), std::min(least.y(), w.y()));
        most = QPointF(std::max(most.x(), w.x()), std::max(most.y(), w.y()));
    }
    const QRectF world(least, most);
    // At least about 400 m across, so a lone pin shows its surroundings.
    const double narrowest = 400 / metresPerWorldPixel(latitude);
    const QPointF centre = world.center();
    const double spanX = std::max(world.width() * 1.25, narrowest);
    const double spanY = std::max(world.height() * 1.25, narrowest * area.height() / area.width());
    const double scale = std::min(area.width() / spanX, area.height() / spanY); // page units per world pixel
    const auto toPage = [&](double lat, double lon) {
        const QPointF w = project(lat, lon);
        return QPointF(area.center().x() + (w.x() - centre.x()) * scale, area.center().y() + (w.y() - centre.y()) * scale);
    };

    p.fillRect(area, QColor(0xEE, 0xF0, 0xEC));
    bool tiled = false;
    if (tiles) {
        const int z = std::clamp(int(std::floor(std::log2(scale))), 0, 19);
        const double tileWorld = 256.0 / std::pow(2, z); // one tile's size in world pixels
        const double left = centre.x() - area.width() / 2 / scale;
        const double top = centre.y() - area.height() / 2 / scale;
        const int n = 1 << z;
        tiled = true;
        for (int ty = int(std::floor(top / tileWorld)); ty * tileWorld < top + area.height() / scale; ++ty)
            for (int tx = int(std::floor(left / tileWorld)); tx * tileWorld < left + area.width() / scale; ++tx) {
                if (ty < 0 || ty >= n)
                    continue;
                const auto image = tiles(z, ((tx % n) + n) % n, ty);
                if (!image) {
                    tiled = false;
                    continue;
                }
                const QRectF target(area.center().x() + (tx * tileWorld - centre.x()) * scale,
                                    area.center().y() + (ty * tileWorld - centre.y()) * scale, tileWorld * scale,
                                    tileWorld * scale);
                p.drawImage(target, *image);
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
    const QString distance = barMetres >= 1000 ? tr("%1 km").arg(barMetres / 1000) : tr("%1 m").arg(barMetres);
    p.drawText(QRectF(barStart.x(), barStart.y() - unit * 14, unit * 80, unit * 10), Qt::AlignLeft | Qt::AlignBottom,
               distance);
    p.drawText(QRectF(area.right() - unit * 20, area.top() + unit * 4, unit * 14, unit * 10), Qt::AlignCenter,
               tr("N ↑"));
    if (tiled)
        p.drawText(QRectF(area.left(), area.bottom() - unit * 9, area.width() - unit * 4, unit * 8),
                   Qt::AlignRight | Qt::AlignVCenter, tr("Map data © OpenStreetMap contributors"));
    p.setPen(QPen(QColor(0x9E, 0x9E, 0x9E), unit * 0.6));
    p.setBrush(Qt::NoBrush);
    p.drawRect(area);
    p.restore();
}
