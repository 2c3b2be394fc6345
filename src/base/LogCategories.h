#pragma once

// One logging category per floor of src, so a log line says where it came
// from and a user can turn one floor's debug output on
// (QT_LOGGING_RULES="keelhold.drive.debug=true").

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(lcBase)
Q_DECLARE_LOGGING_CATEGORY(lcModel)
Q_DECLARE_LOGGING_CATEGORY(lcMedia)
Q_DECLARE_LOGGING_CATEGORY(lcDrive)
Q_DECLARE_LOGGING_CATEGORY(lcVault)
Q_DECLARE_LOGGING_CATEGORY(lcTimeline)
Q_DECLARE_LOGGING_CATEGORY(lcPlayback)
Q_DECLARE_LOGGING_CATEGORY(lcExport)
Q_DECLARE_LOGGING_CATEGORY(lcHealth)
Q_DECLARE_LOGGING_CATEGORY(lcEngine)
Q_DECLARE_LOGGING_CATEGORY(lcState)
Q_DECLARE_LOGGING_CATEGORY(lcUi)
Q_DECLARE_LOGGING_CATEGORY(lcCli)
Q_DECLARE_LOGGING_CATEGORY(lcCrypt)
Q_DECLARE_LOGGING_CATEGORY(lcUnlock)

// Logs, as a warning of category, what a catch-all handler caught (call it
// inside the handler); a cancellation is not an error and is not logged.
void logCaught(const QLoggingCategory &category, const char *file, int line);
#define KEELHOLD_LOG_CAUGHT(category) logCaught(category(), __FILE_NAME__, __LINE__)
