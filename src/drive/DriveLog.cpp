#include "drive/DriveLog.h"

Q_LOGGING_CATEGORY(lcDrive, "keelhold.drive", QtWarningMsg)
