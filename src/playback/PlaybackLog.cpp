#include "playback/PlaybackLog.h"

Q_LOGGING_CATEGORY(lcPlayback, "keelhold.playback", QtWarningMsg)
