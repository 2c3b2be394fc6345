#pragma once

#include "engine/EngineFacade.h"
#include "engine/SampleFootage.h"
#include "health/HealthReport.h"
#include "model/ArchiveProgress.h"
#include "model/ArchiveReport.h"
#include "model/TeslaEvent.h"
#include "model/TriageState.h"
#include "state/ActivityPass.h"
#include "state/AutoKeep.h"
#include "state/DriveSession.h"
#include "state/ShellState.h"
#include "state/TriageFilters.h"
#include "state/VaultSession.h"
#include "drive/DriveIdentity.h"

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <qcoro/qcorotask.h>
#include <memory>
#include <deque>
#include <optional>
#include <stop_token>

// The single application state. Every user action and drive event enters
// here; every screen draws from it. It composes the window's own state, the
// drive, the Vault and the triage marks, and does itself what needs them
// together: keeping, the drive's health, and which encrypted events the
// keys held now unlock. Lives on the main thread; its tasks are coroutines
// bound to the main thread that suspend at the engine's futures.
//
// Every observed field has a change signal emitted only on a real change.
// The window reads it through its QML face in the window's floor.
class AppState : public QObject {
    Q_OBJECT
public:
    using ColumnVisibility = ShellState::ColumnVisibility;

    static inline const QString &onboardingKey = ShellState::onboardingKey;
    static inline const QString &verifyWeeklyKey = VaultSession::verifyWeeklyKey;
    static constexpr double verifyEverySeconds = VaultSession::verifyEverySeconds;
    static inline const QString &gettingStartedPhase = DriveSession::gettingStartedPhase;
    static inline const QString &loadingSamplePhase = DriveSession::loadingSamplePhase;
    static constexpr const char *sampleFootageEnv = SampleFootage::env;

    // The engine must outlive the state.
    explicit AppState(EngineFacade &engine, QObject *parent = nullptr);
    ~AppState() override;

    EngineFacade &engine() const { return engine_; }

    // The root view's first appearance: candidates, drive events, and with
    // onboarding done the drive bookmark and then the Vault's.
    void rootViewAppeared();

    // Focus mode.
    void setFocusWindow(FocusWindow *window) { shell_.setFocusWindow(window); }
    void attachWindow(QObject *quickWindow);
    void toggleFocusMode() { shell_.toggleFocusMode(); }
    void exitFocusMode(bool alsoExitFullScreen) { shell_.exitFocusMode(alsoExitFullScreen); }

    // Drive lifecycle.
    void startWatchingDriveEvents() { drive_.startWatchingDriveEvents(); }
    // The wizard's appearance: the mounted candidates, listed anew.
    void refreshVolumeCandidates() { drive_.refreshVolumeCandidates(); }
    void resolveDriveBookmark() { drive_.resolveBookmark(); }
    void beginScan(const QString &root) { drive_.beginScan(root); }
    void recomputeHealth();
    static std::optional<QString> sampleFootageURL() { return SampleFootage::folder(); }
    void loadSampleFootage();
    void exitSampleMode();

    // Keeping, triage and the Vault.
    void resolveVaultBookmark();
    void setVaultURL(const QString &url);
    void loadVaultEvents() { vault_.loadEvents(); }
    void removeFromVault(const TeslaEvent &event);
    void removeFromVault(const QString &eventID);
    void setTriage(TriageState state, const TeslaEvent &event) { triage_.setTriage(state, event.id()); }
    void setTriage(TriageState state, const QString &eventID) { triage_.setTriage(state, eventID); }
    TriageState triageState(const TeslaEvent &event) const { return triage_.triageState(event.id()); }
    TriageState triageState(const QString &eventID) const { return triage_.triageState(eventID); }
    // automatic: nobody asked for this keep (a drive that keeps itself): it
    // ends with a notification rather than the report sheet, and a drive
    // that goes away ends it rather than pausing it.
    void keep(const std::vector<TeslaEvent> &events, bool automatic = false);
    void dismiss(const std::vector<TeslaEvent> &events);
    // The screens' way to keep: ignored while a keep runs, so that there is
    // one at a time and Cancel always reaches it. An event that is in the
    // Vault and not on the drive has nothing to copy: the report says so.
    void requestKeep(const std::vector<TeslaEvent> &events);
    // Ids of the drive's events, else of the Vault's.
    void keepIDs(const QStringList &eventIDs) { requestKeep(eventsWithIDs(eventIDs)); }
    void dismissIDs(const QStringList &eventIDs) { dismiss(eventsWithIDs(eventIDs)); }
    std::vector<TeslaEvent> visibleInboxEvents() const;

    // Bulk selection: a tap toggles a row; a bulk action takes the visible
    // ticked rows in list order and then empties the set.
    void toggleBulkSelection(const QString &eventID) { triage_.toggleBulkSelection(eventID); }
    void keepBulkSelection();
    void dismissBulkSelection();

    // The running keep's handle; the progress overlay cancels through it.
    // A keep paused for its drive ends there, with what it had done.
    bool hasCurrentArchiveTask() const { return bool(currentArchiveTask_) || bool(interruptedKeep_); }
    void cancelCurrentArchiveTask();
    // A keep whose drive went away waits for that drive: it goes on by
    // itself when the same drive (and TeslaCam folder) is mounted again.
    bool isArchivePaused() const { return interruptedKeep_.has_value(); }

    // A keep asked for with no Vault folder waits for one: the screens ask
    // (vaultFolderWanted), and the keep goes on once a folder is set, or is
    // dropped when the question is declined.
    bool hasKeepAwaitingVault() const { return !keepAwaitingVault_.empty(); }
    void declineVaultFolder() { keepAwaitingVault_.clear(); }

    // Re-reading the Vault: the events named, or all.
    void verifyVault(const QStringList &eventIDs = {}) { vault_.verify(eventIDs); }
    void cancelVerification() { vault_.cancelVerification(); }
    bool isVerifyingVault() const { return vault_.isVerifying(); }
    const std::optional<VaultVerifier::Progress> &verificationProgress() const { return vault_.verificationProgress(); }
    const VerificationLog &verificationLog() const { return vault_.verificationLog(); }
    // Starts the weekly check when it is due and allowed; answers whether it did.
    bool verifyVaultIfDue() { return vault_.verifyIfDue(); }

    // Typed accessors.
    bool hasCompletedOnboarding() const { return shell_.hasCompletedOnboarding(); }
    void setHasCompletedOnboarding(bool v) { shell_.setHasCompletedOnboarding(v); }
    bool showOnboarding() const { return shell_.showOnboarding(); }
    void setShowOnboarding(bool v) { shell_.setShowOnboarding(v); }
    SidebarSection selectedSection() const { return shell_.selectedSection(); }
    void setSelectedSection(SidebarSection s) { shell_.setSelectedSection(s); }
    const std::optional<QString> &selectedEventID() const { return shell_.selectedEventID(); }
    void setSelectedEventID(std::optional<QString> id) { shell_.setSelectedEventID(std::move(id)); }
    const std::optional<QString> &selectedVaultEventID() const { return shell_.selectedVaultEventID(); }
    void setSelectedVaultEventID(std::optional<QString> id) { shell_.setSelectedVaultEventID(std::move(id)); }
    ColumnVisibility columnVisibility() const { return shell_.columnVisibility(); }
    void setColumnVisibility(ColumnVisibility v) { shell_.setColumnVisibility(v); }
    bool isFocusMode() const { return shell_.isFocusMode(); }
    // The player the window shows; the state only ever pauses it.
    QObject *activePlayerController() const { return shell_.activePlayerController(); }
    void setActivePlayerController(QObject *controller) { shell_.setActivePlayerController(controller); }
    int resourceAccessEpoch() const { return resourceAccessEpoch_; }
    const std::optional<DriveScan> &driveScan() const { return drive_.driveScan(); }
    const std::optional<ScanProgress> &scanProgress() const { return drive_.scanProgress(); }
    bool isScanning() const { return drive_.isScanning(); }
    bool isRevalidatingScan() const { return drive_.isRevalidatingScan(); }
    const std::vector<VolumeCandidate> &driveVolumeCandidates() const { return drive_.driveVolumeCandidates(); }
    bool driveIsConnected() const { return drive_.driveIsConnected(); }
    const std::optional<DriveFailure> &currentFailure() const { return drive_.currentFailure(); }
    const std::optional<QString> &driveRootURL() const { return drive_.driveRootURL(); }
    bool isSampleMode() const { return drive_.isSampleMode(); }
    bool showEncryptionGuide() const { return shell_.showEncryptionGuide(); }
    void setShowEncryptionGuide(bool v) { shell_.setShowEncryptionGuide(v); }
    const std::optional<QString> &vaultURL() const { return vault_.vaultURL(); }
    const VaultIndex &vaultIndex() const { return vault_.vaultIndex(); }
    const std::vector<TeslaEvent> &vaultEvents() const { return vault_.vaultEvents(); }
    const QHash<QString, TriageState> &triageStates() const { return triage_.triageStates(); }
    bool isArchiving() const { return isArchiving_; }
    const std::optional<ArchiveProgress> &archiveProgress() const { return archiveProgress_; }
    const std::optional<ArchiveReport> &lastArchiveReport() const { return lastArchiveReport_; }
    bool showArchiveReport() const { return shell_.showArchiveReport(); }
    void setShowArchiveReport(bool v) { shell_.setShowArchiveReport(v); }
    const std::optional<HealthReport> &healthReport() const { return healthReport_; }
    const std::optional<TriageState> &filterState() const { return triage_.filterState(); }
    void setFilterState(std::optional<TriageState> v) { triage_.setFilterState(v); }
    const std::optional<ReasonCategory> &filterReason() const { return triage_.filterReason(); }
    void setFilterReason(std::optional<ReasonCategory> v) { triage_.setFilterReason(v); }
    const std::optional<EventKind> &filterKind() const { return triage_.filterKind(); }
    void setFilterKind(std::optional<EventKind> v) { triage_.setFilterKind(v); }
    const QSet<QString> &selectedEventIDsForBulk() const { return triage_.selectedEventIDsForBulk(); }
    void setSelectedEventIDsForBulk(QSet<QString> ids) { triage_.setSelectedEventIDsForBulk(std::move(ids)); }

    // Drives that keep themselves when connected: chosen per drive, offered
    // once after the first keep from a drive (autoKeepOffer), and in the
    // Vault screen for the drive on screen (shownDrive).
    AutoKeep &autoKeep() { return autoKeep_; }
    const std::optional<DriveIdentity> &autoKeepOffer() const { return autoKeepOffer_; }
    // The answer, or the offer passed over (on false): it isn't made again.
    void answerAutoKeepOffer(bool on, bool recent);
    const std::optional<DriveIdentity> &shownDrive() const { return shownDrive_; }
    bool isKeepAutomatic() const { return keepAutomatic_; }
    // An export ended in the window: the desktop may be told (a long one,
    // while the window is in the background).
    void noteExportEnded(double seconds, const QString &title, const QString &sentence)
    {
        Q_EMIT exportEnded(seconds, title, sentence);
    }
    // Drives that keep themselves, read and waiting for the keep before them.
    int drivesWaitingToKeep() const { return int(arrivals_.size()); }

    // The end of the process: held access is given up.
    void endHeldAccess();

    // Encrypted footage: which clips the keys held now unlock, for the drive's
    // and the Vault's events; asked anew after every scan, Vault listing and unlock.
    const QHash<QString, KeyCoverage> &keyCoverage() const { return keyCoverage_; }
    void refreshKeyCoverage();
    // "locked", "unlocked", or "" for a clear event.
    QString lockState(const QString &eventID) const;
    int encryptedEventCount() const;
    int lockedEventCount() const;
    // Event id to lockState, for the encrypted events of the drive and the Vault.
    QHash<QString, QString> lockStates() const;
    // Where something happened in the drive's parked and saved events,
    // worked out after each probe and waiting while a keep runs.
    ActivityPass &activity() { return activity_; }
    const ActivityPass &activity() const { return activity_; }
    // The drive's or the Vault's events with these ids, in the order given.
    std::vector<TeslaEvent> eventsWithIDs(const QStringList &ids) const;

Q_SIGNALS:
    void hasCompletedOnboardingChanged();
    void showOnboardingChanged();
    void selectedSectionChanged();
    void selectedEventIDChanged();
    void selectedVaultEventIDChanged();
    void columnVisibilityChanged();
    void isFocusModeChanged();
    void resourceAccessEpochChanged();
    void driveScanChanged();
    void scanProgressChanged();
    void isScanningChanged();
    void isRevalidatingScanChanged();
    void driveVolumeCandidatesChanged();
    void driveIsConnectedChanged();
    void currentFailureChanged();
    void driveRootURLChanged();
    void isSampleModeChanged();
    void showEncryptionGuideChanged();
    void vaultURLChanged();
    void vaultIndexChanged();
    void vaultEventsChanged();
    void triageStatesChanged();
    void isArchivingChanged();
    void archiveProgressChanged();
    void lastArchiveReportChanged();
    void isArchivePausedChanged();
    void vaultFolderWanted();
    // A drive mounted while a keep waits was looked at: the keep's own
    // drive (it goes on), or another one (it goes on waiting).
    void keepDriveChecked(const QString &mountPoint, bool sameDrive);
    void verificationChanged();
    void verificationProgressChanged();
    void verificationLogChanged();
    void showArchiveReportChanged();
    void healthReportChanged();
    void filterStateChanged();
    void filterReasonChanged();
    void filterKindChanged();
    void selectedEventIDsForBulkChanged();
    void visibleInboxEventsChanged();
    void keyCoverageChanged();
    void autoKeepOfferChanged();
    void shownDriveChanged();
    // A keep ended (a paused one hasn't): how long it ran, whether nobody
    // asked for it, and the name of the drive it read.
    void keepEnded(const ArchiveReport &report, bool automatic, double seconds, const QString &driveName);
    // A drive that doesn't keep itself came in with Sentry events the Vault
    // doesn't hold.
    void unkeptSentryArrived(const QString &driveName, int count, const QString &mountPoint);
    void exportEnded(double seconds, const QString &title, const QString &sentence);

private:
    void relayPartSignals();
    void raiseResourceAccessEpoch();
    std::optional<TeslaEvent> findEvent(const QString &id) const;
    std::optional<TeslaEvent> findVaultEvent(const QString &id) const;
    void takeBulkSelection(bool keepThem);

    // earlier: the report of the same keep before its drive went away.
    static QCoro::Task<void> keepTask(QPointer<AppState> self, ArchivePlan plan, QString vaultURL,
                                      std::vector<TeslaEvent> events, std::shared_ptr<std::stop_source> task,
                                      std::optional<ArchiveReport> earlier);
    void finishKeep(const ArchiveReport &report);
    // Where the drive of a keep is: asked as the keep starts, while it is there.
    static QCoro::Task<void> resumeTask(QPointer<AppState> self, QString mountPoint);
    void noteMountForKeep(const QString &mountPoint);
    // A drive came in: kept if it keeps itself, else told about if it holds
    // Sentry events the Vault lacks. Drives wait their turn behind any keep.
    // atStart: mounted before Keelhold opened; only a drive that keeps itself is read then.
    static QCoro::Task<void> arrivalTask(QPointer<AppState> self, QString mountPoint, bool atStart = false);
    void startWaitingAutoKeep();
    static QCoro::Task<void> identifyShownDrive(QPointer<AppState> self, QString root);
    static QCoro::Task<void> keyCoverageTask(QPointer<AppState> self, std::vector<TeslaEvent> events, quint64 run);

    void setIsArchiving(bool v);
    void setArchiveProgress(std::optional<ArchiveProgress> v);
    void setLastArchiveReport(std::optional<ArchiveReport> v);
    void setHealthReport(std::optional<HealthReport> v);

    EngineFacade &engine_;
    ShellState shell_;
    TriageFilters triage_;
    DriveSession drive_;
    VaultSession vault_;
    int resourceAccessEpoch_ = 0;
    bool rootViewAppeared_ = false;
    bool isArchiving_ = false;
    std::optional<ArchiveProgress> archiveProgress_;
    std::optional<ArchiveReport> lastArchiveReport_;
    std::shared_ptr<std::stop_source> currentArchiveTask_;
    // The drive a running keep reads from, asked as it started.
    struct KeepDrive {
        DriveIdentity drive;
        QString mountPoint; // where the events' paths say it is
    };
    std::optional<KeepDrive> keepDrive_;
    // A keep cut off by its drive going away, waiting for that drive.
    struct InterruptedKeep {
        std::vector<TeslaEvent> events; // as handed to keep, paths on the old mount
        ArchiveReport soFar;
        QString vaultURL;
        KeepDrive from;
    };
    std::optional<InterruptedKeep> interruptedKeep_;
    // Mount points that appeared while a keep ran: its drive may have come
    // back before the run saw it go.
    QStringList mountsDuringKeep_;
    std::vector<TeslaEvent> keepAwaitingVault_;
    std::optional<HealthReport> healthReport_;
    QHash<QString, KeyCoverage> keyCoverage_;
    quint64 keyCoverageRun_ = 0;
    ActivityPass activity_;
    AutoKeep autoKeep_;
    bool keepAutomatic_ = false;
    QElapsedTimer keepClock_;
    std::optional<DriveIdentity> autoKeepOffer_;
    std::optional<DriveIdentity> shownDrive_;
    // Drives that keep themselves, waiting for the keep before them.
    struct Arrival {
        DriveIdentity drive;
        QString mountPoint;
        std::vector<TeslaEvent> events; // new to the Vault when the drive came in
    };
    std::deque<Arrival> arrivals_;
    // Drives already mounted at start are looked at once the Vault is known.
    bool arrivalsAtStartSeen_ = false;
};
