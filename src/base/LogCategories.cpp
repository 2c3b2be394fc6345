#include "LogCategories.h"

#include "base/CancellationError.h"

#include <exception>

// Warnings and above by default: debug lines are for a developer's session.
Q_LOGGING_CATEGORY(lcBase, "keelhold.base", QtWarningMsg)
Q_LOGGING_CATEGORY(lcModel, "keelhold.model", QtWarningMsg)
Q_LOGGING_CATEGORY(lcMedia, "keelhold.media", QtWarningMsg)
Q_LOGGING_CATEGORY(lcDrive, "keelhold.drive", QtWarningMsg)
Q_LOGGING_CATEGORY(lcVault, "keelhold.vault", QtWarningMsg)
Q_LOGGING_CATEGORY(lcTimeline, "keelhold.timeline", QtWarningMsg)
Q_LOGGING_CATEGORY(lcPlayback, "keelhold.playback", QtWarningMsg)
Q_LOGGING_CATEGORY(lcExport, "keelhold.export", QtWarningMsg)
Q_LOGGING_CATEGORY(lcHealth, "keelhold.health", QtWarningMsg)
Q_LOGGING_CATEGORY(lcEngine, "keelhold.engine", QtWarningMsg)
Q_LOGGING_CATEGORY(lcState, "keelhold.state", QtWarningMsg)
Q_LOGGING_CATEGORY(lcUi, "keelhold.ui", QtWarningMsg)
Q_LOGGING_CATEGORY(lcCli, "keelhold.cli", QtWarningMsg)
Q_LOGGING_CATEGORY(lcCrypt, "keelhold.crypt", QtWarningMsg)
Q_LOGGING_CATEGORY(lcUnlock, "keelhold.unlock", QtWarningMsg)

void logCaught(const QLoggingCategory &category, const char *file, int line)
{
    QString what = QStringLiteral("an error of unknown kind");
    try {
        throw;
    } catch (const CancellationError &) {
        return;
    } catch (const std::exception &e) {
        what = QString::fromLocal8Bit(e.what());
    } catch (...) {
    }
    if (category.isWarningEnabled())
        QMessageLogger(file, line, nullptr, category.categoryName()).warning().noquote() << "caught:" << what;
}
