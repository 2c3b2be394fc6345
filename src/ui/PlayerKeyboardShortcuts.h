#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include "state/AppState.h"

class PlayerDrivingData;

// The keys of the player screen, all without modifier keys but Shift+N. The QML side
// installs one Shortcut per key, which the toolkit keeps from firing while
// a text field or a dialog has the keyboard, and hands the key here.
class PlayerKeyboardShortcuts : public QObject {
    Q_OBJECT
    Q_PROPERTY(AppState *appState READ appState WRITE setAppState NOTIFY appStateChanged)
    Q_PROPERTY(QString eventID READ eventID WRITE setEventID NOTIFY eventIDChanged)
    Q_PROPERTY(QStringList keys READ keys CONSTANT)
    // The event's driving data, so T can say when there is none.
    Q_PROPERTY(QObject *drivingData READ drivingDataObject WRITE setDrivingDataObject)

public:
    explicit PlayerKeyboardShortcuts(QObject *parent = nullptr);

    AppState *appState() const { return appState_; }
    void setAppState(AppState *state);
    // The event the player shows, for K and D.
    QString eventID() const { return eventID_; }
    void setEventID(const QString &id);
    QObject *drivingDataObject() const;
    void setDrivingDataObject(QObject *data);
    // Key sequences, as Shortcut takes them, of every key handled here.
    static QStringList keys();

    // Acts on the key sequence text ("Space", "Left", "M", "3", ",", …);
    // answers whether it is one of ours.
    Q_INVOKABLE bool activate(const QString &sequence);

Q_SIGNALS:
    void appStateChanged();
    void eventIDChanged();

private:
    QPointer<AppState> appState_;
    QString eventID_;
    QPointer<PlayerDrivingData> drivingData_;
};
