// Keeping: the run, its pause while the drive is away and its resumption
// when the same drive returns.
#include "state/AppState.h"
#include "base/LogCategories.h"

#include "drive/DriveBoundary.h"
#include "state/OnMainThread.h"

#include <QSet>
#include <qcoro/qcorofuture.h>

#include <algorithm>

namespace {

QString rebasedPath(const QString &path, const QString &from, const QString &to)
{
    if (path == from)
        return to;
    if (path.startsWith(from + QLatin1Char('/')))
        return to + path.mid(from.size());
    return path;
}

// The same events as seen through another mount of their drive.
std::vector<TeslaEvent> rebased(std::vector<TeslaEvent> events, const QString &from, const QString &to)
{
    for (TeslaEvent &e : events) {
        e.folderURL = rebasedPath(e.folderURL, from, to);
        for (ClipRef &clip : e.clips)
            clip.url = rebasedPath(clip.url, from, to);
        if (e.thumbURL)
            e.thumbURL = rebasedPath(*e.thumbURL, from, to);
    }
    return events;
}

bool belongsTo(const QString &path, const TeslaEvent &event)
{
    if (path == event.folderURL + QStringLiteral("/event.json") || (event.thumbURL && path == *event.thumbURL))
        return true;
    return std::any_of(event.clips.begin(), event.clips.end(), [&](const ClipRef &c) { return c.url == path; });
}

// One report for a keep that went on after its drive came back: the later
// run's records tell about the events it went back to, the earlier run's
// about the rest.
ArchiveReport merged(const ArchiveReport &earlier, const ArchiveReport &later, const std::vector<TeslaEvent> &events)
{
    ArchiveReport out = later;
    out.plannedEvents = earlier.plannedEvents;
    out.skippedDuplicates = earlier.skippedDuplicates;
    out.bytesCopied = earlier.bytesCopied + later.bytesCopied;
    QSet<QString> redone;
    for (const ArchivedEvent &a : later.archivedEvents)
        redone.insert(a.eventID);
    out.archivedEvents.clear();
    for (const ArchivedEvent &a : earlier.archivedEvents)
        if (!redone.contains(a.eventID))
            out.archivedEvents.push_back(a);
    out.archivedEvents.insert(out.archivedEvents.end(), later.archivedEvents.begin(), later.archivedEvents.end());
    out.failedFiles.clear();
    for (const ArchiveReport::FailedFile &f : earlier.failedFiles) {
        const bool superseded = std::any_of(events.begin(), events.end(), [&](const TeslaEvent &e) {
            return redone.contains(e.id()) && belongsTo(f.path, e);
        });
        if (!superseded)
            out.failedFiles.push_back(f);
    }
    out.failedFiles.insert(out.failedFiles.end(), later.failedFiles.begin(), later.failedFiles.end());
    return out;
}

} // namespace

void AppState::keep(const std::vector<TeslaEvent> &events, bool automatic)
{
    // Nobody is watching an automatic keep start: the player plays on.
    if (!automatic)
        shell_.pauseActivePlayer();
    const std::optional<QString> &vaultURL = vault_.vaultURL();
    if (!vaultURL) {
        // The first keep: the screens ask for a folder, and the keep goes on
        // once one is set.
        keepAwaitingVault_ = events;
        Q_EMIT vaultFolderWanted();
        return;
    }
    ArchivePlan plan = engine_.planArchive(events, vault_.vaultIndex());
    keepAutomatic_ = automatic;
    keepClock_.start();
    setIsArchiving(true);
    setArchiveProgress(ArchiveProgress{0, plan.totalNewBytes(), 0, int(plan.newItems().size()), std::nullopt});
    auto task = std::make_shared<std::stop_source>();
    currentArchiveTask_ = task;
    mountsDuringKeep_.clear();
    keepDrive_.reset();
    keepTask(QPointer<AppState>(this), std::move(plan), *vaultURL, events, task, std::nullopt);
}

QCoro::Task<void> AppState::keepTask(QPointer<AppState> self, ArchivePlan plan, QString vaultURL,
                                     std::vector<TeslaEvent> events, std::shared_ptr<std::stop_source> task,
                                     std::optional<ArchiveReport> earlier)
{
    auto progress = onMainThread<ArchiveProgress>(self, [](AppState &state, const ArchiveProgress &p) {
        if (!state.interruptedKeep_)
            state.setArchiveProgress(p);
    });
    ArchiveReport report;
    // The Vault may have been chosen before this drive was opened.
    // (No temporaries inside the awaits: GCC 12 frees them twice.)
    std::optional<bool> intoDrive;
    const std::optional<QString> root = self->drive_.driveRootURL();
    if (root) {
        QFuture<std::optional<bool>> check = self->engine_.writesIntoDrive(*root, vaultURL);
        intoDrive = co_await check;
        if (!self)
            co_return;
    }
    // Which drive the events lie on, asked while it is surely there: should
    // it go away mid-run, only the same drive takes the keep up again.
    const std::vector<ArchivePlan::Item> fresh = plan.newItems();
    if (!fresh.empty()) {
        QFuture<std::optional<DriveIdentity::Mounted>> where = self->engine_.identifyDrive(fresh.front().event.folderURL);
        const std::optional<DriveIdentity::Mounted> mounted = co_await where;
        if (!self)
            co_return;
        self->keepDrive_.reset();
        if (mounted)
            self->keepDrive_ = KeepDrive{mounted->drive, mounted->mountPoint};
    }
    if (intoDrive.value_or(false)) {
        report.failedFiles.push_back({vaultURL, DriveBoundary::vaultRefusalText()});
    } else {
        try {
            auto archiving = self->engine_.runArchive(plan, vaultURL, progress, task->get_token());
            report = co_await archiving;
        } catch (...) {
            KEELHOLD_LOG_CAUGHT(lcState);
            report.cancelled = task->stop_requested();
        }
        if (!self)
            co_return;
    }
    // One stretch, no await between the steps.
    const std::vector<ArchivedEvent> recorded = report.archivedEvents;
    if (earlier)
        report = merged(*earlier, report, events);
    // Cut off by its drive going away: paused, not over, and the same drive
    // coming back takes it up again.
    // An automatic keep just ends: the drive coming back starts it afresh.
    const bool paused = report.stoppedBecause == ArchiveReport::StopReason::driveDisconnected && !report.cancelled
        && self->keepDrive_ && !self->keepAutomatic_;
    if (paused) {
        self->currentArchiveTask_.reset();
        self->interruptedKeep_ = InterruptedKeep{events, report, vaultURL, *self->keepDrive_};
        Q_EMIT self->isArchivePausedChanged();
    } else {
        self->finishKeep(report);
    }
    // What this run recorded counts at once, whatever comes next; part of
    // an event is no kept event.
    self->vault_.recordKept(recorded);
    for (const ArchivedEvent &a : recorded)
        if (!a.isIncomplete())
            self->triage_.setTriage(TriageState::kept, a.eventID);
    self->vault_.loadEvents();
    // It may have come back before the run saw it go.
    if (paused)
        for (const QString &mountPoint : std::exchange(self->mountsDuringKeep_, {}))
            resumeTask(self, mountPoint);
}

void AppState::finishKeep(const ArchiveReport &report)
{
    const bool automatic = std::exchange(keepAutomatic_, false);
    const std::optional<DriveIdentity> from =
        keepDrive_ ? std::optional<DriveIdentity>(keepDrive_->drive) : std::nullopt;
    setIsArchiving(false);
    setArchiveProgress(std::nullopt);
    currentArchiveTask_.reset();
    keepDrive_.reset();
    mountsDuringKeep_.clear();
    setLastArchiveReport(report);
    if (!automatic)
        shell_.setShowArchiveReport(true);
    // The first keep from a drive offers it to keep itself from then on.
    if (!automatic && from && report.completeEvents() > 0 && !autoKeep_.wasOffered(*from)
        && !autoKeep_.isOn(*from) && autoKeepOffer_ != from) {
        autoKeepOffer_ = from;
        Q_EMIT autoKeepOfferChanged();
    }
    Q_EMIT keepEnded(report, automatic, double(keepClock_.elapsed()) / 1000.0, from ? from->name : QString());
    // After the Vault has recorded this keep: the next drive is judged by it.
    QMetaObject::invokeMethod(this, &AppState::startWaitingAutoKeep, Qt::QueuedConnection);
}

void AppState::cancelCurrentArchiveTask()
{
    if (currentArchiveTask_) {
        currentArchiveTask_->request_stop();
        return;
    }
    // A keep waiting for its drive ends with what it had done.
    if (interruptedKeep_) {
        InterruptedKeep waiting = std::move(*interruptedKeep_);
        interruptedKeep_.reset();
        Q_EMIT isArchivePausedChanged();
        waiting.soFar.cancelled = true;
        finishKeep(waiting.soFar);
    }
}

void AppState::noteMountForKeep(const QString &mountPoint)
{
    if (interruptedKeep_)
        resumeTask(QPointer<AppState>(this), mountPoint);
    else if (isArchiving_)
        mountsDuringKeep_ << mountPoint;
}

QCoro::Task<void> AppState::resumeTask(QPointer<AppState> self, QString mountPoint)
{
    if (!self || !self->interruptedKeep_)
        co_return;
    const KeepDrive from = self->interruptedKeep_->from;
    // The same TeslaCam folder: the first event not yet kept whole lies
    // where it lay, seen through this mount.
    QString folder;
    for (const TeslaEvent &e : self->interruptedKeep_->events) {
        const auto &done = self->interruptedKeep_->soFar.archivedEvents;
        const bool whole = std::any_of(done.begin(), done.end(), [&](const ArchivedEvent &a) {
            return a.eventID == e.id() && !a.isIncomplete();
        });
        if (!whole) {
            folder = rebasedPath(e.folderURL, from.mountPoint, mountPoint);
            break;
        }
    }
    // The folder itself: it must be there, on the same drive, at this mount.
    QFuture<std::optional<DriveIdentity::Mounted>> look =
        self->engine_.identifyDrive(folder.isEmpty() ? mountPoint : folder);
    const std::optional<DriveIdentity::Mounted> mounted = co_await look;
    const bool same = mounted && mounted->mountPoint == mountPoint && mounted->drive.isSameDrive(from.drive);
    // Another mount may have taken it up meanwhile, or the user ended it.
    if (!self || !self->interruptedKeep_)
        co_return;
    if (!same) {
        Q_EMIT self->keepDriveChecked(mountPoint, false);
        co_return;
    }
    InterruptedKeep waiting = std::move(*self->interruptedKeep_);
    self->interruptedKeep_.reset();
    Q_EMIT self->isArchivePausedChanged();

    std::vector<TeslaEvent> events = rebased(waiting.events, waiting.from.mountPoint, mountPoint);
    ArchiveReport soFar = waiting.soFar;
    for (ArchiveReport::FailedFile &f : soFar.failedFiles)
        f.path = rebasedPath(f.path, waiting.from.mountPoint, mountPoint);
    ArchivePlan plan = self->engine_.planArchive(events, self->vault_.vaultIndex());
    // Where it stopped: what the cut-off run placed is not copied again.
    for (ArchivePlan::Item &item : plan.items) {
        const auto record = std::find_if(soFar.archivedEvents.rbegin(), soFar.archivedEvents.rend(),
                                         [&](const ArchivedEvent &a) { return a.eventID == item.event.id(); });
        if (!item.isDuplicate && record != soFar.archivedEvents.rend())
            item.alreadyKept = record->files;
    }
    self->setArchiveProgress(ArchiveProgress{0, plan.totalNewBytes(), 0, int(plan.newItems().size()), std::nullopt});
    auto task = std::make_shared<std::stop_source>();
    self->currentArchiveTask_ = task;
    self->keepDrive_ = KeepDrive{waiting.from.drive, mountPoint};
    keepTask(self, std::move(plan), waiting.vaultURL, std::move(events), task, std::move(soFar));
    Q_EMIT self->keepDriveChecked(mountPoint, true);
}
