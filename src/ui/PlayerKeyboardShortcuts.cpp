#include "PlayerKeyboardShortcuts.h"

#include "PlayerDrivingData.h"
#include "PlayerKeyActions.h"
#include "playback/SyncPlayerController.h"
#include "state/AppState.h"

#include <QTimer>

PlayerKeyboardShortcuts::PlayerKeyboardShortcuts(QObject *parent) : QObject(parent) {}

void PlayerKeyboardShortcuts::setAppState(AppState *state)
{
    if (appState_ == state)
        return;
    appState_ = state;
    Q_EMIT appStateChanged();
}

void PlayerKeyboardShortcuts::setEventID(const QString &id)
{
    if (eventID_ == id)
        return;
    eventID_ = id;
    Q_EMIT eventIDChanged();
}

QObject *PlayerKeyboardShortcuts::drivingDataObject() const { return drivingData_; }

void PlayerKeyboardShortcuts::setDrivingDataObject(QObject *data) { drivingData_ = qobject_cast<PlayerDrivingData *>(data); }

QStringList PlayerKeyboardShortcuts::keys()
{
    return {QStringLiteral("Space"), QStringLiteral("Left"), QStringLiteral("Right"), QStringLiteral("M"),
            QStringLiteral("F"),     QStringLiteral("1"),    QStringLiteral("2"),     QStringLiteral("3"),
            QStringLiteral("4"),     QStringLiteral("5"),    QStringLiteral("6"),     QStringLiteral("7"),
            QStringLiteral("0"),     QStringLiteral("K"),    QStringLiteral("D"),     QStringLiteral(","),
            QStringLiteral("."),     QStringLiteral("T"),     QStringLiteral("N"),     QStringLiteral("Shift+N"),
            QStringLiteral("Esc")};
}

bool PlayerKeyboardShortcuts::activate(const QString &sequence)
{
    using namespace PlayerKeyActions;
    AppState *state = appState_;
    const QString key = sequence.toUpper();
    if (key == QLatin1String("SPACE"))
        togglePlay(state);
    else if (key == QLatin1String("LEFT"))
        skip(state, -SyncPlayerController::stepSeconds);
    else if (key == QLatin1String("RIGHT"))
        skip(state, SyncPlayerController::stepSeconds);
    else if (key == QLatin1String(","))
        stepFrame(state, -1);
    else if (key == QLatin1String("."))
        stepFrame(state, +1);
    else if (key == QLatin1String("M"))
        jumpToMoment(state);
    else if (key == QLatin1String("N"))
        jumpToPlace(state, +1);
    else if (key == QLatin1String("SHIFT+N"))
        jumpToPlace(state, -1);
    else if (key == QLatin1String("F"))
        toggleFocusMode(state);
    else if (key == QLatin1String("T")) {
        // Without driving data the key says so, and leaves the choice as it was.
        if (drivingData_ && !drivingData_->hasData() && !drivingData_->isLoading())
            drivingData_->sayNoData();
        else
            toggleDrivingData();
    }
    else if (key == QLatin1String("0"))
        clearFocus(state);
    else if (const int n = cameraDigit(key))
        focusCamera(state, n - 1);
    else if (key == QLatin1String("ESC") || key == QLatin1String("ESCAPE")) {
        if (state)
            state->exitFocusMode(true);
    } else if (key == QLatin1String("K") || key == QLatin1String("D")) {
        if (!state || eventID_.isEmpty())
            return true;
        QPointer<AppState> guard = state;
        const QString id = eventID_;
        const bool keep = key == QLatin1String("K");
        QTimer::singleShot(0, state, [guard, id, keep] {
            if (!guard)
                return;
            keep ? guard->keepIDs({id}) : guard->dismissIDs({id});
        });
    } else
        return false;
    return true;
}
