#include "state/ShellState.h"

#include "state/ChangeSignal.h"

#include <QMetaObject>

ShellState::ShellState(SettingsAccess &settings, QObject *parent) : QObject(parent), settings_(settings)
{
    hasCompletedOnboarding_ = settings_.flag(onboardingKey, false);
    showOnboarding_ = !hasCompletedOnboarding_;
}

void ShellState::setHasCompletedOnboarding(bool v)
{
    if (hasCompletedOnboarding_ == v)
        return;
    hasCompletedOnboarding_ = v;
    settings_.setFlag(onboardingKey, v);
    Q_EMIT hasCompletedOnboardingChanged();
}

void ShellState::setShowOnboarding(bool v) { setAndSignal(this, showOnboarding_, v, &ShellState::showOnboardingChanged); }

void ShellState::setSelectedSection(SidebarSection s)
{
    if (selectedSection_.value() == s.value())
        return;
    selectedSection_ = s;
    Q_EMIT selectedSectionChanged();
}

void ShellState::setSelectedEventID(std::optional<QString> id)
{
    setAndSignal(this, selectedEventID_, std::move(id), &ShellState::selectedEventIDChanged);
}

void ShellState::setSelectedVaultEventID(std::optional<QString> id)
{
    setAndSignal(this, selectedVaultEventID_, std::move(id), &ShellState::selectedVaultEventIDChanged);
}

void ShellState::setColumnVisibility(ColumnVisibility v)
{
    setAndSignal(this, columnVisibility_, v, &ShellState::columnVisibilityChanged);
}

void ShellState::setShowEncryptionGuide(bool v)
{
    setAndSignal(this, showEncryptionGuide_, v, &ShellState::showEncryptionGuideChanged);
}

void ShellState::setShowArchiveReport(bool v)
{
    setAndSignal(this, showArchiveReport_, v, &ShellState::showArchiveReportChanged);
}

void ShellState::setFocusWindow(FocusWindow *window)
{
    if (focusWindow_)
        disconnect(focusWindow_, nullptr, this, nullptr);
    focusWindow_ = window;
    if (window)
        connect(window, &FocusWindow::willExitFullScreen, this, [this] {
            if (isFocusMode_)
                leaveFocusMode();
        });
}

void ShellState::toggleFocusMode()
{
    isFocusMode_ = !isFocusMode_;
    Q_EMIT isFocusModeChanged();
    setColumnVisibility(isFocusMode_ ? ColumnVisibility::detailOnly : ColumnVisibility::all);
    if (focusWindow_)
        focusWindow_->toggleFullScreen();
}

void ShellState::exitFocusMode(bool alsoExitFullScreen)
{
    if (!isFocusMode_)
        return;
    leaveFocusMode();
    if (alsoExitFullScreen && focusWindow_ && focusWindow_->isFullScreen())
        focusWindow_->toggleFullScreen();
}

void ShellState::leaveFocusMode()
{
    isFocusMode_ = false;
    Q_EMIT isFocusModeChanged();
    setColumnVisibility(ColumnVisibility::all);
}

void ShellState::pauseActivePlayer()
{
    if (QObject *player = activePlayerController_.data())
        QMetaObject::invokeMethod(player, "pause", Qt::DirectConnection);
}
