import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Keelhold

// The event's mark: "Verified …", "Incomplete — …", "Changed since it was
// kept" or "Missing"; a tap shows which files, with their digests and any
// problem the last re-reading found.
Item {
    id: badge
    objectName: "verificationBadge"
    property string eventID: ""
    property bool showDetail: false
    readonly property var info: { vault.marksRevision; return vault.verification(eventID) }
    readonly property color toneColor: info.tone === "bad" ? "#dc2626" : info.tone === "warning" ? "#d97706" : "#16a34a"
    readonly property color textColor: info.tone === "good" ? badge.palette.windowText : toneColor
    visible: info.present === true
    implicitWidth: badgeButton.implicitWidth
    implicitHeight: badgeButton.implicitHeight

    ToolButton {
        id: badgeButton
        objectName: "verificationButton"
        text: badge.info.badge || ""
        icon.source: badge.info.badgeIcon || ""
        icon.color: badge.toneColor
        palette.buttonText: badge.textColor
        display: AbstractButton.TextBesideIcon
        font.pixelSize: 11
        padding: 2
        icon.width: 14
        icon.height: 14
        ToolTip.visible: hovered; ToolTip.text: badge.info.badgeTip || ""; ToolTip.delay: 500
        Accessible.name: badge.info.badge || ""
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
            Label { objectName: "popoverTitle"; text: badge.info.title || ""; font.pixelSize: 16; font.weight: Font.DemiBold }
            Label { objectName: "popoverText"; text: badge.info.text || ""; wrapMode: Text.WordWrap; Layout.fillWidth: true; opacity: 0.8 }
            Label { objectName: "archivedLine"; text: badge.info.archivedLine || ""; Layout.fillWidth: true; wrapMode: Text.WordWrap }
            Label { objectName: "checkedLine"; text: badge.info.checkedLine || ""; Layout.fillWidth: true; wrapMode: Text.WordWrap; opacity: 0.8 }
            Rectangle { Layout.fillWidth: true; height: 1; color: palette.mid }
            // An event of a long drive has many files: they scroll.
            ListView {
                objectName: "verifiedFiles"
                Layout.fillWidth: true
                Layout.preferredHeight: Math.min(contentHeight, 300)
                clip: true
                spacing: 4
                model: badge.info.files || []
                ScrollBar.vertical: ScrollBar { policy: ScrollBar.AsNeeded }
                delegate: ColumnLayout {
                    width: ListView.view.width - 12
                    spacing: 0
                    RowLayout {
                        Layout.fillWidth: true
                        Label { text: modelData.name; font.weight: Font.DemiBold; font.pixelSize: 12 }
                        Label {
                            objectName: "fileProblem"
                            visible: modelData.problem !== ""
                            text: modelData.problem
                            color: "#dc2626"
                            font.pixelSize: 12
                        }
                    }
                    Label { text: modelData.sha256; font.family: "monospace"; font.pixelSize: 10; opacity: 0.75
                            Layout.fillWidth: true; wrapMode: Text.WrapAnywhere }
                }
            }
        }
    }
}
