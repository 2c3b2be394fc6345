#pragma once

#include "base/DesktopNotifier.h"
#include "model/ArchiveReport.h"

#include <QObject>
#include <QPointer>
#include <QString>

class AppState;
#include <QWindow>

// What Keelhold tells the desktop while it runs: an automatic keep or a
// long one has ended, a drive came in with Sentry events not kept yet, a
// long export ended while the window was in the background. A click brings
// the window forward at the place the notification is about.
class DesktopNotices : public QObject {
    Q_OBJECT
public:
    // Shorter work the user is surely still watching.
    static constexpr double longWorkSeconds = 30;

    DesktopNotices(AppState &state, DesktopNotifier &notifier, QObject *parent = nullptr);

    void setWindow(QWindow *window) { window_ = window; }
    // An export ended: told only when it was long and the window isn't the
    // one in front.
    void exportEnded(double seconds, const QString &title, const QString &sentence);

private:
    void keepEnded(const ArchiveReport &report, bool automatic, double seconds, const QString &driveName);
    void unkeptSentryArrived(const QString &driveName, int count, const QString &mountPoint);
    void open(const QString &target);

    AppState &state_;
    DesktopNotifier &notifier_;
    QPointer<QWindow> window_;
};
