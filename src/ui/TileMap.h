#pragma once

#include <QPointF>
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
};
