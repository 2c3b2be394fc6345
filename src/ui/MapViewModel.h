#pragma once

#include "MapRoute.h"
#include "model/TeslaEvent.h"

#include <QObject>
#include <QPointer>
#include <QSet>
#include <QVariantList>
#include <QVariantMap>

class AppState;
class EventRoutes;

// The event map's content: the pins, the side list's sections and rows, the
// GPS routes, and what a choice does. Recomputed whenever the drive scan or
// the Vault changes, and as routes arrive: an event whose clips carry GPS
// fixes is pinned where its footage begins, even without a place in its
// event.json.
class MapViewModel : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY changed)
    Q_PROPERTY(QVariantList pins READ pins NOTIFY changed)
    Q_PROPERTY(QVariantList sections READ sections NOTIFY changed)
    // The sections' rows in one list, each with its section's title, for a sectioned list view.
    Q_PROPERTY(QVariantList listRows READ listRows NOTIFY changed)
    Q_PROPERTY(QVariantMap texts READ texts CONSTANT)
    // MapRoutes for the TileMap; read once the map is first shown.
    Q_PROPERTY(QVariant routes READ routesForQml NOTIFY changed)
    Q_PROPERTY(bool hasRoutes READ hasRoutes NOTIFY changed)
    // What the routes' colours mean: [{label, colour}].
    Q_PROPERTY(QVariantList routeKey READ routeKey CONSTANT)
public:
    explicit MapViewModel(AppState *state, QObject *parent = nullptr);

    bool isEmpty() const;
    // [{id, latitude, longitude, tint ("red"/"accent"), label, icon}]
    QVariantList pins() const;
    // [{title, rows: [{id, timestamp, city, reasonLabel, reasonShortLabel, reasonIcon, reasonBlurb, reasonAccessible}]}]
    QVariantList sections() const;
    QVariantList listRows() const;
    QVariantMap texts() const;

    // A pin or a row: straight to the Drive section with that event selected.
    // An empty id (a pin deselected) does nothing.
    Q_INVOKABLE void select(const QString &eventID);
    // The map is on screen: from now on the events' routes are read (and
    // kept up with new scans). Reading every clip of a drive is left until
    // someone looks.
    Q_INVOKABLE void showRoutes();
    QVariant routesForQml() const;
    bool hasRoutes() const;
    static QVariantList routeKey();
    EventRoutes *eventRoutes() const { return routes_; }

    // The ids of kept events, which the pins and rows mark.
    QSet<QString> keptIDs() const;
    static QVariantList pinsFor(const std::vector<TeslaEvent> &events, const QSet<QString> &kept);
    static QVariantList sectionsFor(const std::vector<TeslaEvent> &events, const QSet<QString> &kept);

Q_SIGNALS:
    void changed();

private:
    // The events with a place taken from their first GPS fix where they
    // have one.
    std::vector<TeslaEvent> allEvents() const;
    std::vector<TeslaEvent> listedEvents() const;
    void requestRoutes();

    QPointer<AppState> state_;
    EventRoutes *routes_ = nullptr;
    bool routesShown_ = false;
};
