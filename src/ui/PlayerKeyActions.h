#pragma once

#include <QString>

class AppState;

// The player actions that both keyboard routes share. Each acts on the
// state's active controller one turn of the event loop later, so that
// published state doesn't change inside the key event.
namespace PlayerKeyActions {

void togglePlay(AppState *state);
void skip(AppState *state, double seconds);
void stepFrame(AppState *state, int direction);
void jumpToMoment(AppState *state);
// To the next (+1) or previous (-1) burst of activity or hard moment.
void jumpToPlace(AppState *state, int direction);
void toggleFocusMode(AppState *state);
void focusCamera(AppState *state, int index);
void clearFocus(AppState *state);
// Shows or hides the driving data over the video, in every player.
void toggleDrivingData();

// The digit 1 to 7 a key's text stands for, or 0 when it is none of them.
int cameraDigit(const QString &text);

} // namespace PlayerKeyActions
