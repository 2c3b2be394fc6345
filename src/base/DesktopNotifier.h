#pragma once

#include <QDBusConnection>
#include <QHash>
#include <QObject>
#include <QString>

// Desktop notifications through the freedesktop notification service on the
// session bus. Sending never waits: the answer (the notification's number,
// or that there is no service) comes back later, and without a bus or a
// service nothing happens at all.
class DesktopNotifier : public QObject {
    Q_OBJECT
public:
    struct Note {
        QString title;
        QString body;
        // Where a click leads, handed back by `activated`; empty: nowhere.
        QString target;
    };

    // desktopEntry names the .desktop file, so the desktop shows the app's
    // name and icon and groups its notifications.
    explicit DesktopNotifier(QString desktopEntry, QDBusConnection bus = QDBusConnection::sessionBus(),
                             QObject *parent = nullptr);

    void notify(const Note &note);

    static inline const QString service = QStringLiteral("org.freedesktop.Notifications");
    static inline const QString path = QStringLiteral("/org/freedesktop/Notifications");

Q_SIGNALS:
    // The user clicked a notification that had a target.
    void activated(const QString &target);
    // The service took a notification (its number) or refused it (0); tests
    // and the watch wait on this rather than on time.
    void answered(uint id);

private Q_SLOTS:
    void onActionInvoked(uint id, const QString &action);
    void onClosed(uint id, uint reason);

private:
    QString desktopEntry_;
    QDBusConnection bus_;
    QHash<uint, QString> targets_;
};
