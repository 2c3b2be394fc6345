#include "TileMap.h"

#include "model/DrivingDataText.h"
#include "EventMapPresenter.h"
#include "TileSource.h"

#include <QPainter>
#include <QPainterPath>
#include <QQuickWindow>
#include <algorithm>
#include <cmath>

namespace {
constexpr int tileSize = 256;
}

TileMap::TileMap(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    setAntialiasing(false);
    setFillColor(QColor(0xe9, 0xe7, 0xe2));
    connect(TileSource::shared(), &TileSource::tileArrived, this, &TileMap::relayout);
    connect(TileSource::shared(), &TileSource::availabilityChanged, this, &TileMap::tilesUnavailableChanged);
    connect(this, &QQuickItem::widthChanged, this, &TileMap::relayout);
    connect(this, &QQuickItem::heightChanged, this, &TileMap::relayout);
    connect(this, &QQuickItem::visibleChanged, this, &TileMap::relayout);
    connect(this, &QQuickItem::windowChanged, this, &TileMap::relayout);
}

void TileMap::changed()
{
    ++revision_;
    Q_EMIT viewChanged();
    relayout();
}

void TileMap::setCenterLatitude(double v)
{
    v = std::clamp(v, -85.0, 85.0);
    if (v == lat_)
        return;
    lat_ = v;
    changed();
}

void TileMap::setCenterLongitude(double v)
{
    v = std::remainder(v, 360.0);
    if (v == lon_)
        return;
    lon_ = v;
    changed();
}

void TileMap::setZoom(double v)
{
    v = std::clamp(v, minZoom, maxZoom);
    if (v == zoom_)
        return;
    zoom_ = v;
    changed();
}

QPointF TileMap::centreWorld(double zoom) const { return EventMapPresenter::project(lat_, lon_, zoom); }

QPointF TileMap::toView(double latitude, double longitude) const
{
    const QPointF p = EventMapPresenter::project(latitude, longitude, zoom_);
    const QPointF c = centreWorld(zoom_);
    return {p.x() - c.x() + width() / 2, p.y() - c.y() + height() / 2};
}

void TileMap::pan(double dx, double dy)
{
    const QPointF c = centreWorld(zoom_) - QPointF(dx, dy);
    const QPointF ll = EventMapPresenter::unproject(c, zoom_);
    lon_ = std::remainder(ll.x(), 360.0);
    lat_ = std::clamp(ll.y(), -85.0, 85.0);
    changed();
}

void TileMap::zoomAround(double factor, double x, double y)
{
    if (factor <= 0)
        return;
    const double next = std::clamp(zoom_ + std::log2(factor), minZoom, maxZoom);
    // The coordinate under the cursor before and after must agree.
    const QPointF offset(x - width() / 2, y - height() / 2);
    const QPointF anchor = EventMapPresenter::unproject(centreWorld(zoom_) + offset, zoom_);
    const QPointF anchorAfter = EventMapPresenter::project(anchor.y(), anchor.x(), next);
    const QPointF ll = EventMapPresenter::unproject(anchorAfter - offset, next);
    zoom_ = next;
    lon_ = std::remainder(ll.x(), 360.0);
    lat_ = std::clamp(ll.y(), -85.0, 85.0);
    changed();
}

void TileMap::setRoutes(const QVariant &routes)
{
    routes_ = routes.value<MapRoutes>();
    Q_EMIT routesChanged();
    relayout();
}

void TileMap::setRouteWidth(double width)
{
    if (width == routeWidth_)
        return;
    routeWidth_ = width;
    Q_EMIT routesChanged();
    update();
}

void TileMap::fitToRoutes()
{
    std::vector<QPointF> latLons;
    for (const MapRoute &route : routes_)
        for (const MapRoute::Point &p : route.points)
            latLons.emplace_back(p.latitude, p.longitude);
    if (latLons.empty() || width() <= 0 || height() <= 0)
        return;
    const auto view = EventMapPresenter::fitting(latLons, width(), height(), std::min(24.0, width() / 6));
    lat_ = view.centerLatitude;
    lon_ = view.centerLongitude;
    zoom_ = std::clamp(view.zoom, minZoom, maxZoom);
    changed();
}

void TileMap::fitTo(const QVariantList &points)
{
    std::vector<QPointF> latLons;
    for (const QVariant &v : points) {
        const QVariantMap m = v.toMap();
        latLons.emplace_back(m.value(QStringLiteral("latitude")).toDouble(), m.value(QStringLiteral("longitude")).toDouble());
    }
    // The routes too: a drive can lead far from where its event was pinned.
    for (const MapRoute &route : routes_)
        for (const MapRoute::Point &p : route.points)
            latLons.emplace_back(p.latitude, p.longitude);
    if (latLons.empty() || width() <= 0 || height() <= 0)
        return;
    const auto view = EventMapPresenter::fitting(latLons, width(), height());
    lat_ = view.centerLatitude;
    lon_ = view.centerLongitude;
    zoom_ = std::clamp(view.zoom, minZoom, maxZoom);
    changed();
}

// On the GUI thread: which tiles stand where, and fetch the missing ones.
// paint() may run on the render thread, so it only draws this list.
void TileMap::relayout()
{
    std::vector<Placed> placed;
    // A hidden map, or one in no window, asks the server for nothing.
    if (window() && isVisible() && width() > 0 && height() > 0) {
        const int z = int(std::clamp(std::floor(zoom_ + 0.5), 0.0, maxZoom));
        const double size = tileSize * std::pow(2.0, zoom_ - z);
        const QPointF c = centreWorld(zoom_);
        const double left = c.x() - width() / 2;
        const double top = c.y() - height() / 2;
        const int count = 1 << z;
        const int x0 = int(std::floor(left / size));
        const int x1 = int(std::floor((left + width()) / size));
        const int y0 = std::max(0, int(std::floor(top / size)));
        const int y1 = std::min(count - 1, int(std::floor((top + height()) / size)));
        for (int ty = y0; ty <= y1; ++ty)
            for (int tx = x0; tx <= x1; ++tx) {
                const int wrapped = ((tx % count) + count) % count;
                if (auto image = TileSource::shared()->tile(z, wrapped, ty))
                    placed.push_back({QRectF(tx * size - left, ty * size - top, size, size), std::move(*image)});
            }
    }
    placed_ = std::move(placed);
    // The routes in view coordinates, one stroke per run of one state.
    std::vector<Stroke> strokes;
    if (window() && isVisible())
        for (const MapRoute &route : routes_) {
            for (size_t i = 0; i + 1 < route.points.size();) {
                const auto state = route.points[i].autopilot;
                Stroke stroke{DrivingDataText::assistanceColour(state), {}};
                stroke.points << toView(route.points[i].latitude, route.points[i].longitude);
                // A stretch ends where the next point's state differs; the
                // point where it changes starts the next stretch too.
                size_t j = i + 1;
                for (; j < route.points.size(); ++j) {
                    stroke.points << toView(route.points[j].latitude, route.points[j].longitude);
                    if (route.points[j].autopilot != state)
                        break;
                }
                strokes.push_back(std::move(stroke));
                i = j;
            }
        }
    strokes_ = std::move(strokes);
    if (int(placed_.size()) != tilesDrawn_) {
        tilesDrawn_ = int(placed_.size());
        Q_EMIT tilesDrawnChanged();
    }
    update();
}

void TileMap::paint(QPainter *painter)
{
    painter->setRenderHint(QPainter::SmoothPixmapTransform, true);
    for (const Placed &p : placed_)
        painter->drawImage(p.rect, p.image);
    if (strokes_.empty())
        return;
    painter->setRenderHint(QPainter::Antialiasing, true);
    // A light casing first, so the line reads over any tile.
    QPen casing(QColor(255, 255, 255, 200), routeWidth_ + 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    painter->setPen(casing);
    for (const Stroke &s : strokes_)
        painter->drawPolyline(s.points);
    for (const Stroke &s : strokes_) {
        painter->setPen(QPen(s.colour, routeWidth_, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->drawPolyline(s.points);
    }
}

bool TileMap::tilesUnavailable() const { return TileSource::shared()->isUnavailable(); }
