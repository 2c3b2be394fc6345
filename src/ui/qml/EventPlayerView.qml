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
        appState: view.stateObject.state
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

            // Over the cameras, clear of the strip of small tiles, and never
            // hiding more than a quarter of any camera: the readings along the
            // bottom at most a quarter of a tile high, the route in the top
            // right corner at most half a tile each way. Where the readings
            // would be too small to read they step aside, under the cameras.
            readonly property real overlayBottom: 10 + (mode === "focused" ? slotHeight + spacing : 0)
            readonly property bool showsDrivingData: playerPresenter.drivingData.hasData
                && playerPresenter.drivingData.showOverlay && (mode === "grid" || mode === "focused")
            // The tile the readings and the route lie over.
            readonly property real coveredTileWidth: mode === "focused" ? width : cellWidth
            readonly property real coveredTileHeight: mode === "focused" ? stripTop - spacing : cellHeight
            readonly property real readingsScale: Math.min(1,
                (width - 20) / Math.max(1, overlay.implicitWidth),
                (coveredTileHeight * 0.25 - 10) / Math.max(1, overlay.implicitHeight))
            readonly property bool readingsFit: readingsScale >= 0.6
            DrivingDataOverlay {
                id: overlay
                drivingData: playerPresenter.drivingData
                visible: cameraGrid.showsDrivingData && cameraGrid.readingsFit
                anchors.left: parent.left
                anchors.bottom: parent.bottom
                anchors.leftMargin: 10
                anchors.bottomMargin: cameraGrid.overlayBottom
                scale: cameraGrid.readingsScale
                transformOrigin: Item.BottomLeft
                width: implicitWidth
                height: implicitHeight
            }
            Label {
                objectName: "drivingDataNotice"
                visible: text.length > 0
                text: playerPresenter.drivingData.notice
                anchors.horizontalCenter: parent.horizontalCenter
                anchors.top: parent.top
                anchors.topMargin: 12
                padding: 8
                leftPadding: 14; rightPadding: 14
                color: "white"
                background: Rectangle { radius: height / 2; color: Qt.rgba(0, 0, 0, 0.72) }
            }
            RouteInset {
                objectName: "routeInset"
                drivingData: playerPresenter.drivingData
                readonly property real fitScale: Math.min(1, (cameraGrid.coveredTileWidth * 0.5 - 10) / 180,
                                                          (cameraGrid.coveredTileHeight * 0.5 - 10) / 120)
                visible: cameraGrid.showsDrivingData && playerPresenter.drivingData.hasRoute && fitScale >= 0.6
                anchors.right: parent.right
                anchors.top: parent.top
                anchors.rightMargin: 10
                anchors.topMargin: 10
                width: 180 * fitScale
                height: 120 * fitScale
            }
        }
        // The readings, when the cameras are too small to carry them; drawn
        // smaller to fit, so they never widen the pane.
        Item {
            visible: cameraGrid.showsDrivingData && !cameraGrid.readingsFit
            Layout.fillWidth: true
            Layout.preferredHeight: visible ? below.implicitHeight * below.scale : 0
            DrivingDataOverlay {
                id: below
                objectName: "drivingDataBelow"
                drivingData: playerPresenter.drivingData
                anchors.centerIn: parent
                width: implicitWidth
                height: implicitHeight
                // From the view's width, which the layout doesn't set: a scale
                // taken from the width the layout gives would ask it to lay out again.
                scale: Math.min(1, (view.width - 20) / Math.max(1, implicitWidth))
            }
        }
        TimelineScrubber {
            Layout.fillWidth: true
            controller: view.controller
            texts: playerPresenter.texts
            drivingData: playerPresenter.drivingData
            moments: playerPresenter.moments
        }
        PlayerTransportBar {
            Layout.fillWidth: true
            controller: view.controller
            presenter: playerPresenter
            texts: playerPresenter.texts
            momentsTexts: playerPresenter.moments.texts
        }
        KeyboardHintBar { Layout.fillWidth: true }
    }

    PlayerKeyboardShortcuts {
        state: view.stateObject.state
        eventID: playerPresenter.hasEvent ? view.eventID : ""
        drivingData: playerPresenter.drivingData
        active: view.visible && playerPresenter.hasEvent
    }

    ExportSheet {
        id: exportSheet
        presenter: playerPresenter
        visible: view.showExportSheet
        onClosed: view.showExportSheet = false
    }
}
