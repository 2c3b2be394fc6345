import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Keelhold

// The detail pane of one event: what it is, every camera in sync, the
// transport, and the actions on it. The view stays while the selection
// moves; its presenter reloads the one controller with each new event.
Item {
    id: view
    objectName: "eventPlayerView"
    property string eventID: ""
    property bool fromVault: false
    property bool showExportSheet: false
    readonly property QtObject stateObject: appState
    readonly property alias presenter: playerPresenter
    readonly property var controller: playerPresenter.controller
    readonly property bool hasEvent: playerPresenter.hasEvent

    EventPlayerPresenter {
        id: playerPresenter
        appState: view.stateObject
        fromVault: view.fromVault
        eventID: view.eventID
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 10
        spacing: 8

        EventActionsToolbar {
            Layout.fillWidth: true
            presenter: playerPresenter
            texts: playerPresenter.texts
            focusMode: view.stateObject.isFocusMode
            onExportRequested: view.showExportSheet = true
            onFocusModeToggled: view.stateObject.toggleFocusMode()
        }
        PlayerMetadataBar {
            Layout.fillWidth: true
            metadata: playerPresenter.metadata
            texts: playerPresenter.texts
        }
        CameraGrid {
            Layout.fillWidth: true
            Layout.fillHeight: true
            controller: view.controller
            texts: playerPresenter.texts
        }
        TimelineScrubber {
            Layout.fillWidth: true
            controller: view.controller
            texts: playerPresenter.texts
        }
        PlayerTransportBar {
            Layout.fillWidth: true
            controller: view.controller
            presenter: playerPresenter
            texts: playerPresenter.texts
        }
        KeyboardHintBar { Layout.fillWidth: true }
    }

    PlayerKeyboardShortcuts {
        state: view.stateObject
        eventID: playerPresenter.hasEvent ? view.eventID : ""
        active: view.visible && playerPresenter.hasEvent
    }

    ExportSheet {
        id: exportSheet
        presenter: playerPresenter
        visible: view.showExportSheet
        onClosed: view.showExportSheet = false
    }
}
