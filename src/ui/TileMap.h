#pragma once

#include "MapRoute.h"

#include <QColor>
#include <QPointF>
#include <QPolygonF>
#include <QQuickPaintedItem>
#include <QImage>
#include <QVariantList>
#include <vector>

// A slippy map in Web Mercator: draws the tiles of TileSource over a plain
// background and maps coordinates to the item, so pins can stand on top as
// ordinary items. Panning and zooming come from the QML handlers.
class TileMap : public QQuickPaintedItem {
    Q_OBJECT
    Q_PROPERTY(double centerLatitude READ centerLatitude WRITE setCenterLatitude NOTIFY viewChanged)
    Q_PROPERTY(double centerLongitude READ centerLongitude WRITE setCenterLongitude NOTIFY viewChanged)
    Q_PROPERTY(double zoom READ zoom WRITE setZoom NOTIFY viewChanged)
    // Rises with every change of the view; pin positions bind to it.
    Q_PROPERTY(int revision READ revision NOTIFY viewChanged)
    Q_PROPERTY(int tilesDrawn READ tilesDrawn NOTIFY tilesDrawnChanged)
    // The tile server can't be reached: the pins stand on a plain field.
    Q_PROPERTY(bool tilesUnavailable READ tilesUnavailable NOTIFY tilesUnavailableChanged)
    // MapRoutes drawn over the tiles, each stretch in the colour of its
    // driver-assistance state.
    Q_PROPERTY(QVariant routes READ routesForQml WRITE setRoutes NOTIFY routesChanged)
    Q_PROPERTY(double routeWidth READ routeWidth WRITE setRouteWidth NOTIFY routesChanged)
public:
    static constexpr double minZoom = 1;
    static constexpr double maxZoom = 19;

    explicit TileMap(QQuickItem *parent = nullptr);

    double centerLatitude() const { return lat_; }
    void setCenterLatitude(double v);
    double centerLongitude() const { return lon_; }
    void setCenterLongitude(double v);
    double zoom() const { return zoom_; }
    void setZoom(double v);
    int revision() const { return revision_; }
    int tilesDrawn() const { return tilesDrawn_; }
    bool tilesUnavailable() const;

    QVariant routesForQml() const { return QVariant::fromValue(routes_); }
    void setRoutes(const QVariant &routes);
    double routeWidth() const { return routeWidth_; }
    void setRouteWidth(double width);
    // The route stretches as drawn: view points and colour (for tests).
    struct Stroke {
        QColor colour;
        QPolygonF points;
    };
    const std::vector<Stroke> &strokes() const { return strokes_; }
    // Shows every point of the routes with a margin.
    Q_INVOKABLE void fitToRoutes();

    void paint(QPainter *painter) override;

    // The point in the item where a coordinate stands.
    Q_INVOKABLE QPointF toView(double latitude, double longitude) const;
    Q_INVOKABLE void pan(double dx, double dy);
    // Zooms by a factor keeping the coordinate under (x, y) where it is.
    Q_INVOKABLE void zoomAround(double factor, double x, double y);
    // Shows all the given [{latitude, longitude}] with a margin.
    Q_INVOKABLE void fitTo(const QVariantList &points);

Q_SIGNALS:
    void viewChanged();
    void tilesDrawnChanged();
    void tilesUnavailableChanged();
    void routesChanged();

private:
    void changed();
    void relayout();
    QPointF centreWorld(double zoom) const;

    double lat_ = 20;
    double lon_ = 0;
    double zoom_ = 2;
    int revision_ = 0;
    int tilesDrawn_ = 0;
    struct Placed {
        QRectF rect;
        QImage image;
    };
    std::vector<Placed> placed_;
    MapRoutes routes_;
    double routeWidth_ = 4;
    std::vector<Stroke> strokes_;
};
