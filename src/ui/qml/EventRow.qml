import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Keelhold

// One event of a list: tick in bulk mode, picture with the triage mark, two
// lines of text, the reason and any damage. All texts come made from C++.
Rectangle {
    id: row
    required property int index
    required property string eventID
    required property string timestampText
    required property string secondLine
    required property string textToolTip
    required property string accessibleName
    required property string fallbackIcon
    required property string thumbSource
    required property string overlayKind
    required property string overlayIcon
    required property string overlayToolTip
    required property string reasonLabel
    required property string reasonShortLabel
    required property string reasonIcon
    required property string reasonBlurb
    required property string reasonAccessible
    required property int corruptCount
    required property string corruptToolTip
    required property string corruptAccessible
    required property bool isBulkSelected
    required property string tickIcon
    required property string tickToolTip
    required property bool isSelected
    required property string lockState
    required property string lockIcon
    required property string lockToolTip
    required property string activityLine
    property bool bulkMode: false
    property Component trailing: null
    signal activated()
    signal toggleBulk()
    signal menuRequested(real x, real y)

    objectName: "eventRow_" + eventID
    implicitHeight: activityLine.length > 0 ? 80 : 64
    color: isSelected ? Qt.rgba(palette.highlight.r, palette.highlight.g, palette.highlight.b, 0.12) : "transparent"
    Accessible.role: Accessible.ListItem
    Accessible.name: accessibleName
    Accessible.selected: isSelected

    // In Select mode a tap ticks the row; it doesn't open it.
    TapHandler { onTapped: row.bulkMode ? row.toggleBulk() : row.activated() }
    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: (point) => row.menuRequested(point.position.x, point.position.y)
    }

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: 10
        anchors.rightMargin: 10
        spacing: 8

        ToolButton {
            objectName: "tick"
            visible: row.bulkMode
            implicitWidth: 28
            padding: 2
            icon.source: row.tickIcon
            icon.color: row.isBulkSelected ? palette.highlight : palette.windowText
            ToolTip.visible: hovered; ToolTip.text: row.tickToolTip; ToolTip.delay: 500
            onClicked: row.toggleBulk()
            Accessible.name: row.tickToolTip
        }

        Item {
            objectName: "thumbnail"
            Layout.preferredWidth: 60
            Layout.preferredHeight: 42
            Rectangle {
                anchors.fill: parent
                radius: 6
                color: Qt.rgba(palette.windowText.r, palette.windowText.g, palette.windowText.b, 0.08)
                clip: true
                UrlIcon {
                    anchors.centerIn: parent
                    visible: picture.status !== Image.Ready
                    source: row.fallbackIcon
                    size: 20
                    opacity: 0.6
                }
                Image {
                    id: picture
                    objectName: "picture"
                    anchors.fill: parent
                    source: row.thumbSource
                    asynchronous: true
                    cache: true
                    fillMode: Image.PreserveAspectCrop
                    sourceSize: Qt.size(200, 200)
                }
            }
            Rectangle {
                objectName: "newDot"
                visible: row.overlayKind === "dot"
                x: -3; y: -3
                width: 10; height: 10; radius: 5
                color: palette.highlight
                border.color: palette.base
                HoverHandler { id: dotHover }
                ToolTip.visible: dotHover.hovered; ToolTip.text: row.overlayToolTip
            }
            // The car's encrypted footage: locked, or unlocked with its keys kept here.
            Rectangle {
                objectName: "lockMark"
                visible: row.lockState.length > 0
                anchors.left: parent.left; anchors.bottom: parent.bottom
                anchors.margins: 2
                width: 18; height: 18; radius: 9
                color: palette.base
                UrlIcon {
                    anchors.centerIn: parent; source: row.lockIcon; size: 14
                    color: row.lockState === "locked" ? "#b45309" : "#16a34a"
                }
                HoverHandler { id: lockHover }
                ToolTip.visible: lockHover.hovered; ToolTip.text: row.lockToolTip
            }
            Rectangle {
                objectName: "keptMark"
                visible: row.overlayKind === "kept"
                anchors.right: parent.right; anchors.bottom: parent.bottom
                anchors.margins: 2
                width: 18; height: 18; radius: 9
                color: palette.base
                UrlIcon { anchors.centerIn: parent; source: row.overlayIcon; size: 16; color: "#16a34a" }
                HoverHandler { id: keptHover }
                ToolTip.visible: keptHover.hovered; ToolTip.text: row.overlayToolTip
            }
        }

        ColumnLayout {
            Layout.fillWidth: true
            spacing: 2
            HoverHandler { id: textHover }
            ToolTip.visible: textHover.hovered && row.textToolTip.length > 0
            ToolTip.text: row.textToolTip
            ToolTip.delay: 500
            Label {
                objectName: "firstLine"
                Layout.fillWidth: true
                text: row.timestampText
                font.weight: Font.DemiBold
                elide: Text.ElideRight
            }
            Label {
                objectName: "secondLine"
                Layout.fillWidth: true
                text: row.secondLine
                opacity: 0.7
                font.pixelSize: 12
                elide: Text.ElideRight
            }
            // Where something happened, once the footage has been looked at.
            Label {
                objectName: "activityLine"
                Layout.fillWidth: true
                visible: row.activityLine.length > 0
                text: row.activityLine
                color: palette.highlight
                font.pixelSize: 11
                elide: Text.ElideRight
            }
        }

        ColumnLayout {
            spacing: 2
            RowLayout {
                Layout.alignment: Qt.AlignRight
                spacing: 8
                // Part of the row's one accessibility element, not elements of their own.
                ReasonChip {
                    label: row.reasonLabel; shortLabel: row.reasonShortLabel; iconSource: row.reasonIcon
                    blurb: row.reasonBlurb; accessibleText: row.reasonAccessible; compact: true
                    Accessible.ignored: true
                }
                CorruptionGlyph {
                    visible: row.corruptCount > 0
                    count: row.corruptCount; toolTipText: row.corruptToolTip; accessibleText: row.corruptAccessible
                    Accessible.ignored: true
                }
            }
            Loader {
                Layout.alignment: Qt.AlignRight
                active: row.trailing !== null
                sourceComponent: row.trailing
                visible: active
            }
        }
    }
    Rectangle { anchors.bottom: parent.bottom; anchors.left: parent.left; anchors.right: parent.right; anchors.leftMargin: 10; height: 1; color: palette.mid; opacity: 0.35 }
}
