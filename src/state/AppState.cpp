#include "state/AppState.h"

#include "moments/ActivityReader.h"

#include "health/HealthComputer.h"
#include "state/ChangeSignal.h"

#include <QCoreApplication>
#include <QWindow>

AppState::AppState(EngineFacade &engine, QObject *parent)
    : QObject(parent), engine_(engine), shell_(engine), triage_(engine), drive_(engine, engine), vault_(engine, engine, engine),
      activity_(engine), autoKeep_(engine)
{
    relayPartSignals();
    if (auto *app = QCoreApplication::instance()) {
        QPointer<AppState> self(this);
        connect(app, &QCoreApplication::aboutToQuit, this, [self] {
            if (self)
                self->endHeldAccess();
        });
    }
}

AppState::~AppState() = default;

// Each part's change is the state's change; what spans parts follows here.
void AppState::relayPartSignals()
{
    connect(&shell_, &ShellState::hasCompletedOnboardingChanged, this, &AppState::hasCompletedOnboardingChanged);
    connect(&shell_, &ShellState::showOnboardingChanged, this, &AppState::showOnboardingChanged);
    connect(&shell_, &ShellState::selectedSectionChanged, this, &AppState::selectedSectionChanged);
    connect(&shell_, &ShellState::selectedEventIDChanged, this, &AppState::selectedEventIDChanged);
    connect(&shell_, &ShellState::selectedVaultEventIDChanged, this, &AppState::selectedVaultEventIDChanged);
    connect(&shell_, &ShellState::columnVisibilityChanged, this, &AppState::columnVisibilityChanged);
    connect(&shell_, &ShellState::isFocusModeChanged, this, &AppState::isFocusModeChanged);
    connect(&shell_, &ShellState::showEncryptionGuideChanged, this, &AppState::showEncryptionGuideChanged);
    connect(&shell_, &ShellState::showArchiveReportChanged, this, &AppState::showArchiveReportChanged);

    connect(&triage_, &TriageFilters::triageStatesChanged, this, &AppState::triageStatesChanged);
    connect(&triage_, &TriageFilters::filterStateChanged, this, &AppState::filterStateChanged);
    connect(&triage_, &TriageFilters::filterReasonChanged, this, &AppState::filterReasonChanged);
    connect(&triage_, &TriageFilters::filterKindChanged, this, &AppState::filterKindChanged);
    connect(&triage_, &TriageFilters::selectedEventIDsForBulkChanged, this, &AppState::selectedEventIDsForBulkChanged);
    connect(&triage_, &TriageFilters::visibleChanged, this, &AppState::visibleInboxEventsChanged);

    connect(&drive_, &DriveSession::driveScanChanged, this, [this] {
        Q_EMIT driveScanChanged();
        Q_EMIT visibleInboxEventsChanged();
        recomputeHealth();
        refreshKeyCoverage();
        if (!driveScan())
            activity_.stop();
    });
    connect(&drive_, &DriveSession::probeFinished, this, [this] {
        std::vector<TeslaEvent> ahead;
        if (driveScan())
            std::copy_if(driveScan()->events.begin(), driveScan()->events.end(), std::back_inserter(ahead),
                         ActivityReader::isWorthAhead);
        activity_.start(std::move(ahead));
    });
    connect(this, &AppState::isArchivingChanged, this, [this] { activity_.setPaused(isArchiving_); });
    connect(&drive_, &DriveSession::scanProgressChanged, this, &AppState::scanProgressChanged);
    connect(&drive_, &DriveSession::isScanningChanged, this, &AppState::isScanningChanged);
    connect(&drive_, &DriveSession::isRevalidatingScanChanged, this, &AppState::isRevalidatingScanChanged);
    connect(&drive_, &DriveSession::driveVolumeCandidatesChanged, this, &AppState::driveVolumeCandidatesChanged);
    connect(&drive_, &DriveSession::driveIsConnectedChanged, this, &AppState::driveIsConnectedChanged);
    connect(&drive_, &DriveSession::currentFailureChanged, this, &AppState::currentFailureChanged);
    connect(&drive_, &DriveSession::driveRootURLChanged, this, &AppState::driveRootURLChanged);
    connect(&drive_, &DriveSession::isSampleModeChanged, this, &AppState::isSampleModeChanged);
    connect(&drive_, &DriveSession::accessBegan, this, &AppState::raiseResourceAccessEpoch);
    connect(&drive_, &DriveSession::volumeMounted, this, &AppState::noteMountForKeep);
    connect(&drive_, &DriveSession::volumeMounted, this,
            [this](const QString &mountPoint) { arrivalTask(QPointer<AppState>(this), mountPoint); });
    connect(&drive_, &DriveSession::driveRootURLChanged, this, [this] {
        if (shownDrive_) {
            shownDrive_.reset();
            Q_EMIT shownDriveChanged();
        }
        if (driveRootURL() && !isSampleMode())
            identifyShownDrive(QPointer<AppState>(this), *driveRootURL());
    });

    connect(&vault_, &VaultSession::vaultURLChanged, this, &AppState::vaultURLChanged);
    connect(&vault_, &VaultSession::vaultIndexChanged, this, [this] {
        Q_EMIT vaultIndexChanged();
        recomputeHealth();
    });
    connect(&vault_, &VaultSession::vaultEventsChanged, this, [this] {
        Q_EMIT vaultEventsChanged();
        refreshKeyCoverage();
    });
    connect(&vault_, &VaultSession::verificationChanged, this, &AppState::verificationChanged);
    connect(&vault_, &VaultSession::verificationProgressChanged, this, &AppState::verificationProgressChanged);
    connect(&vault_, &VaultSession::verificationLogChanged, this, &AppState::verificationLogChanged);
    connect(&vault_, &VaultSession::accessBegan, this, &AppState::raiseResourceAccessEpoch);
    connect(&vault_, &VaultSession::indexLoaded, this, [this] {
        // A first keep that waited for this folder goes on, planned
        // against what the folder already holds.
        if (!keepAwaitingVault_.empty() && !isArchiving_)
            keep(std::exchange(keepAwaitingVault_, {}));
        else
            vault_.verifyIfDue();
        // Drives that keep themselves and were plugged in before Keelhold opened.
        if (rootViewAppeared_ && !std::exchange(arrivalsAtStartSeen_, true))
            for (const VolumeCandidate &c : drive_.driveVolumeCandidates())
                if (c.hasTeslaCamFolder)
                    arrivalTask(QPointer<AppState>(this), c.volumeURL, true);
    });
}

void AppState::rootViewAppeared()
{
    if (rootViewAppeared_)
        return;
    rootViewAppeared_ = true;
    drive_.refreshVolumeCandidates();
    drive_.startWatchingDriveEvents();
    if (shell_.showOnboarding())
        return;
    drive_.resolveBookmark();
    resolveVaultBookmark();
}

void AppState::attachWindow(QObject *quickWindow)
{
    if (auto *w = qobject_cast<QWindow *>(quickWindow))
        shell_.setFocusWindow(FocusWindow::forWindow(w, this));
}

void AppState::endHeldAccess()
{
    drive_.endHeldAccess();
    vault_.endHeldAccess();
}

void AppState::raiseResourceAccessEpoch()
{
    ++resourceAccessEpoch_;
    Q_EMIT resourceAccessEpochChanged();
}

void AppState::recomputeHealth()
{
    if (const std::optional<DriveScan> &scan = drive_.driveScan())
        setHealthReport(HealthComputer::compute(*scan, vault_.vaultIndex()));
    else
        setHealthReport(std::nullopt);
}

void AppState::loadSampleFootage()
{
    const std::optional<QString> url = sampleFootageURL();
    if (!url)
        return;
    shell_.setShowOnboarding(false);
    shell_.setSelectedSection(SidebarSection::drive);
    shell_.setSelectedEventID(std::nullopt);
    drive_.loadSample(*url);
}

void AppState::exitSampleMode()
{
    if (!drive_.isSampleMode())
        return;
    shell_.setSelectedEventID(std::nullopt);
    drive_.exitSample();
}

// --- the Vault and triage ----------------------------------------------------

void AppState::setVaultURL(const QString &url)
{
    // The failure that asked for a Vault folder has its answer.
    const std::optional<DriveFailure> &failure = drive_.currentFailure();
    if (failure && *failure == DriveFailure::staleBookmark(BookmarkKey::vaultFolder))
        drive_.setCurrentFailure(std::nullopt);
    vault_.open(url);
}

void AppState::resolveVaultBookmark()
{
    const BookmarkResult r = engine_.resolveBookmark(BookmarkKey::vaultFolder);
    if (const QString *url = std::get_if<QString>(&r))
        setVaultURL(*url);
    else if (std::get<BookmarkError>(r).errorCase() == BookmarkError::stale)
        drive_.setCurrentFailure(DriveFailure::staleBookmark(BookmarkKey::vaultFolder));
}

void AppState::removeFromVault(const TeslaEvent &event)
{
    // A copy: the caller's event is often one of the Vault's, which this replaces.
    const QString eventID = event.id();
    if (!vault_.vaultURL())
        return;
    shell_.pauseActivePlayer();
    if (shell_.selectedVaultEventID() == eventID)
        shell_.setSelectedVaultEventID(std::nullopt);
    if (!vault_.remove(eventID)) {
        setLastArchiveReport(std::nullopt);
        return;
    }
    const auto t = triage_.triageStates().constFind(eventID);
    if (t != triage_.triageStates().cend() && t.value() == TriageState::kept)
        triage_.setTriage(TriageState::reviewed, eventID);
}

void AppState::removeFromVault(const QString &eventID)
{
    if (const std::optional<TeslaEvent> event = findVaultEvent(eventID))
        removeFromVault(*event);
}

void AppState::dismiss(const std::vector<TeslaEvent> &events)
{
    for (const TeslaEvent &e : events)
        triage_.setTriage(TriageState::dismissed, e.id());
}

std::vector<TeslaEvent> AppState::visibleInboxEvents() const
{
    const std::optional<DriveScan> &scan = drive_.driveScan();
    return scan ? triage_.visible(scan->events) : std::vector<TeslaEvent>();
}

std::optional<TeslaEvent> AppState::findEvent(const QString &id) const
{
    if (const std::optional<DriveScan> &scan = drive_.driveScan())
        for (const TeslaEvent &e : scan->events)
            if (e.id() == id)
                return e;
    return std::nullopt;
}

std::optional<TeslaEvent> AppState::findVaultEvent(const QString &id) const
{
    for (const TeslaEvent &e : vault_.vaultEvents())
        if (e.id() == id)
            return e;
    return std::nullopt;
}

std::vector<TeslaEvent> AppState::eventsWithIDs(const QStringList &ids) const
{
    std::vector<TeslaEvent> out;
    for (const QString &id : ids) {
        if (auto e = findEvent(id))
            out.push_back(*e);
        else if (auto kept = findVaultEvent(id))
            out.push_back(*kept);
    }
    return out;
}

void AppState::requestKeep(const std::vector<TeslaEvent> &events)
{
    if (isArchiving_)
        return;
    std::vector<TeslaEvent> toCopy;
    int alreadyKept = 0;
    for (const TeslaEvent &e : events) {
        // The drive's own files are what a keep copies, never the Vault's.
        if (auto onDrive = findEvent(e.id()))
            toCopy.push_back(*onDrive);
        else if (findVaultEvent(e.id()))
            ++alreadyKept;
        else
            toCopy.push_back(e);
    }
    if (toCopy.empty() && alreadyKept > 0) {
        ArchiveReport report;
        report.skippedDuplicates = alreadyKept;
        setLastArchiveReport(report);
        shell_.setShowArchiveReport(true);
        return;
    }
    keep(toCopy);
}

void AppState::takeBulkSelection(bool keepThem)
{
    // The ticks wait for the running keep rather than being dropped.
    if (keepThem && isArchiving_)
        return;
    const std::optional<DriveScan> &scan = drive_.driveScan();
    const std::vector<TeslaEvent> chosen = triage_.takeBulkSelection(scan ? scan->events : std::vector<TeslaEvent>());
    if (keepThem)
        requestKeep(chosen);
    else
        dismiss(chosen);
}

void AppState::keepBulkSelection() { takeBulkSelection(true); }
void AppState::dismissBulkSelection() { takeBulkSelection(false); }

// --- fields of the state's own -----------------------------------------------

void AppState::setIsArchiving(bool v)
{
    if (isArchiving_ == v)
        return;
    isArchiving_ = v;
    vault_.setKeepRunning(v);
    Q_EMIT isArchivingChanged();
}
void AppState::setArchiveProgress(std::optional<ArchiveProgress> v)
{
    setAndSignal(this, archiveProgress_, std::move(v), &AppState::archiveProgressChanged);
}
void AppState::setLastArchiveReport(std::optional<ArchiveReport> v)
{
    setAndSignal(this, lastArchiveReport_, std::move(v), &AppState::lastArchiveReportChanged);
}
void AppState::setHealthReport(std::optional<HealthReport> v)
{
    setAndSignal(this, healthReport_, std::move(v), &AppState::healthReportChanged);
}
