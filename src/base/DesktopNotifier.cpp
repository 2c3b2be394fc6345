#include "DesktopNotifier.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QVariantMap>

namespace {
const QString interfaceName = QStringLiteral("org.freedesktop.Notifications");
// The action a click on the notification itself invokes.
const QString defaultAction = QStringLiteral("default");
} // namespace

DesktopNotifier::DesktopNotifier(QString desktopEntry, QDBusConnection bus, QObject *parent)
    : QObject(parent), desktopEntry_(std::move(desktopEntry)), bus_(std::move(bus))
{
    if (!bus_.isConnected())
        return;
    bus_.connect(service, path, interfaceName, QStringLiteral("ActionInvoked"), this,
                 SLOT(onActionInvoked(uint, QString)));
    bus_.connect(service, path, interfaceName, QStringLiteral("NotificationClosed"), this,
                 SLOT(onClosed(uint, uint)));
}

void DesktopNotifier::notify(const Note &note)
{
    if (!bus_.isConnected()) {
        Q_EMIT answered(0);
        return;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, interfaceName, QStringLiteral("Notify"));
    QStringList actions;
    if (!note.target.isEmpty())
        actions << defaultAction << tr("Show");
    QVariantMap hints{{QStringLiteral("desktop-entry"), desktopEntry_}};
    // The app's name as the desktop shows it; the icon comes with the desktop entry.
    call << QCoreApplication::applicationName() << uint(0) << QString() << note.title << note.body << actions
         << hints << int(-1);
    // No service: the call fails at once with an error; no waiting either way.
    auto *watcher = new QDBusPendingCallWatcher(bus_.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, target = note.target](QDBusPendingCallWatcher *w) {
                w->deleteLater();
                const QDBusPendingReply<uint> reply = *w;
                const uint id = reply.isValid() ? reply.value() : 0;
                if (id != 0 && !target.isEmpty())
                    targets_.insert(id, target);
                Q_EMIT answered(id);
            });
}

void DesktopNotifier::onActionInvoked(uint id, const QString &action)
{
    if (action != defaultAction)
        return;
    const QString target = targets_.take(id);
    if (!target.isEmpty())
        Q_EMIT activated(target);
}

void DesktopNotifier::onClosed(uint id, uint)
{
    targets_.remove(id);
}
