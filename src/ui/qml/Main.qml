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

    property int helpSelection: 0
    property var helpWindow: null
    // Help: switch the article in place if open, else open on the last one.
    function showHelp(articleIndex) {
        if (articleIndex !== undefined && articleIndex >= 0)
            helpSelection = articleIndex
        if (helpWindow) {
            helpWindow.selected = helpSelection
            helpWindow.raise(); helpWindow.requestActivate()
            return
        }
        helpWindow = helpComponent.createObject(null, { selected: helpSelection })
        helpWindow.x = window.x + (window.width - helpWindow.width) / 2
        helpWindow.y = window.y + (window.height - helpWindow.height) / 2
        helpWindow.show(); helpWindow.raise(); helpWindow.requestActivate()
    }
    Component {
        id: helpComponent
        HelpWindow {
            onSelectedChanged: window.helpSelection = selected
            onClosing: { window.helpWindow = null; destroy() }
        }
    }

    menuBar: MenuBar {
        Menu {
            title: "Help"
            MenuItem { objectName: "menuHelp"; text: "Keelhold Help"; onTriggered: window.showHelp(-1) }
            MenuItem { objectName: "menuSample"; text: "Explore Sample Footage"; onTriggered: appState.loadSampleFootage() }
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
            visible: appState.columnVisibility === 0 || !appState.isFocusMode
            Layout.preferredWidth: 170
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
                    Label { text: "Keelhold"; font.pixelSize: 16; font.weight: Font.DemiBold; Layout.fillWidth: true; leftPadding: 6 }
                    ToolButton {
                        objectName: "helpButton"
                        icon.source: ui.icon("questionmark.circle")
                        ToolTip.visible: hovered; ToolTip.text: ui.texts.helpTip
                        onClicked: window.showHelp(-1)
                    }
                }
                Repeater {
                    model: ui.sidebarSections
                    delegate: ItemDelegate {
                        objectName: "section_" + modelData.label
                        Layout.fillWidth: true
                        highlighted: appState.selectedSection === modelData.value
                        icon.source: modelData.icon
                        text: modelData.label
                        onClicked: appState.selectedSection = modelData.value
                    }
                }
                Item { Layout.fillHeight: true }
            }
        }
        Rectangle { width: 1; Layout.fillHeight: true; color: palette.mid }

        // Detail
        Item {
            id: detail
            Layout.fillWidth: true
            Layout.fillHeight: true
            readonly property real listWidth: ui.listColumnWidth(width, ui.storedListWidth)

            RowLayout {
                anchors.fill: parent
                spacing: 0
                visible: appState.selectedSection === 0 || appState.selectedSection === 1
                ColumnLayout {
                    visible: !appState.isFocusMode
                    Layout.preferredWidth: detail.listWidth
                    Layout.maximumWidth: detail.listWidth
                    Layout.minimumWidth: detail.listWidth
                    Layout.fillHeight: true
                    spacing: 0
                    SampleModeBanner {
                        visible: appState.isSampleMode && appState.selectedSection === 0
                        Layout.fillWidth: true
                        onEject: appState.exitSampleMode()
                    }
                    FailureView {
                        property var s: { appState.currentFailure; return ui.failureScreen() }
                        screen: s
                        visible: appState.selectedSection === 0 && s.title !== undefined
                        Layout.fillWidth: true
                        Layout.fillHeight: true
                    }
                    PlaceholderColumn {
                        visible: !(appState.selectedSection === 0 && appState.currentFailure)
                        name: appState.selectedSection === 0 ? "EventListView" : "VaultEventListColumn"
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
                    visible: appState.selectedSection === 0
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                }
                VaultDetailColumn {
                    visible: appState.selectedSection === 1
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                }
            }
            PlaceholderColumn {
                anchors.fill: parent
                visible: appState.selectedSection === 2
                name: "EventMapView"
            }
            HealthView {
                anchors.fill: parent
                visible: appState.selectedSection === 3
            }
        }
    }

    Popup {
        id: wizardSheet
        objectName: "wizardSheet"
        modal: true
        closePolicy: Popup.NoAutoClose
        anchors.centerIn: Overlay.overlay
        width: 640; height: 480
        visible: appState.showOnboarding
        padding: 0
        contentItem: Loader {
            active: wizardSheet.visible
            sourceComponent: WizardView {
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
        id: reportSheet
        modal: true
        anchors.centerIn: Overlay.overlay
        width: 520; height: 360
        visible: appState.showArchiveReport && !!appState.lastArchiveReport
        onClosed: appState.showArchiveReport = false
        contentItem: PlaceholderColumn { name: "ArchiveReportSheet" }
    }
}
