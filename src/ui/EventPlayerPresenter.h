#pragma once

#include "model/TeslaEvent.h"
#include "PlayerDrivingData.h"
#include "PlayerMoments.h"
#include "playback/SyncPlayerController.h"
#include "state/AppState.h"

#include <QObject>
#include <QPointer>
#include <QVariantMap>
#include <optional>

class ExportFlow;


// What the player screen shows and does for the selected event of one
// section. It owns the screen's one controller: made with the first event,
// then reloaded as the selection moves, so a speed the user picked stays.
// Opening an event marks a new one reviewed and makes this controller the
// one the keys act on.
class EventPlayerPresenter : public QObject {
    Q_OBJECT
    Q_PROPERTY(AppState *appState READ appState WRITE setAppState NOTIFY appStateChanged)
    Q_PROPERTY(QString eventID READ eventID WRITE setEventID NOTIFY eventIDChanged)
    Q_PROPERTY(bool fromVault READ fromVault WRITE setFromVault NOTIFY fromVaultChanged)
    Q_PROPERTY(bool hasEvent READ hasEvent NOTIFY eventChanged)
    Q_PROPERTY(SyncPlayerController *controller READ controller NOTIFY controllerChanged)
    Q_PROPERTY(QVariantMap metadata READ metadata NOTIFY metadataChanged)
    Q_PROPERTY(bool keepProminent READ keepProminent NOTIFY eventChanged)
    Q_PROPERTY(QVariantMap texts READ texts CONSTANT)
    Q_PROPERTY(PlayerDrivingData *drivingData READ drivingData CONSTANT)
    Q_PROPERTY(PlayerMoments *moments READ moments CONSTANT)

public:
    explicit EventPlayerPresenter(QObject *parent = nullptr);
    ~EventPlayerPresenter() override;

    AppState *appState() const { return appState_; }
    void setAppState(AppState *state);
    QString eventID() const { return eventID_; }
    void setEventID(const QString &id);
    // Whether the event is looked up among the Vault's events rather than
    // the drive's.
    bool fromVault() const { return fromVault_; }
    void setFromVault(bool value);

    bool hasEvent() const { return event_.has_value(); }
    const std::optional<TeslaEvent> &event() const { return event_; }
    SyncPlayerController *controller() const { return controller_; }
    // The car's records for the overlay, the strip and the route.
    PlayerDrivingData *drivingData() const { return drivingData_; }
    // Each camera's activity and the drive's hard moments.
    PlayerMoments *moments() const { return moments_; }
    // The two rows over the grid: reason, damage, verification, date,
    // place and coordinates.
    QVariantMap metadata() const;
    bool keepProminent() const { return event_ && event_->reason.isUrgentForProtection(); }
    // Every fixed text of the screen: labels and tooltips.
    static QVariantMap texts();
    // The timestamp as the screen shows it.
    static QString dateText(const TeslaEvent &event);

    // A speed from the picker; a playing event goes on at the new speed.
    Q_INVOKABLE void chooseRate(double rate);
    Q_INVOKABLE void keep();
    Q_INVOKABLE void dismiss();
    // A fresh export dialog flow for this event, owned by this presenter.
    Q_INVOKABLE ExportFlow *newExportFlow();

Q_SIGNALS:
    void appStateChanged();
    void eventIDChanged();
    void fromVaultChanged();
    void eventChanged();
    void controllerChanged();
    void metadataChanged();

private:
    void resolve();
    void opened();

    QPointer<AppState> appState_;
    QString eventID_;
    bool fromVault_ = false;
    std::optional<TeslaEvent> event_;
    QString loadedID_;
    SyncPlayerController *controller_ = nullptr;
    PlayerDrivingData *drivingData_ = nullptr;
    PlayerMoments *moments_ = nullptr;
    void tellExportFlowAboutDrivingData();
    QPointer<ExportFlow> exportFlow_;
    QList<QMetaObject::Connection> stateConnections_;
};
