import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Keelhold

// The Vault's list column: storage summary and the kept events, each with
// its verification badge; re-reading the Vault or one event; removal goes
// to the Trash after a confirmation.
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
        Label {
            id: vaultTitle
            text: vault.texts.title; font.pixelSize: 16; font.weight: Font.DemiBold
            Layout.fillWidth: true
            Layout.minimumWidth: implicitWidth
        }
        ToolButton {
            objectName: "verifyVault"
            text: vault.texts.verifyVault
            enabled: !vault.isVerifying
            // In a narrow column the icon alone, named by its tool tip.
            display: root.width < 360 ? AbstractButton.IconOnly : AbstractButton.TextBesideIcon
            icon.source: vault.texts.verifyVaultIcon
            icon.color: palette.buttonText
            ToolTip.visible: hovered; ToolTip.text: vault.texts.verifyVaultTip; ToolTip.delay: 500
            Accessible.name: vault.texts.verifyVault
            onClicked: vault.verifyAll()
        }
        ToolButton {
            objectName: "changeVaultFolder"
            text: vault.texts.changeFolder
            // Its words while they fit beside the title and the other button's icon.
            display: root.width < vaultTitle.implicitWidth + changeFolderWords.width + 110
                     ? AbstractButton.IconOnly : AbstractButton.TextBesideIcon
            TextMetrics { id: changeFolderWords; text: vault.texts.changeFolder }
            icon.source: vault.texts.changeFolderIcon
            icon.color: palette.buttonText
            ToolTip.visible: hovered; ToolTip.text: vault.texts.changeFolderTip; ToolTip.delay: 500
            Accessible.name: vault.texts.changeFolder
            onClicked: vault.presentFolderPicker()
        }
    }
    Rectangle { Layout.fillWidth: true; height: 1; color: palette.mid }

    // The drive on screen keeps itself when connected, or not.
    ColumnLayout {
        objectName: "autoKeepDrive"
        visible: vault.autoKeep.present === true
        Layout.fillWidth: true
        Layout.leftMargin: 8
        Layout.rightMargin: 8
        Layout.topMargin: 4
        spacing: 0
        CheckBox {
            id: autoOn
            objectName: "autoKeepOn"
            text: vault.autoKeep.label || ""
            checked: vault.autoKeep.on === true
            Layout.fillWidth: true
            contentItem: Label { text: autoOn.text; wrapMode: Text.WordWrap; leftPadding: autoOn.indicator.width + autoOn.spacing; verticalAlignment: Text.AlignVCenter }
            ToolTip.visible: hovered; ToolTip.text: vault.autoKeep.driveLine || ""; ToolTip.delay: 500
            onToggled: vault.setAutoKeep(checked, checked && autoRecent.checked)
        }
        CheckBox {
            id: autoRecent
            objectName: "autoKeepRecent"
            text: vault.autoKeep.recentLabel || ""
            checked: vault.autoKeep.recent === true
            enabled: autoOn.checked
            Layout.leftMargin: 24
            onToggled: vault.setAutoKeep(true, checked)
        }
    }

    // What the last re-reading found wrong, until the Vault is whole again.
    Rectangle {
        objectName: "vaultNotice"
        visible: vault.notice.present === true
        Layout.fillWidth: true
        Layout.margins: 8
        implicitHeight: noticeText.implicitHeight + 20
        radius: 8
        color: Qt.rgba(0.86, 0.15, 0.15, 0.12)
        border.color: "#dc2626"
        RowLayout {
            id: noticeText
            anchors.left: parent.left; anchors.right: parent.right; anchors.top: parent.top
            anchors.margins: 10
            spacing: 10
            UrlIcon { source: vault.texts.noticeIcon; size: 20; color: "#dc2626"; Layout.alignment: Qt.AlignTop }
            ColumnLayout {
                Layout.fillWidth: true
                spacing: 2
                Label { objectName: "noticeTitle"; text: vault.notice.title || ""; font.weight: Font.DemiBold; wrapMode: Text.WordWrap; Layout.fillWidth: true }
                Label { objectName: "noticeMessage"; text: vault.notice.message || ""; wrapMode: Text.WordWrap; Layout.fillWidth: true; font.pixelSize: 12 }
            }
        }
    }

    // A re-reading the user asked for: its progress, and a way to stop it.
    RowLayout {
        objectName: "verifyProgress"
        visible: vault.isVerifying
        Layout.fillWidth: true
        Layout.leftMargin: 10
        Layout.rightMargin: 6
        spacing: 8
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 4
            Label { objectName: "verifyLine"; text: vault.verifyLine; font.pixelSize: 12; elide: Text.ElideRight; Layout.fillWidth: true }
            ProgressBar { objectName: "verifyBar"; Layout.fillWidth: true; from: 0; to: 1; value: vault.verifyFraction }
        }
        Button { objectName: "cancelVerify"; text: vault.texts.cancel; onClicked: vault.cancelVerification() }
    }

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
        MenuItem { objectName: "menuVerify"; text: vault.texts.verifyItem; enabled: !vault.isVerifying; onTriggered: vault.verifyEvent(rowMenu.eventID) }
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
