import QtQuick

// The screen for the failure now in the state; its words come from C++.
EmptyStateView {
    property var screen: ({})
    objectName: "failureView"
    symbolName: screen.symbolName || ""
    title: screen.title || ""
    message: screen.message || ""
    actionTitle: screen.actionTitle || ""
    onAction: {
        if (screen.action === "reopenWizard")
            appState.showOnboarding = true
        else if (screen.action === "showEncryptionGuide")
            appState.showEncryptionGuide = true
    }
}
