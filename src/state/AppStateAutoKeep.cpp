// Drives that keep themselves: what comes in is judged against the Vault
// file by file and kept, one keep at a time, with a notification at the end.
#include "state/AppState.h"
#include "base/LogCategories.h"

#include "vault/NewFootage.h"

#include <qcoro/qcorofuture.h>

#include <algorithm>

namespace {
const QString teslaCamFolder = QStringLiteral("/TeslaCam");
}

void AppState::answerAutoKeepOffer(bool on, bool recent)
{
    if (!autoKeepOffer_)
        return;
    const DriveIdentity drive = *std::exchange(autoKeepOffer_, std::nullopt);
    autoKeep_.markOffered(drive);
    if (on)
        autoKeep_.set(drive, true, recent);
    Q_EMIT autoKeepOfferChanged();
}

QCoro::Task<void> AppState::identifyShownDrive(QPointer<AppState> self, QString root)
{
    QFuture<std::optional<DriveIdentity::Mounted>> look = self->engine_.identifyDrive(root);
    const std::optional<DriveIdentity::Mounted> mounted = co_await look;
    // Another drive may be on screen by now.
    if (!self || !mounted || self->driveRootURL() != root)
        co_return;
    self->shownDrive_ = mounted->drive;
    Q_EMIT self->shownDriveChanged();
}

QCoro::Task<void> AppState::arrivalTask(QPointer<AppState> self, QString mountPoint, bool atStart)
{
    if (!self->vault_.vaultURL() || self->isSampleMode())
        co_return;
    const QString root = mountPoint + teslaCamFolder;
    QFuture<std::optional<DriveIdentity::Mounted>> look = self->engine_.identifyDrive(root);
    const std::optional<DriveIdentity::Mounted> mounted = co_await look;
    if (!self || !mounted || mounted->mountPoint != mountPoint)
        co_return;
    const DriveIdentity drive = mounted->drive;
    const bool on = self->autoKeep_.isOn(drive);
    // While a keep runs or waits for its drive (this one, perhaps, which
    // then takes it up by itself) the user is keeping already: nothing to
    // tell, and the drive is left alone. One that keeps itself waits its turn.
    if (!on && (atStart || self->interruptedKeep_ || self->isArchiving_))
        co_return;
    // Read in the background, whichever drive is on screen.
    DriveScan scan;
    try {
        QFuture<DriveScan> reading = self->engine_.scanDrive(root, {});
        scan = co_await reading;
    } catch (...) {
        // A drive that can't be read says so when it is opened.
        KEELHOLD_LOG_CAUGHT(lcState);
        co_return;
    }
    if (!self || !self->vault_.vaultURL())
        co_return;
    std::vector<TeslaEvent> fresh =
        NewFootage::unkept(scan.events, self->vault_.vaultIndex(), on && self->autoKeep_.withRecent(drive));
    if (!on) {
        const int sentry = int(std::count_if(fresh.begin(), fresh.end(),
                                             [](const TeslaEvent &e) { return e.kind == EventKind::sentry; }));
        if (sentry > 0)
            Q_EMIT self->unkeptSentryArrived(drive.name, sentry, mountPoint);
        co_return;
    }
    if (fresh.empty())
        co_return;
    // The latest look at a drive replaces an earlier one still waiting.
    std::erase_if(self->arrivals_, [&](const Arrival &a) { return a.drive.isSameDrive(drive); });
    self->arrivals_.push_back({drive, mountPoint, std::move(fresh)});
    self->startWaitingAutoKeep();
}

void AppState::startWaitingAutoKeep()
{
    // One keep at a time, a paused one included: its drive may come back,
    // and a drive's own resumed keep goes first.
    while (!isArchiving_ && !interruptedKeep_ && !arrivals_.empty() && vault_.vaultURL()) {
        Arrival next = std::move(arrivals_.front());
        arrivals_.pop_front();
        // Gone while it waited: nothing to read.
        const auto &mounted = drive_.driveVolumeCandidates();
        if (std::none_of(mounted.begin(), mounted.end(),
                         [&](const VolumeCandidate &c) { return c.volumeURL == next.mountPoint; }))
            continue;
        // A keep that ran meanwhile may hold some of it now.
        std::vector<TeslaEvent> fresh = NewFootage::unkept(next.events, vault_.vaultIndex(), true);
        if (fresh.empty())
            continue;
        keep(fresh, true);
        return;
    }
}
