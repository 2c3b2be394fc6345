import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Keelhold

// "Verified copy": a tap shows which files were checked, with their digests.
Item {
    id: badge
    objectName: "verificationBadge"
    property string eventID: ""
    property bool showDetail: false
    readonly property var info: { appState.vaultIndex; return vault.verification(eventID) }
    visible: info.present === true
    implicitWidth: badgeButton.implicitWidth
    implicitHeight: badgeButton.implicitHeight

    ToolButton {
        id: badgeButton
        objectName: "verificationButton"
        text: vault.texts.badge
        icon.source: vault.texts.badgeIcon
        icon.color: "#16a34a"
        display: AbstractButton.TextBesideIcon
        font.pixelSize: 11
        padding: 2
        icon.width: 14
        icon.height: 14
        ToolTip.visible: hovered; ToolTip.text: vault.texts.badgeTip; ToolTip.delay: 500
        Accessible.name: vault.texts.badge
        onClicked: badge.showDetail = !badge.showDetail
    }

    Popup {
        id: pop
        objectName: "verificationPopover"
        visible: badge.showDetail
        onClosed: badge.showDetail = false
        x: badgeButton.width - width
        y: badgeButton.height + 4
        width: 460
        padding: 14
        // Kept inside the window, however many files the event has: the list scrolls.
        margins: 12
        contentItem: ColumnLayout {
            spacing: 8
            Label { text: vault.texts.popoverTitle; font.pixelSize: 16; font.weight: Font.DemiBold }
            Label { text: vault.texts.popoverText; wrapMode: Text.WordWrap; Layout.fillWidth: true; opacity: 0.8 }
            Label { objectName: "archivedLine"; text: badge.info.archivedLine || ""; Layout.fillWidth: true; wrapMode: Text.WordWrap }
            Rectangle { Layout.fillWidth: true; height: 1; color: palette.mid }
            ListView {
                objectName: "verifiedFiles"
                Layout.fillWidth: true
                Layout.fillHeight: true
                Layout.preferredHeight: contentHeight
                Layout.minimumHeight: Math.min(contentHeight, 60)
                clip: true
                spacing: 4
                model: badge.info.files || []
                ScrollBar.vertical: ScrollBar { policy: ScrollBar.AsNeeded }
                delegate: ColumnLayout {
                    spacing: 0
                    width: ListView.view.width - 12
                    Label { text: modelData.name; font.weight: Font.DemiBold; font.pixelSize: 12 }
                    Label { text: modelData.sha256; font.family: "monospace"; font.pixelSize: 10; opacity: 0.75
                            Layout.fillWidth: true; wrapMode: Text.WrapAnywhere }
                }
            }
        }
    }
}
