import QtQuick
import QtQuick.Controls
import Keelhold

// The Drive section's detail: the player on the selected event, or a hint
// to pick one (with the way into the sample footage before any scan).
Item {
    id: column
    objectName: "driveDetailColumn"
    readonly property bool hasPlayer: loader.item !== null && loader.item.hasEvent

    Loader {
        id: loader
        anchors.fill: parent
        active: column.visible && appState.selectedEventID.length > 0
        sourceComponent: EventPlayerView {
            eventID: appState.selectedEventID
            visible: hasEvent
        }
    }
    PlayerLayout { id: rules }
    readonly property var empty: rules.detailEmptyState(false, !!appState.driveScan)
    EmptyStateView {
        anchors.fill: parent
        visible: !column.hasPlayer
        symbolName: column.empty.symbol
        title: column.empty.title
        message: column.empty.message
        actionTitle: column.empty.action
        onAction: appState.loadSampleFootage()
    }
    // Esc leaves focus mode here too when no player takes the key.
    Shortcut {
        sequence: "Esc"
        enabled: column.visible && !column.hasPlayer
        onActivated: appState.exitFocusMode(true)
    }
}
