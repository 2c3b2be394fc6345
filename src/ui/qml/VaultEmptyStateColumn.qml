import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Keelhold

// The Vault with nothing in it: choose a folder, or keep something first.
ColumnLayout {
    objectName: "vaultEmptyState"
    spacing: 0
    RowLayout {
        Layout.fillWidth: true
        Layout.leftMargin: 12
        Layout.preferredHeight: 40
        Label { text: vault.texts.title; font.pixelSize: 16; font.weight: Font.DemiBold; Layout.fillWidth: true }
    }
    Rectangle { Layout.fillWidth: true; height: 1; color: palette.mid }
    EmptyStateView {
        Layout.fillWidth: true
        Layout.fillHeight: true
        symbolName: vault.emptyState.symbolName
        title: vault.emptyState.title
        message: vault.emptyState.message
        actionTitle: vault.emptyState.actionTitle
        onAction: vault.presentFolderPicker()
    }
}
