#pragma once

#include "state/AppState.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantList>
#include <QVariantMap>

// The application state as the window's QML reads it: each field the
// screens show as a property with the state's own change signal, absent
// values as null (texts as ""), records as the QVariantMap of their JSON
// form; and the actions the screens take. C++ reads the state itself.
class AppStateFace : public QObject {
    Q_OBJECT
    Q_PROPERTY(AppState *state READ state CONSTANT)
    Q_PROPERTY(bool hasCompletedOnboarding READ hasCompletedOnboarding WRITE setHasCompletedOnboarding NOTIFY hasCompletedOnboardingChanged)
    Q_PROPERTY(bool showOnboarding READ showOnboarding WRITE setShowOnboarding NOTIFY showOnboardingChanged)
    Q_PROPERTY(SidebarSection::Value selectedSection READ selectedSection WRITE setSelectedSection NOTIFY selectedSectionChanged)
    Q_PROPERTY(QString selectedEventID READ selectedEventID WRITE setSelectedEventID NOTIFY selectedEventIDChanged)
    Q_PROPERTY(QString selectedVaultEventID READ selectedVaultEventID WRITE setSelectedVaultEventID NOTIFY selectedVaultEventIDChanged)
    Q_PROPERTY(ShellState::ColumnVisibility columnVisibility READ columnVisibility NOTIFY columnVisibilityChanged)
    Q_PROPERTY(bool isFocusMode READ isFocusMode NOTIFY isFocusModeChanged)
    Q_PROPERTY(QVariant driveScan READ driveScan NOTIFY driveScanChanged)
    Q_PROPERTY(QVariant scanProgress READ scanProgress NOTIFY scanProgressChanged)
    Q_PROPERTY(bool isScanning READ isScanning NOTIFY isScanningChanged)
    Q_PROPERTY(bool isRevalidatingScan READ isRevalidatingScan NOTIFY isRevalidatingScanChanged)
    Q_PROPERTY(QVariantList driveVolumeCandidates READ driveVolumeCandidates NOTIFY driveVolumeCandidatesChanged)
    Q_PROPERTY(QVariant currentFailure READ currentFailure NOTIFY currentFailureChanged)
    Q_PROPERTY(QString driveRootURL READ driveRootURL NOTIFY driveRootURLChanged)
    Q_PROPERTY(bool isSampleMode READ isSampleMode NOTIFY isSampleModeChanged)
    Q_PROPERTY(bool showEncryptionGuide READ showEncryptionGuide WRITE setShowEncryptionGuide NOTIFY showEncryptionGuideChanged)
    Q_PROPERTY(bool isArchiving READ isArchiving NOTIFY isArchivingChanged)
    Q_PROPERTY(QVariant lastArchiveReport READ lastArchiveReport NOTIFY lastArchiveReportChanged)
    Q_PROPERTY(bool showArchiveReport READ showArchiveReport WRITE setShowArchiveReport NOTIFY showArchiveReportChanged)
    Q_PROPERTY(QVariant healthReport READ healthReport NOTIFY healthReportChanged)
    Q_PROPERTY(QString filterState READ filterState WRITE setFilterState NOTIFY filterStateChanged)
    Q_PROPERTY(QString filterReason READ filterReason WRITE setFilterReason NOTIFY filterReasonChanged)
    Q_PROPERTY(QString filterKind READ filterKind WRITE setFilterKind NOTIFY filterKindChanged)
    // Event id to "locked" or "unlocked", for the encrypted events of the drive and the Vault.
    Q_PROPERTY(QVariantMap lockStates READ lockStates NOTIFY keyCoverageChanged)

public:
    // The state must outlive its face.
    explicit AppStateFace(AppState &state, QObject *parent = nullptr);

    AppState *state() const { return &state_; }

    Q_INVOKABLE void rootViewAppeared() { state_.rootViewAppeared(); }
    Q_INVOKABLE void attachWindow(QObject *quickWindow) { state_.attachWindow(quickWindow); }
    Q_INVOKABLE void toggleFocusMode() { state_.toggleFocusMode(); }
    Q_INVOKABLE void exitFocusMode(bool alsoExitFullScreen) { state_.exitFocusMode(alsoExitFullScreen); }
    Q_INVOKABLE void refreshVolumeCandidates() { state_.refreshVolumeCandidates(); }
    Q_INVOKABLE void beginScan(const QString &root) { state_.beginScan(root); }
    Q_INVOKABLE void loadSampleFootage() { state_.loadSampleFootage(); }
    Q_INVOKABLE void keepIDs(const QStringList &eventIDs) { state_.keepIDs(eventIDs); }
    Q_INVOKABLE void dismissIDs(const QStringList &eventIDs) { state_.dismissIDs(eventIDs); }
    Q_INVOKABLE void toggleBulkSelection(const QString &eventID) { state_.toggleBulkSelection(eventID); }
    Q_INVOKABLE void keepBulkSelection() { state_.keepBulkSelection(); }
    Q_INVOKABLE void dismissBulkSelection() { state_.dismissBulkSelection(); }

    bool hasCompletedOnboarding() const { return state_.hasCompletedOnboarding(); }
    void setHasCompletedOnboarding(bool v) { state_.setHasCompletedOnboarding(v); }
    bool showOnboarding() const { return state_.showOnboarding(); }
    void setShowOnboarding(bool v) { state_.setShowOnboarding(v); }
    SidebarSection::Value selectedSection() const { return state_.selectedSection().value(); }
    void setSelectedSection(SidebarSection::Value v) { state_.setSelectedSection(v); }
    QString selectedEventID() const { return state_.selectedEventID().value_or(QString()); }
    void setSelectedEventID(const QString &id);
    QString selectedVaultEventID() const { return state_.selectedVaultEventID().value_or(QString()); }
    void setSelectedVaultEventID(const QString &id);
    AppState::ColumnVisibility columnVisibility() const { return state_.columnVisibility(); }
    bool isFocusMode() const { return state_.isFocusMode(); }
    QVariant driveScan() const;
    QVariant scanProgress() const;
    bool isScanning() const { return state_.isScanning(); }
    bool isRevalidatingScan() const { return state_.isRevalidatingScan(); }
    QVariantList driveVolumeCandidates() const;
    QVariant currentFailure() const;
    QString driveRootURL() const { return state_.driveRootURL().value_or(QString()); }
    bool isSampleMode() const { return state_.isSampleMode(); }
    bool showEncryptionGuide() const { return state_.showEncryptionGuide(); }
    void setShowEncryptionGuide(bool v) { state_.setShowEncryptionGuide(v); }
    bool isArchiving() const { return state_.isArchiving(); }
    QVariant lastArchiveReport() const;
    bool showArchiveReport() const { return state_.showArchiveReport(); }
    void setShowArchiveReport(bool v) { state_.setShowArchiveReport(v); }
    QVariant healthReport() const;
    QString filterState() const;
    void setFilterState(const QString &raw);
    QString filterReason() const;
    void setFilterReason(const QString &raw);
    QString filterKind() const;
    void setFilterKind(const QString &raw);
    QVariantMap lockStates() const;

Q_SIGNALS:
    void hasCompletedOnboardingChanged();
    void showOnboardingChanged();
    void selectedSectionChanged();
    void selectedEventIDChanged();
    void selectedVaultEventIDChanged();
    void columnVisibilityChanged();
    void isFocusModeChanged();
    void driveScanChanged();
    void scanProgressChanged();
    void isScanningChanged();
    void isRevalidatingScanChanged();
    void driveVolumeCandidatesChanged();
    void currentFailureChanged();
    void driveRootURLChanged();
    void isSampleModeChanged();
    void showEncryptionGuideChanged();
    void isArchivingChanged();
    void lastArchiveReportChanged();
    void showArchiveReportChanged();
    void healthReportChanged();
    void filterStateChanged();
    void filterReasonChanged();
    void filterKindChanged();
    void keyCoverageChanged();

private:
    AppState &state_;
};
