#include "PlayerKeyActions.h"

#include "DrivingDataPreferences.h"

#include "playback/SyncPlayerController.h"
#include "state/AppState.h"

#include <QPointer>
#include <QTimer>

namespace PlayerKeyActions {
namespace {

// Loads the controller now, acts on it next turn (if it still exists).
template <typename Action>
void later(AppState *state, Action action)
{
    if (!state)
        return;
    QPointer<SyncPlayerController> controller = qobject_cast<SyncPlayerController *>(state->activePlayerController());
    if (!controller)
        return;
    QTimer::singleShot(0, controller, [controller, action] {
        if (controller)
            action(*controller);
    });
}

} // namespace

void togglePlay(AppState *state)
{
    later(state, [](SyncPlayerController &c) { c.isPlaying() ? c.pause() : c.play(); });
}

void skip(AppState *state, double seconds)
{
    later(state, [seconds](SyncPlayerController &c) { c.seek(c.currentTime() + seconds); });
}

void stepFrame(AppState *state, int direction)
{
    later(state, [direction](SyncPlayerController &c) { c.stepFrame(direction); });
}

void jumpToMoment(AppState *state)
{
    later(state, [](SyncPlayerController &c) { c.jumpToMoment(); });
}

void jumpToPlace(AppState *state, int direction)
{
    later(state, [direction](SyncPlayerController &c) { c.jumpToPlace(direction); });
}

void toggleFocusMode(AppState *state)
{
    if (!state)
        return;
    QPointer<AppState> guard = state;
    QTimer::singleShot(0, state, [guard] {
        if (guard)
            guard->toggleFocusMode();
    });
}

void focusCamera(AppState *state, int index)
{
    later(state, [index](SyncPlayerController &c) { c.focusCamera(index); });
}

void clearFocus(AppState *state)
{
    later(state, [](SyncPlayerController &c) { c.clearFocus(); });
}

void toggleDrivingData()
{
    QTimer::singleShot(0, DrivingDataPreferences::shared(), [] { DrivingDataPreferences::shared()->toggleOverlay(); });
}

int cameraDigit(const QString &text)
{
    bool ok = false;
    const int n = text.toInt(&ok);
    return ok && text.size() == 1 && n >= 1 && n <= 7 ? n : 0;
}

} // namespace PlayerKeyActions
