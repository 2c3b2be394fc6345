#include "media/MediaLog.h"

// Warnings only by default: damaged clips are common on a failing drive.
Q_LOGGING_CATEGORY(lcMedia, "keelhold.media", QtWarningMsg)
