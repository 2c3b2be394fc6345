#pragma once

#include "engine/SettingsAccess.h"
#include "state/FocusWindow.h"
#include "state/SidebarSection.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <optional>

// The window's own state: first-run onboarding, the section and the rows
// chosen, focus mode, and which sheets stand open. Knows nothing of drives
// or the Vault; signals only on a real change.
class ShellState : public QObject {
    Q_OBJECT
public:
    enum class ColumnVisibility : quint8 { all, detailOnly };
    Q_ENUM(ColumnVisibility)

    static inline const QString onboardingKey = QStringLiteral("hasCompletedOnboarding");

    // The settings must outlive the shell.
    explicit ShellState(SettingsAccess &settings, QObject *parent = nullptr);

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
    bool showEncryptionGuide() const { return showEncryptionGuide_; }
    void setShowEncryptionGuide(bool v);
    bool showArchiveReport() const { return showArchiveReport_; }
    void setShowArchiveReport(bool v);

    // Focus mode: the detail column alone, full screen; leaving full
    // screen by any means leaves it too.
    bool isFocusMode() const { return isFocusMode_; }
    void setFocusWindow(FocusWindow *window);
    void toggleFocusMode();
    void exitFocusMode(bool alsoExitFullScreen);

    // The player the window shows; the state only ever pauses it, by name
    // through its meta-object, so it needs nothing of playback.
    QObject *activePlayerController() const { return activePlayerController_.data(); }
    void setActivePlayerController(QObject *controller) { activePlayerController_ = controller; }
    void pauseActivePlayer();

Q_SIGNALS:
    void hasCompletedOnboardingChanged();
    void showOnboardingChanged();
    void selectedSectionChanged();
    void selectedEventIDChanged();
    void selectedVaultEventIDChanged();
    void columnVisibilityChanged();
    void isFocusModeChanged();
    void showEncryptionGuideChanged();
    void showArchiveReportChanged();

private:
    void leaveFocusMode();

    SettingsAccess &settings_;
    bool hasCompletedOnboarding_ = false;
    bool showOnboarding_ = true;
    SidebarSection selectedSection_ = SidebarSection::drive;
    std::optional<QString> selectedEventID_;
    std::optional<QString> selectedVaultEventID_;
    ColumnVisibility columnVisibility_ = ColumnVisibility::all;
    bool showEncryptionGuide_ = false;
    bool showArchiveReport_ = false;
    bool isFocusMode_ = false;
    QPointer<FocusWindow> focusWindow_;
    QPointer<QObject> activePlayerController_;
};
