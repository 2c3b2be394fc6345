#include "ListPlayerKeyRouter.h"

#include "PlayerKeyActions.h"
#include "state/AppState.h"

#include <QTimer>

ListPlayerKeyRouter::ListPlayerKeyRouter(QObject *parent) : QObject(parent) {}

void ListPlayerKeyRouter::setAppState(AppState *state)
{
    if (appState_ == state)
        return;
    appState_ = state;
    Q_EMIT appStateChanged();
}

void ListPlayerKeyRouter::setHandlesTriage(bool value)
{
    if (handlesTriage_ == value)
        return;
    handlesTriage_ = value;
    Q_EMIT handlesTriageChanged();
}

bool ListPlayerKeyRouter::keyPressed(int key, int modifiers, const QString &text)
{
    using namespace PlayerKeyActions;
    // Keypad digits carry KeypadModifier; that one is not a held key.
    const int held = modifiers & ~int(Qt::KeypadModifier);
    AppState *state = appState_;
    // N and Shift+N, the one key with a modifier, go to the player.
    if (key == Qt::Key_N && (held == Qt::NoModifier || held == Qt::ShiftModifier) && state &&
        state->activePlayerController()) {
        jumpToPlace(state, held == Qt::ShiftModifier ? -1 : +1);
        return true;
    }
    if (held != Qt::NoModifier)
        return false;
    switch (key) {
    case Qt::Key_F:
        toggleFocusMode(state);
        return true;
    case Qt::Key_M:
        jumpToMoment(state);
        return true;
    case Qt::Key_T:
        toggleDrivingData();
        return true;
    case Qt::Key_Space:
        togglePlay(state);
        return true;
    case Qt::Key_0:
        clearFocus(state);
        return true;
    default:
        break;
    }
    if (const int n = cameraDigit(text); n && state && state->activePlayerController()) {
        focusCamera(state, n - 1);
        return true;
    }
    if ((key == Qt::Key_K || key == Qt::Key_D) && handlesTriage_) {
        if (!state)
            return true;
        const auto selected = state->selectedEventID();
        if (!selected)
            return true;
        for (const TeslaEvent &event : state->visibleInboxEvents()) {
            if (event.id() != *selected)
                continue;
            if (key == Qt::Key_K)
                state->keep({event});
            else
                state->dismiss({event});
            break;
        }
        return true;
    }
    return false;
}
