#include "NotificationServiceStandIn.h"

#include <QDBusConnectionInterface>

namespace {
const QString serviceName = QStringLiteral("org.freedesktop.Notifications");
const QString objectPath = QStringLiteral("/org/freedesktop/Notifications");
} // namespace

// A connection of its own, as a separate service on the bus would have.
NotificationServiceStandIn::NotificationServiceStandIn()
    : bus_(QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("notification-stand-in")))
{
    ok_ = bus_.isConnected()
        && bus_.registerObject(objectPath, this,
                               QDBusConnection::ExportScriptableSlots | QDBusConnection::ExportScriptableSignals)
        && bus_.registerService(serviceName);
}

NotificationServiceStandIn::~NotificationServiceStandIn()
{
    bus_.unregisterService(serviceName);
    bus_.unregisterObject(objectPath);
    QDBusConnection::disconnectFromBus(QStringLiteral("notification-stand-in"));
}

void NotificationServiceStandIn::click(uint id)
{
    Q_EMIT ActionInvoked(id, QStringLiteral("default"));
}

uint NotificationServiceStandIn::Notify(const QString &appName, uint, const QString &, const QString &summary,
                                        const QString &body, const QStringList &actions, const QVariantMap &hints, int)
{
    const uint id = uint(received_.size()) + 1;
    received_.push_back({id, appName, summary, body, actions, hints});
    Q_EMIT arrived();
    return id;
}

QStringList NotificationServiceStandIn::GetCapabilities()
{
    return {QStringLiteral("body"), QStringLiteral("actions")};
}

void NotificationServiceStandIn::CloseNotification(uint id)
{
    Q_EMIT NotificationClosed(id, 3);
}
