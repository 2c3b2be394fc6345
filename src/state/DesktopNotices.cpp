#include "state/DesktopNotices.h"

#include "state/AppState.h"
#include "vault/KeepSummary.h"

#include <QWindow>

namespace {
const QString vaultTarget = QStringLiteral("vault");
const QString windowTarget = QStringLiteral("window");
const QString drivePrefix = QStringLiteral("drive:");
} // namespace

DesktopNotices::DesktopNotices(AppState &state, DesktopNotifier &notifier, QObject *parent)
    : QObject(parent), state_(state), notifier_(notifier)
{
    connect(&state_, &AppState::keepEnded, this, &DesktopNotices::keepEnded);
    connect(&state_, &AppState::unkeptSentryArrived, this, &DesktopNotices::unkeptSentryArrived);
    connect(&state_, &AppState::exportEnded, this, &DesktopNotices::exportEnded);
    connect(&notifier_, &DesktopNotifier::activated, this, &DesktopNotices::open);
}

void DesktopNotices::keepEnded(const ArchiveReport &report, bool automatic, double seconds, const QString &driveName)
{
    if (!automatic && seconds <= longWorkSeconds)
        return;
    const KeepSummary::Told told =
        KeepSummary::of(report, driveName.isEmpty() ? tr("your drive", "a keep's drive without a name") : driveName);
    if (told.news)
        notifier_.notify({told.title, told.sentence, vaultTarget});
}

void DesktopNotices::unkeptSentryArrived(const QString &driveName, int count, const QString &mountPoint)
{
    notifier_.notify({tr("%n Sentry events not kept yet", nullptr, count),
                      tr("%1 is connected with Sentry events that aren't in your Vault.").arg(driveName),
                      drivePrefix + mountPoint});
}

void DesktopNotices::exportEnded(double seconds, const QString &title, const QString &sentence)
{
    if (seconds <= longWorkSeconds || (window_ && window_->isActive()))
        return;
    notifier_.notify({title, sentence, windowTarget});
}

void DesktopNotices::open(const QString &target)
{
    if (target == vaultTarget) {
        state_.setSelectedSection(SidebarSection::vault);
    } else if (target.startsWith(drivePrefix)) {
        const QString root = target.mid(drivePrefix.size()) + QStringLiteral("/TeslaCam");
        if (state_.driveRootURL() != root)
            state_.beginScan(root);
        state_.setSelectedSection(SidebarSection::drive);
    }
    if (window_) {
        window_->show();
        window_->raise();
        window_->requestActivate();
    }
}
