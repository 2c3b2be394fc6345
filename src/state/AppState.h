#pragma once

#include "engine/EngineFacade.h"
#include "health/HealthReport.h"
#include "model/ArchiveProgress.h"
#include "model/ArchiveReport.h"
#include "model/DriveScan.h"
#include "model/ReasonCategory.h"
#include "model/EventKind.h"
#include "model/ScanProgress.h"
#include "model/TeslaEvent.h"
#include "model/TriageState.h"
#include "model/VolumeCandidate.h"
#include "state/DriveFailure.h"
#include "state/EventItem.h"
#include "state/FocusWindow.h"
#include "state/SidebarSection.h"
#include "drive/DriveIdentity.h"
#include "vault/VaultIndex.h"
#include "vault/VaultVerifier.h"
#include "vault/VerificationLog.h"

#include <QFutureSynchronizer>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <qcoro/qcorotask.h>
#include <memory>
#include <optional>
#include <stop_token>

class QTimer;

// The single application state. Every user action and drive event enters
// here; every screen draws from it. Lives on the main thread; its tasks are
// coroutines bound to the main thread that suspend at the engine's futures.
//
// For QML every observed field is a property with a change signal emitted
// only on a real change. Optional fields read as null when absent (text
// fields as ""). Event lists are QVariantLists of EventItem gadgets; the
// other records (scan, progress, reports, candidates, index) are the
// QVariantMap of their JSON form. C++ callers use the typed accessors.
class AppState : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool hasCompletedOnboarding READ hasCompletedOnboarding WRITE setHasCompletedOnboarding NOTIFY hasCompletedOnboardingChanged)
    Q_PROPERTY(bool showOnboarding READ showOnboarding WRITE setShowOnboarding NOTIFY showOnboardingChanged)
    Q_PROPERTY(SidebarSection::Value selectedSection READ selectedSectionValue WRITE setSelectedSectionValue NOTIFY selectedSectionChanged)
    Q_PROPERTY(QString selectedEventID READ selectedEventIDForQml WRITE setSelectedEventIDForQml NOTIFY selectedEventIDChanged)
    Q_PROPERTY(QString selectedVaultEventID READ selectedVaultEventIDForQml WRITE setSelectedVaultEventIDForQml NOTIFY selectedVaultEventIDChanged)
    Q_PROPERTY(ColumnVisibility columnVisibility READ columnVisibility WRITE setColumnVisibility NOTIFY columnVisibilityChanged)
    Q_PROPERTY(bool isFocusMode READ isFocusMode NOTIFY isFocusModeChanged)
    Q_PROPERTY(QObject *activePlayerController READ activePlayerController WRITE setActivePlayerController)
    Q_PROPERTY(int resourceAccessEpoch READ resourceAccessEpoch NOTIFY resourceAccessEpochChanged)
    Q_PROPERTY(QVariant driveScan READ driveScanForQml NOTIFY driveScanChanged)
    Q_PROPERTY(QVariantList driveEvents READ driveEventsForQml NOTIFY driveScanChanged)
    Q_PROPERTY(QVariant scanProgress READ scanProgressForQml NOTIFY scanProgressChanged)
    Q_PROPERTY(bool isScanning READ isScanning NOTIFY isScanningChanged)
    Q_PROPERTY(bool isRevalidatingScan READ isRevalidatingScan NOTIFY isRevalidatingScanChanged)
    Q_PROPERTY(QVariantList driveVolumeCandidates READ driveVolumeCandidatesForQml NOTIFY driveVolumeCandidatesChanged)
    Q_PROPERTY(bool driveIsConnected READ driveIsConnected NOTIFY driveIsConnectedChanged)
    Q_PROPERTY(QVariant currentFailure READ currentFailureForQml NOTIFY currentFailureChanged)
    Q_PROPERTY(QString driveRootURL READ driveRootURLForQml NOTIFY driveRootURLChanged)
    Q_PROPERTY(bool isSampleMode READ isSampleMode NOTIFY isSampleModeChanged)
    Q_PROPERTY(bool showEncryptionGuide READ showEncryptionGuide WRITE setShowEncryptionGuide NOTIFY showEncryptionGuideChanged)
    Q_PROPERTY(QString vaultURL READ vaultURLForQml NOTIFY vaultURLChanged)
    Q_PROPERTY(QVariantMap vaultIndex READ vaultIndexForQml NOTIFY vaultIndexChanged)
    Q_PROPERTY(QVariantList vaultEvents READ vaultEventsForQml NOTIFY vaultEventsChanged)
    Q_PROPERTY(QVariantMap triageStates READ triageStatesForQml NOTIFY triageStatesChanged)
    Q_PROPERTY(bool isArchiving READ isArchiving NOTIFY isArchivingChanged)
    Q_PROPERTY(QVariant archiveProgress READ archiveProgressForQml NOTIFY archiveProgressChanged)
    Q_PROPERTY(QVariant lastArchiveReport READ lastArchiveReportForQml NOTIFY lastArchiveReportChanged)
    Q_PROPERTY(bool isArchivePaused READ isArchivePaused NOTIFY isArchivePausedChanged)
    Q_PROPERTY(bool isVerifyingVault READ isVerifyingVault NOTIFY verificationChanged)
    Q_PROPERTY(bool showArchiveReport READ showArchiveReport WRITE setShowArchiveReport NOTIFY showArchiveReportChanged)
    Q_PROPERTY(QVariant healthReport READ healthReportForQml NOTIFY healthReportChanged)
    Q_PROPERTY(QString filterState READ filterStateForQml WRITE setFilterStateForQml NOTIFY filterStateChanged)
    Q_PROPERTY(QString filterReason READ filterReasonForQml WRITE setFilterReasonForQml NOTIFY filterReasonChanged)
    Q_PROPERTY(QString filterKind READ filterKindForQml WRITE setFilterKindForQml NOTIFY filterKindChanged)
    Q_PROPERTY(QStringList selectedEventIDsForBulk READ selectedEventIDsForBulkForQml WRITE setSelectedEventIDsForBulkForQml NOTIFY selectedEventIDsForBulkChanged)
    Q_PROPERTY(QVariantList visibleInboxEvents READ visibleInboxEventsForQml NOTIFY visibleInboxEventsChanged)
    // The drive's events recorded with the car's encryption on, and those of
    // them not yet watchable here for want of keys.
    Q_PROPERTY(int encryptedEventCount READ encryptedEventCount NOTIFY keyCoverageChanged)
    Q_PROPERTY(int lockedEventCount READ lockedEventCount NOTIFY keyCoverageChanged)
    // Event id to "locked" or "unlocked", for the encrypted events of the drive and the Vault.
    Q_PROPERTY(QVariantMap lockStates READ lockStatesForQml NOTIFY keyCoverageChanged)

public:
    enum class ColumnVisibility : quint8 { all, detailOnly };
    Q_ENUM(ColumnVisibility)

    static inline const QString onboardingKey = QStringLiteral("hasCompletedOnboarding");
    // Whether the Vault is re-read in the background once a week (on unless set off).
    static inline const QString verifyWeeklyKey = QStringLiteral("KHVerifyVaultWeekly");
    static constexpr double verifyEverySeconds = 7 * 24 * 3600;
    static inline const QString gettingStartedPhase = QStringLiteral("Getting started…");
    static inline const QString loadingSamplePhase = QStringLiteral("Loading sample footage…");
    // Overrides where the sample footage is looked for (tests, odd installs).
    static inline const char *sampleFootageEnv = "KEELHOLD_SAMPLE_FOOTAGE";

    // The engine must outlive the state.
    explicit AppState(EngineFacade &engine, QObject *parent = nullptr);
    ~AppState() override;

    EngineFacade &engine() const { return engine_; }

    // The root view's first appearance: candidates, drive events, and with
    // onboarding done the drive bookmark and then the Vault's.
    Q_INVOKABLE void rootViewAppeared();

    // Focus mode.
    void setFocusWindow(FocusWindow *window);
    Q_INVOKABLE void attachWindow(QObject *quickWindow);
    Q_INVOKABLE void toggleFocusMode();
    Q_INVOKABLE void exitFocusMode(bool alsoExitFullScreen);

    // Drive lifecycle.
    Q_INVOKABLE void startWatchingDriveEvents();
    // The wizard's appearance: the mounted candidates, listed anew.
    Q_INVOKABLE void refreshVolumeCandidates();
    Q_INVOKABLE void resolveDriveBookmark();
    Q_INVOKABLE void beginScan(const QString &root);
    Q_INVOKABLE void recomputeHealth();
    static std::optional<QString> sampleFootageURL();
    Q_INVOKABLE QString sampleFootagePath() const { return sampleFootageURL().value_or(QString()); }
    Q_INVOKABLE void loadSampleFootage();
    Q_INVOKABLE void exitSampleMode();

    // Keeping, triage and the Vault.
    Q_INVOKABLE void resolveVaultBookmark();
    Q_INVOKABLE void setVaultURL(const QString &url);
    Q_INVOKABLE void loadVaultEvents();
    void removeFromVault(const TeslaEvent &event);
    Q_INVOKABLE void removeFromVault(const QString &eventID);
    void setTriage(TriageState state, const TeslaEvent &event);
    Q_INVOKABLE void setTriage(const QString &state, const QString &eventID);
    TriageState triageState(const TeslaEvent &event) const;
    Q_INVOKABLE QString triageStateFor(const QString &eventID) const;
    void keep(const std::vector<TeslaEvent> &events);
    void dismiss(const std::vector<TeslaEvent> &events);
    // The screens' way to keep: ignored while a keep runs, so that there is
    // one at a time and Cancel always reaches it. An event that is in the
    // Vault and not on the drive has nothing to copy: the report says so.
    void requestKeep(const std::vector<TeslaEvent> &events);
    // Ids of the drive's events, else of the Vault's.
    Q_INVOKABLE void keepIDs(const QStringList &eventIDs);
    Q_INVOKABLE void dismissIDs(const QStringList &eventIDs);
    std::vector<TeslaEvent> visibleInboxEvents() const;

    // Bulk selection: a tap toggles a row; a bulk action takes the visible
    // ticked rows in list order and then empties the set.
    Q_INVOKABLE void toggleBulkSelection(const QString &eventID);
    Q_INVOKABLE void keepBulkSelection();
    Q_INVOKABLE void dismissBulkSelection();

    // The running keep's handle; the progress overlay cancels through it.
    // A keep paused for its drive ends there, with what it had done.
    bool hasCurrentArchiveTask() const { return bool(currentArchiveTask_) || bool(interruptedKeep_); }
    Q_INVOKABLE void cancelCurrentArchiveTask();
    // A keep whose drive went away waits for that drive: it goes on by
    // itself when the same drive (and TeslaCam folder) is mounted again.
    bool isArchivePaused() const { return interruptedKeep_.has_value(); }

    // A keep asked for with no Vault folder waits for one: the screens ask
    // (vaultFolderWanted), and the keep goes on once a folder is set, or is
    // dropped when the question is declined.
    bool hasKeepAwaitingVault() const { return !keepAwaitingVault_.empty(); }
    Q_INVOKABLE void declineVaultFolder();

    // Re-reading the Vault: the events named, or all. One check at a time;
    // one the user asked for shows its progress (verificationProgress),
    // the weekly one runs unseen and only its findings show.
    void verifyVault(const QStringList &eventIDs = {});
    Q_INVOKABLE void verifyWholeVault() { verifyVault(); }
    Q_INVOKABLE void verifyEvent(const QString &eventID) { verifyVault({eventID}); }
    Q_INVOKABLE void cancelVerification();
    bool isVerifyingVault() const { return currentVerification_ && verificationShown_; }
    const std::optional<VaultVerifier::Progress> &verificationProgress() const { return verificationProgress_; }
    const VerificationLog &verificationLog() const { return verificationLog_; }
    // Starts the weekly check when it is due and allowed; answers whether it did.
    bool verifyVaultIfDue();

    // Typed accessors.
    bool hasCompletedOnboarding() const { return hasCompletedOnboarding_; }
    void setHasCompletedOnboarding(bool v);
    bool showOnboarding() const { return showOnboarding_; }
    void setShowOnboarding(bool v);
    SidebarSection selectedSection() const { return selectedSection_; }
    void setSelectedSection(SidebarSection s);
    const std::optional<QString> &selectedEventID() const { return selectedEventID_; }
    void setSelectedEventID(std::optional<QString> id);
    const std::optional<QString> &selectedVaultEventID() const { return selectedVaultEventID_; }
    void setSelectedVaultEventID(std::optional<QString> id);
    ColumnVisibility columnVisibility() const { return columnVisibility_; }
    void setColumnVisibility(ColumnVisibility v);
    bool isFocusMode() const { return isFocusMode_; }
    // The player the window shows; the state only ever pauses it.
    QObject *activePlayerController() const { return activePlayerController_.data(); }
    void setActivePlayerController(QObject *controller) { activePlayerController_ = controller; }
    int resourceAccessEpoch() const { return resourceAccessEpoch_; }
    const std::optional<DriveScan> &driveScan() const { return driveScan_; }
    const std::optional<ScanProgress> &scanProgress() const { return scanProgress_; }
    bool isScanning() const { return isScanning_; }
    bool isRevalidatingScan() const { return isRevalidatingScan_; }
    const std::vector<VolumeCandidate> &driveVolumeCandidates() const { return driveVolumeCandidates_; }
    bool driveIsConnected() const { return driveIsConnected_; }
    const std::optional<DriveFailure> &currentFailure() const { return currentFailure_; }
    const std::optional<QString> &driveRootURL() const { return driveRootURL_; }
    bool isSampleMode() const { return isSampleMode_; }
    bool showEncryptionGuide() const { return showEncryptionGuide_; }
    void setShowEncryptionGuide(bool v);
    const std::optional<QString> &vaultURL() const { return vaultURL_; }
    const VaultIndex &vaultIndex() const { return vaultIndex_; }
    const std::vector<TeslaEvent> &vaultEvents() const { return vaultEvents_; }
    const QHash<QString, TriageState> &triageStates() const { return triageStates_; }
    bool isArchiving() const { return isArchiving_; }
    const std::optional<ArchiveProgress> &archiveProgress() const { return archiveProgress_; }
    const std::optional<ArchiveReport> &lastArchiveReport() const { return lastArchiveReport_; }
    bool showArchiveReport() const { return showArchiveReport_; }
    void setShowArchiveReport(bool v);
    const std::optional<HealthReport> &healthReport() const { return healthReport_; }
    const std::optional<TriageState> &filterState() const { return filterState_; }
    void setFilterState(std::optional<TriageState> v);
    const std::optional<ReasonCategory> &filterReason() const { return filterReason_; }
    void setFilterReason(std::optional<ReasonCategory> v);
    const std::optional<EventKind> &filterKind() const { return filterKind_; }
    void setFilterKind(std::optional<EventKind> v);
    const QSet<QString> &selectedEventIDsForBulk() const { return selectedEventIDsForBulk_; }
    void setSelectedEventIDsForBulk(QSet<QString> ids);

    // The QML faces of the fields above.
    SidebarSection::Value selectedSectionValue() const { return selectedSection_.value(); }
    void setSelectedSectionValue(SidebarSection::Value v) { setSelectedSection(v); }
    QString selectedEventIDForQml() const { return selectedEventID_.value_or(QString()); }
    void setSelectedEventIDForQml(const QString &id);
    QString selectedVaultEventIDForQml() const { return selectedVaultEventID_.value_or(QString()); }
    void setSelectedVaultEventIDForQml(const QString &id);
    QVariant driveScanForQml() const;
    QVariantList driveEventsForQml() const;
    QVariant scanProgressForQml() const;
    QVariantList driveVolumeCandidatesForQml() const;
    QVariant currentFailureForQml() const;
    QString driveRootURLForQml() const { return driveRootURL_.value_or(QString()); }
    QString vaultURLForQml() const { return vaultURL_.value_or(QString()); }
    QVariantMap vaultIndexForQml() const { return vaultIndex_.toJson().toVariantMap(); }
    QVariantList vaultEventsForQml() const { return EventItem::listFor(vaultEvents_); }
    QVariantMap triageStatesForQml() const;
    QVariant archiveProgressForQml() const;
    QVariant lastArchiveReportForQml() const;
    QVariant healthReportForQml() const;
    QString filterStateForQml() const { return filterState_ ? filterState_->rawValue() : QString(); }
    void setFilterStateForQml(const QString &raw);
    QString filterReasonForQml() const { return filterReason_ ? filterReason_->rawValue() : QString(); }
    void setFilterReasonForQml(const QString &raw);
    QString filterKindForQml() const { return filterKind_ ? filterKind_->rawValue() : QString(); }
    void setFilterKindForQml(const QString &raw);
    QStringList selectedEventIDsForBulkForQml() const;
    void setSelectedEventIDsForBulkForQml(const QStringList &ids);
    QVariantList visibleInboxEventsForQml() const { return EventItem::listFor(visibleInboxEvents()); }

    // The end of the process: held access is given up.
    void endHeldAccess();

    // Encrypted footage: which clips the keys held now unlock, for the drive's
    // and the Vault's events; asked anew after every scan, Vault listing and unlock.
    const QHash<QString, KeyCoverage> &keyCoverage() const { return keyCoverage_; }
    Q_INVOKABLE void refreshKeyCoverage();
    // "locked", "unlocked", or "" for a clear event.
    Q_INVOKABLE QString lockState(const QString &eventID) const;
    int encryptedEventCount() const;
    int lockedEventCount() const;
    QVariantMap lockStatesForQml() const;
    // The drive's or the Vault's events with these ids, in the order given.
    std::vector<TeslaEvent> eventsWithIDs(const QStringList &ids) const { return eventsForIDs(ids); }

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

private:
    void pauseActivePlayer();
    void resolveBookmark(BookmarkKey key, void (AppState::*open)(const QString &));
    enum class AccessSlot { drive, vault };
    void beginAccess(AccessSlot slot, const QString &url);
    void beginDriveAccess(const QString &url) { beginAccess(AccessSlot::drive, url); }
    void beginVaultAccess(const QString &url) { beginAccess(AccessSlot::vault, url); }
    void evaluateForFailure(const DriveScan &scan);
    static QString scanCacheKey(const QString &root);
    void handleDriveEvent(const DriveEvent &event);
    void onWindowWillExitFullScreen();
    std::optional<TeslaEvent> findEvent(const QString &id) const;
    std::optional<TeslaEvent> findVaultEvent(const QString &id) const;
    std::vector<TeslaEvent> eventsForIDs(const QStringList &ids) const;
    void takeBulkSelection(bool keepThem);

    // Tasks bound to the main thread; each holds the state weakly.
    static QCoro::Task<void> loadTriageTask(QPointer<AppState> self);
    static QCoro::Task<void> scanTask(QPointer<AppState> self, QString root, quint64 run);
    static QCoro::Task<void> sampleTask(QPointer<AppState> self, QString root, quint64 run);
    // True while the scan started as `run` is still the one on screen.
    static bool scanIsCurrent(const QPointer<AppState> &self, quint64 run) { return self && self->scanRun_ == run; }
    static QCoro::Task<void> watchTask(QPointer<AppState> self);
    // earlier: the report of the same keep before its drive went away.
    static QCoro::Task<void> keepTask(QPointer<AppState> self, ArchivePlan plan, QString vaultURL,
                                      std::vector<TeslaEvent> events, std::shared_ptr<std::stop_source> task,
                                      std::optional<ArchiveReport> earlier);
    void finishKeep(const ArchiveReport &report);
    // Where the drive of a keep is: asked as the keep starts, while it is there.
    static QCoro::Task<void> resumeTask(QPointer<AppState> self, QString mountPoint);
    void noteMountForKeep(const QString &mountPoint);
    static QCoro::Task<void> verifyTask(QPointer<AppState> self, QString vaultURL, QStringList eventIDs,
                                        std::shared_ptr<std::stop_source> task);
    static QCoro::Task<void> vaultEventsTask(QPointer<AppState> self, QString vaultURL);
    static QCoro::Task<void> keyCoverageTask(QPointer<AppState> self, std::vector<TeslaEvent> events, quint64 run);

    void setDriveScan(std::optional<DriveScan> v);
    void setScanProgress(std::optional<ScanProgress> v);
    void setIsScanning(bool v);
    void setIsRevalidatingScan(bool v);
    void setDriveVolumeCandidates(std::vector<VolumeCandidate> v);
    void setDriveIsConnected(bool v);
    void setCurrentFailure(std::optional<DriveFailure> v);
    void setDriveRootURL(std::optional<QString> v);
    void setIsSampleMode(bool v);
    void setIsFocusMode(bool v);
    void setVaultURLField(std::optional<QString> v);
    void setVaultIndex(VaultIndex v);
    void setVaultEvents(std::vector<TeslaEvent> v);
    void setTriageStateEntry(const QString &id, TriageState s);
    void setIsArchiving(bool v);
    void setArchiveProgress(std::optional<ArchiveProgress> v);
    void setLastArchiveReport(std::optional<ArchiveReport> v);
    void setVerificationLog(VerificationLog v);
    void setHealthReport(std::optional<HealthReport> v);
    void raiseResourceAccessEpoch();

    EngineFacade &engine_;
    bool hasCompletedOnboarding_ = false;
    bool showOnboarding_ = true;
    SidebarSection selectedSection_ = SidebarSection::drive;
    std::optional<QString> selectedEventID_;
    std::optional<QString> selectedVaultEventID_;
    ColumnVisibility columnVisibility_ = ColumnVisibility::all;
    bool isFocusMode_ = false;
    QPointer<QObject> activePlayerController_;
    int resourceAccessEpoch_ = 0;
    std::optional<DriveScan> driveScan_;
    std::optional<ScanProgress> scanProgress_;
    bool isScanning_ = false;
    bool isRevalidatingScan_ = false;
    std::vector<VolumeCandidate> driveVolumeCandidates_;
    bool driveIsConnected_ = false;
    std::optional<DriveFailure> currentFailure_;
    std::optional<QString> driveRootURL_;
    bool isSampleMode_ = false;
    bool showEncryptionGuide_ = false;
    std::optional<QString> vaultURL_;
    VaultIndex vaultIndex_;
    std::vector<TeslaEvent> vaultEvents_;
    QHash<QString, TriageState> triageStates_;
    bool isArchiving_ = false;
    std::optional<ArchiveProgress> archiveProgress_;
    std::optional<ArchiveReport> lastArchiveReport_;
    bool showArchiveReport_ = false;
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
    bool resumeCheckRunning_ = false;
    std::vector<TeslaEvent> keepAwaitingVault_;
    std::shared_ptr<std::stop_source> currentVerification_;
    bool verificationShown_ = false; // the user asked for it, so its progress shows
    std::optional<VaultVerifier::Progress> verificationProgress_;
    VerificationLog verificationLog_;
    QTimer *weeklyVerification_ = nullptr;
    std::optional<HealthReport> healthReport_;
    std::optional<TriageState> filterState_;
    std::optional<ReasonCategory> filterReason_;
    std::optional<EventKind> filterKind_;
    QSet<QString> selectedEventIDsForBulk_;
    std::optional<QString> accessedDriveURL_;
    std::optional<QString> accessedVaultURL_;
    // Raised by every new scan, sample load and sample exit, so a late
    // answer from an earlier one never lands on the drive now shown.
    quint64 scanRun_ = 0;
    bool driveWatchTaskStarted_ = false;
    bool rootViewAppeared_ = false;
    QPointer<FocusWindow> focusWindow_;
    // The detached Vault index loads read through the engine: the state
    // waits for them as it goes, so none outlives the engine it was given.
    QFutureSynchronizer<void> detachedLoads_;
    QHash<QString, KeyCoverage> keyCoverage_;
    quint64 keyCoverageRun_ = 0;
};
