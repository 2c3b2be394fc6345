#include "PlayerLayout.h"

#include "playback/SyncPlayerController.h"

#include <QLocale>

double PlayerLayout::momentMarkX(const QVariant &triggerOffset, double duration, double width)
{
    if (!triggerOffset.isValid() || triggerOffset.isNull() || duration <= 0)
        return -1;
    // The thumb travels 12 points in from each end.
    return triggerOffset.toDouble() / duration * (width - 24) + 12;
}

QString PlayerLayout::momentMarkTooltip(double triggerOffset)
{
    //: %1 is a time into the event, e.g. 0:42
    return tr("The moment it happened — %1 into the event.").arg(SyncPlayerController::timeString(triggerOffset));
}

QString PlayerLayout::speedLabel(double rate)
{
    if (rate == 1.0)
        return QStringLiteral("1×");
    return QLocale().toString(rate, 'f', 1) + QStringLiteral("×");
}

QString PlayerLayout::speedShortfall(double chosen, double playing)
{
    //: %1 is the chosen playback speed, %2 the speed it really plays at (e.g. 1.6×)
    return tr("%1 — playing at %2, this computer can't keep up")
        .arg(speedLabel(chosen), QLocale().toString(playing, 'f', 1) + QStringLiteral("×"));
}

QString PlayerLayout::stripTooltip(const QString &cameraName, bool focused)
{
    //: %1 is a camera's name, e.g. Left Side
    if (focused)
        return tr("%1 — currently enlarged.").arg(cameraName);
    //: %1 is a camera's name, e.g. Left Side
    return tr("Switch to the %1 camera. (Keys 1–7 jump between cameras; 0 shows all.)").arg(cameraName);
}

QString PlayerLayout::gridTileTooltip(const QString &cameraName)
{
    //: %1 is a camera's name, e.g. Left Side
    return tr("Click to enlarge the %1 camera. Click again to show all cameras.").arg(cameraName);
}

QString PlayerLayout::coordinatesText(const QVariant &latitude, const QVariant &longitude)
{
    if (!latitude.isValid() || latitude.isNull() || !longitude.isValid() || longitude.isNull())
        return tr("Location unknown");
    return QString::asprintf("%.4f, %.4f", latitude.toDouble(), longitude.toDouble());
}

QString PlayerLayout::gridMode(const QString &focusedCamera, const QVariantList &tiles, bool isLoading)
{
    if (!focusedCamera.isEmpty()) {
        for (const QVariant &t : tiles)
            if (t.toMap().value(QStringLiteral("camera")).toString() == focusedCamera)
                return QStringLiteral("focused");
    }
    // Tiles that wait for their clips already show the cameras.
    if (isLoading && tiles.isEmpty())
        return QStringLiteral("loading");
    return tiles.isEmpty() ? QStringLiteral("empty") : QStringLiteral("grid");
}

QVariantMap PlayerLayout::detailEmptyState(bool vault, bool hasDriveScan)
{
    QVariantMap m{{QStringLiteral("symbol"), QStringLiteral("play.rectangle")},
                  {QStringLiteral("title"), tr("Select an event")}};
    if (vault) {
        m.insert(QStringLiteral("message"),
                 //: "Drive" is the app's own tab; translate it as there
                 tr("Choose an archived event on the left to watch it — everything here works exactly like the Drive "
                    "tab, even with no Tesla drive connected."));
        m.insert(QStringLiteral("action"), QString());
    } else {
        m.insert(QStringLiteral("message"), tr("Choose something from the list on the left to watch every available "
                                               "camera angle, synced on one timeline."));
        m.insert(QStringLiteral("action"), hasDriveScan ? QString() : tr("Just exploring? Try sample footage"));
    }
    return m;
}
