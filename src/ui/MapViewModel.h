#pragma once

#include "model/TeslaEvent.h"

#include <QObject>
#include <QPointer>
#include <QVariantList>
#include <QVariantMap>

class AppState;

// The event map's content: the pins, the side list's sections and rows, and
// what a choice does. Recomputed whenever the drive scan or the Vault changes.
class MapViewModel : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY changed)
    Q_PROPERTY(QVariantList pins READ pins NOTIFY changed)
    Q_PROPERTY(QVariantList sections READ sections NOTIFY changed)
    // The sections' rows in one list, each with its section's title, for a sectioned list view.
    Q_PROPERTY(QVariantList listRows READ listRows NOTIFY changed)
    Q_PROPERTY(QVariantMap texts READ texts CONSTANT)
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

    static QVariantList pinsFor(const std::vector<TeslaEvent> &events);
    static QVariantList sectionsFor(const std::vector<TeslaEvent> &events);

Q_SIGNALS:
    void changed();

private:
    std::vector<TeslaEvent> allEvents() const;

    QPointer<AppState> state_;
};
