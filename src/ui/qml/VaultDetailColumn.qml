import QtQuick
import QtQuick.Controls
import Keelhold

// The Vault section's detail: the player on the selected kept event, which
// plays from the Vault's copy with or without the car's drive.
Item {
    id: column
    objectName: "vaultDetailColumn"
    readonly property bool hasPlayer: loader.item !== null && loader.item.hasEvent

    Loader {
        id: loader
        anchors.fill: parent
        active: column.visible && appState.selectedVaultEventID.length > 0
        sourceComponent: EventPlayerView {
            eventID: appState.selectedVaultEventID
            fromVault: true
            visible: hasEvent
        }
    }
    PlayerLayout { id: rules }
    readonly property var empty: rules.detailEmptyState(true, false)
    EmptyStateView {
        anchors.fill: parent
        visible: !column.hasPlayer
        symbolName: column.empty.symbol
        title: column.empty.title
        message: column.empty.message
    }
    Shortcut {
        sequence: "Esc"
        enabled: column.visible && !column.hasPlayer
        onActivated: appState.exitFocusMode(true)
    }
}
