import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Keelhold

// The Vault's list column: storage summary and the kept events, each with
// its verification badge; removal goes to the Trash after a confirmation.
ColumnLayout {
    id: root
    objectName: "vaultEventListColumn"
    property string pendingRemoval: ""
    spacing: 0

    RowLayout {
        Layout.fillWidth: true
        Layout.leftMargin: 12
        Layout.rightMargin: 6
        Layout.preferredHeight: 40
        Label { text: vault.texts.title; font.pixelSize: 16; font.weight: Font.DemiBold; Layout.fillWidth: true }
        ToolButton {
            objectName: "changeVaultFolder"
            text: vault.texts.changeFolder
            display: AbstractButton.TextBesideIcon
            icon.source: vault.texts.changeFolderIcon
            icon.color: palette.buttonText
            ToolTip.visible: hovered; ToolTip.text: vault.texts.changeFolderTip; ToolTip.delay: 500
            Accessible.name: vault.texts.changeFolder
            onClicked: vault.presentFolderPicker()
        }
    }
    Rectangle { Layout.fillWidth: true; height: 1; color: palette.mid }

    RowLayout {
        objectName: "vaultStorageSummary"
        Layout.fillWidth: true
        Layout.margins: 10
        spacing: 8
        HoverHandler { id: summaryHover }
        ToolTip.visible: summaryHover.hovered; ToolTip.text: vault.texts.summaryTip; ToolTip.delay: 500
        UrlIcon { source: vault.texts.summaryIcon; size: 16 }
        Label { objectName: "summaryText"; text: vault.summary; Layout.fillWidth: true; elide: Text.ElideRight; font.pixelSize: 12 }
    }
    Rectangle { Layout.fillWidth: true; height: 1; color: palette.mid; opacity: 0.5 }

    ListView {
        id: list
        objectName: "vaultList"
        Layout.fillWidth: true
        Layout.fillHeight: true
        clip: true
        model: vault.rows
        ScrollBar.vertical: ScrollBar {}
        section.property: "dayHeading"
        section.labelPositioning: ViewSection.InlineLabels | ViewSection.CurrentLabelAtStart
        section.delegate: DayHeading {}
        delegate: EventRow {
            id: vrow
            width: ListView.view.width
            trailing: Component { VerificationInfoPopover { eventID: vrow.eventID } }
            onActivated: appState.selectedVaultEventID = eventID
            onMenuRequested: (x, y) => { root.pendingRemoval = ""; rowMenu.eventID = eventID; rowMenu.popup(this, x, y) }
        }
    }

    Menu {
        id: rowMenu
        objectName: "vaultRowMenu"
        property string eventID: ""
        MenuItem { objectName: "menuMoveToTrash"; text: vault.texts.moveToTrashItem; onTriggered: root.pendingRemoval = rowMenu.eventID }
    }

    AlertDialog {
        id: confirm
        objectName: "trashConfirmation"
        width: 420
        visible: root.pendingRemoval !== ""
        title: vault.texts.removalTitle
        onClosed: root.pendingRemoval = ""
        messageObjectName: "removalMessage"
        message: root.pendingRemoval !== "" ? vault.removalMessage(root.pendingRemoval) : ""
        footer: DialogButtonBox {
            Button {
                objectName: "confirmMoveToTrash"
                text: vault.texts.moveToTrash
                palette.buttonText: "#dc2626"
                DialogButtonBox.buttonRole: DialogButtonBox.DestructiveRole
                onClicked: { const id = root.pendingRemoval; root.pendingRemoval = ""; vault.remove(id) }
            }
            Button {
                objectName: "cancelMoveToTrash"
                text: vault.texts.cancel
                DialogButtonBox.buttonRole: DialogButtonBox.RejectRole
                onClicked: root.pendingRemoval = ""
            }
        }
    }

}
