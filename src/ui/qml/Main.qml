import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Keelhold

// RootView: the sidebar, the detail area by section, the three sheets.
ApplicationWindow {
    id: window
    objectName: "rootView"
    width: 1100
    height: 720
    minimumWidth: 900
    minimumHeight: 600
    visible: true
    title: "Keelhold"
    palette.window: ui.colors.window
    palette.windowText: ui.colors.windowText
    palette.base: ui.colors.base
    palette.alternateBase: ui.colors.alternateBase
    palette.text: ui.colors.text
    palette.button: ui.colors.button
    palette.buttonText: ui.colors.buttonText
    palette.mid: ui.colors.mid
    palette.midlight: ui.colors.midlight
    palette.dark: ui.colors.dark
    palette.light: ui.colors.light
    palette.highlight: ui.colors.highlight
    palette.highlightedText: ui.colors.highlightedText
    palette.toolTipBase: ui.colors.toolTipBase
    palette.toolTipText: ui.colors.toolTipText
    palette.placeholderText: ui.colors.placeholderText

    // Help: one window at most; the controller switches or reopens it.
    function showHelp(articleIndex) { help.show(articleIndex === undefined ? -1 : articleIndex) }

    menuBar: MenuBar {
        // The bar stands outside the content, so it takes the scheme here.
        palette.window: ui.colors.window
        palette.windowText: ui.colors.windowText
        palette.button: ui.colors.window
        palette.buttonText: ui.colors.windowText
        palette.base: ui.colors.base
        palette.text: ui.colors.text
        palette.mid: ui.colors.mid
        palette.highlight: ui.colors.highlight
        palette.highlightedText: ui.colors.highlightedText
        Menu {
            title: ui.texts.playbackMenu
            // A menu keeps its default width whatever its items say.
            width: Math.max(implicitWidth, hardwareItem.implicitWidth + leftPadding + rightPadding)
            MenuItem {
                id: hardwareItem
                objectName: "menuHardwareDecoding"
                text: ui.texts.hardwareDecodingMenu
                checkable: true
                checked: ui.hardwareDecoding
                onToggled: ui.hardwareDecoding = checked
            }
        }
        Menu {
            title: qsTr("&Help")
            MenuItem { objectName: "menuHelp"; text: ui.texts.helpMenu; onTriggered: window.showHelp(-1) }
            MenuItem { objectName: "menuSample"; text: ui.texts.sampleMenu; onTriggered: appState.loadSampleFootage() }
            MenuItem {
                objectName: "menuCopyDiagnostics"
                text: qsTr("Copy Diagnostic Information")
                onTriggered: ui.copyDiagnosticInformation()
            }
        }
    }

    Component.onCompleted: {
        appState.attachWindow(window)
        appState.rootViewAppeared()
    }

    RowLayout {
        anchors.fill: parent
        spacing: 0

        // Sidebar
        Rectangle {
            objectName: "sidebar"
            visible: appState.columnVisibility === ui.columns.all
            Layout.preferredWidth: 160
            Layout.minimumWidth: 140
            Layout.maximumWidth: 200
            Layout.fillHeight: true
            color: palette.alternateBase
            ColumnLayout {
                anchors.fill: parent
                anchors.margins: 8
                spacing: 2
                RowLayout {
                    Layout.fillWidth: true
                    Label { text: "Keelhold"; font.pixelSize: 15; font.weight: Font.DemiBold; Layout.fillWidth: true; leftPadding: 6 }
                    ToolButton {
                        objectName: "helpButton"
                        icon.source: ui.icon("questionmark.circle")
                        icon.color: palette.windowText
                        ToolTip.visible: hovered; ToolTip.text: ui.texts.helpTip
                        onClicked: window.showHelp(-1)
                    }
                }
                Repeater {
                    model: ui.sidebarSections
                    delegate: ItemDelegate {
                        objectName: "section_" + modelData.id
                        Layout.fillWidth: true
                        highlighted: appState.selectedSection === modelData.value
                        icon.source: modelData.icon
                        icon.color: highlighted ? palette.highlightedText : palette.windowText
                        text: modelData.label
                        onClicked: appState.selectedSection = modelData.value
                        background: Rectangle {
                            radius: 6
                            color: parent.highlighted ? palette.highlight : parent.hovered ? palette.midlight : "transparent"
                        }
                    }
                }
                Item { Layout.fillHeight: true }
            }
        }
        Rectangle { visible: appState.columnVisibility === ui.columns.all; width: 1; Layout.fillHeight: true; color: palette.mid }

        // Detail
        Item {
            id: detail
            Layout.fillWidth: true
            Layout.fillHeight: true
            readonly property real listWidth: ui.listColumnWidth(width, ui.storedListWidth)

            RowLayout {
                anchors.fill: parent
                spacing: 0
                visible: appState.selectedSection === ui.sections.drive || (appState.selectedSection === ui.sections.vault && !vault.isEmpty)
                ColumnLayout {
                    visible: !appState.isFocusMode
                    Layout.preferredWidth: detail.listWidth
                    Layout.maximumWidth: detail.listWidth
                    Layout.minimumWidth: detail.listWidth
                    Layout.fillHeight: true
                    spacing: 0
                    EventListView {
                        visible: appState.selectedSection === ui.sections.drive
                        Layout.fillWidth: true
                        Layout.fillHeight: true
                    }
                    VaultEventListColumn {
                        visible: appState.selectedSection === ui.sections.vault
                        Layout.fillWidth: true
                        Layout.fillHeight: true
                    }
                }
                ListPaneResizeHandle {
                    visible: !appState.isFocusMode
                    Layout.fillHeight: true
                    width_: ui.storedListWidth
                    onWidthDragged: (w) => ui.storedListWidth = w
                }
                DriveDetailColumn {
                    visible: appState.selectedSection === ui.sections.drive
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    // What is left beside the list, whatever its rows would
                    // like: they fold or elide, never push past the window.
                    Layout.minimumWidth: 0
                    Layout.preferredWidth: 0
                    clip: true
                }
                VaultDetailColumn {
                    visible: appState.selectedSection === ui.sections.vault
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    // What is left beside the list, whatever its rows would
                    // like: they fold or elide, never push past the window.
                    Layout.minimumWidth: 0
                    Layout.preferredWidth: 0
                    clip: true
                }
            }
            VaultEmptyStateColumn {
                anchors.fill: parent
                visible: appState.selectedSection === ui.sections.vault && vault.isEmpty
            }
            EventMapView {
                anchors.fill: parent
                visible: appState.selectedSection === ui.sections.map
            }
            HealthView {
                anchors.fill: parent
                visible: appState.selectedSection === ui.sections.health
            }
            ArchiveProgressOverlay {
                visible: vault.showsProgress && (appState.selectedSection === ui.sections.drive || appState.selectedSection === ui.sections.map)
                anchors.left: parent.left
                anchors.right: parent.right
                anchors.bottom: parent.bottom
                anchors.margins: 16
            }
        }
    }

    Popup {
        id: wizardSheet
        objectName: "wizardSheet"
        modal: true
        focus: true
        // With a drive or the sample already open the wizard can be left
        // (Cancel, Esc); on a first start there is nothing behind it.
        readonly property bool cancellable: appState.isSampleMode || appState.driveRootURL.length > 0
        closePolicy: cancellable ? Popup.CloseOnEscape : Popup.NoAutoClose
        anchors.centerIn: Overlay.overlay
        width: Math.min(640, window.width - 40); height: Math.min(480, window.height - 40)
        visible: appState.showOnboarding
        onClosed: appState.showOnboarding = false
        padding: 0
        contentItem: Loader {
            active: wizardSheet.visible
            sourceComponent: WizardView {
                cancellable: wizardSheet.cancellable
                onFinished: { appState.hasCompletedOnboarding = true; appState.showOnboarding = false }
                onDismissed: appState.showOnboarding = false
            }
        }
    }
    Popup {
        id: guideSheet
        modal: true
        closePolicy: Popup.CloseOnEscape
        anchors.centerIn: Overlay.overlay
        width: 640; height: 560
        visible: appState.showEncryptionGuide
        onClosed: appState.showEncryptionGuide = false
        contentItem: EncryptionGuideView { onDismissed: appState.showEncryptionGuide = false }
    }
    Popup {
        id: unlockSheet
        objectName: "unlockPopup"
        modal: true
        focus: true
        closePolicy: Popup.CloseOnEscape
        anchors.centerIn: Overlay.overlay
        width: Math.min(620, window.width - 40); height: Math.min(640, window.height - 40)
        padding: 20
        visible: unlock.showSheet
        onClosed: unlock.showSheet = false
        contentItem: UnlockSheet { onDismissed: unlock.showSheet = false }
    }
    AlertDialog {
        objectName: "vaultChoiceRefusal"
        visible: vault.choiceRefusal !== ""
        title: vault.texts.refusalTitle
        message: vault.choiceRefusal
        onClosed: vault.dismissChoiceRefusal()
        footer: DialogButtonBox {
            Button {
                objectName: "chooseAnotherVaultFolder"
                text: vault.texts.chooseAnother
                highlighted: true
                DialogButtonBox.buttonRole: DialogButtonBox.AcceptRole
                onClicked: { vault.dismissChoiceRefusal(); vault.presentFolderPicker() }
            }
            Button {
                text: vault.texts.cancel
                DialogButtonBox.buttonRole: DialogButtonBox.RejectRole
                onClicked: vault.declineChoice()
            }
        }
    }
    Popup {
        id: reportSheet
        modal: true
        anchors.centerIn: Overlay.overlay
        width: 520
        padding: 20
        visible: appState.showArchiveReport && !!appState.lastArchiveReport
        onClosed: appState.showArchiveReport = false
        contentItem: ArchiveReportSheet { onDone: appState.showArchiveReport = false }
    }
}
