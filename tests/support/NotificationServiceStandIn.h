#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QStringList>
#include <QVariantMap>
#include <vector>

// The desktop's notification service, played by the test on the session bus
// the test runs under (dbus-run-session): it takes every notification, keeps
// it, and can click one the way a person does.
class NotificationServiceStandIn : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")
public:
    struct Received {
        uint id = 0;
        QString appName;
        QString title;
        QString body;
        QStringList actions;
        QVariantMap hints;
    };

    NotificationServiceStandIn();
    ~NotificationServiceStandIn() override;

    // The service name was taken on the bus.
    bool ok() const { return ok_; }
    const std::vector<Received> &received() const { return received_; }
    // A click on the notification itself.
    void click(uint id);

public Q_SLOTS:
    Q_SCRIPTABLE uint Notify(const QString &appName, uint replacesId, const QString &appIcon, const QString &summary,
                             const QString &body, const QStringList &actions, const QVariantMap &hints,
                             int expireTimeout);
    Q_SCRIPTABLE QStringList GetCapabilities();
    Q_SCRIPTABLE void CloseNotification(uint id);

Q_SIGNALS:
    Q_SCRIPTABLE void ActionInvoked(uint id, const QString &actionKey);
    Q_SCRIPTABLE void NotificationClosed(uint id, uint reason);
    // For the test: one more notification arrived.
    void arrived();

private:
    QDBusConnection bus_;
    std::vector<Received> received_;
    bool ok_ = false;
};
