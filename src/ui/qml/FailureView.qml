import QtQuick

// The screen for the failure now in the state; its words come from C++.
EmptyStateView {
    property var screen: ({})
    objectName: "failureView"
    symbolName: screen.symbolName || ""
    title: screen.title || ""
    message: screen.message || ""
    actionTitle: screen.actionTitle || ""
    secondaryTitle: screen.secondaryTitle || ""
    function run(action) {
        if (action === "reopenWizard")
            appState.showOnboarding = true
        else if (action === "showEncryptionGuide")
            appState.showEncryptionGuide = true
        else if (action === "chooseVaultFolder")
            vault.presentFolderPicker()
    }
    onAction: run(screen.action)
    onSecondaryAction: run(screen.secondaryAction)
}
