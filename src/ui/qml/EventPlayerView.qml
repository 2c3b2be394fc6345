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
            drivingData: playerPresenter.drivingData
        }
        PlayerMetadataBar {
            Layout.fillWidth: true
            metadata: playerPresenter.metadata
            texts: playerPresenter.texts
        }
        // Encrypted footage with no keys held: the way to them.
        RowLayout {
            objectName: "lockedBar"
            visible: view.hasEvent && view.stateObject.lockStates[view.eventID] === "locked"
            Layout.fillWidth: true
            spacing: 8
            UrlIcon { source: unlock.texts.noticeIcon; size: 16; color: "#b45309" }
            Label { text: unlock.texts.noticeTitle; Layout.fillWidth: true; elide: Text.ElideRight }
            Button {
                objectName: "playerUnlock"
                text: unlock.texts.unlockEncrypted
                onClicked: unlock.openFor([view.eventID])
            }
        }
        CameraGrid {
            id: cameraGrid
            Layout.fillWidth: true
            Layout.fillHeight: true
            controller: view.controller
            texts: playerPresenter.texts

            // Over the cameras, clear of the strip of small tiles: the
            // readings at the left, the route at the right where there is
            // room for both.
            readonly property real overlayBottom: 10 + (mode === "focused" ? slotHeight + spacing : 0)
            readonly property bool showsDrivingData: playerPresenter.drivingData.hasData
                && playerPresenter.drivingData.showOverlay && (mode === "grid" || mode === "focused")
            DrivingDataOverlay {
                id: overlay
                drivingData: playerPresenter.drivingData
                visible: cameraGrid.showsDrivingData
                anchors.left: parent.left
                anchors.bottom: parent.bottom
                anchors.leftMargin: 10
                anchors.bottomMargin: cameraGrid.overlayBottom
                scale: Math.min(1, (parent.width - 20) / Math.max(1, implicitWidth))
                transformOrigin: Item.BottomLeft
                width: implicitWidth
                height: implicitHeight
            }
            RouteInset {
                objectName: "routeInset"
                drivingData: playerPresenter.drivingData
                // Beside the readings where both fit, else just above them.
                readonly property bool besideReadings: parent.width >= overlay.implicitWidth + width + 30
                readonly property real lift: besideReadings ? 0 : overlay.height * overlay.scale + 8
                visible: cameraGrid.showsDrivingData && playerPresenter.drivingData.hasRoute
                         && parent.width >= width + 20
                         && parent.height - cameraGrid.overlayBottom - lift >= height + 40
                anchors.right: parent.right
                anchors.bottom: parent.bottom
                anchors.rightMargin: 10
                anchors.bottomMargin: cameraGrid.overlayBottom + lift
                width: 180
                height: 120
            }
        }
        TimelineScrubber {
            Layout.fillWidth: true
            controller: view.controller
            texts: playerPresenter.texts
            drivingData: playerPresenter.drivingData
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
