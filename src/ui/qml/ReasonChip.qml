import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Keelhold

// The reason of an event: its symbol and its short or full label.
Rectangle {
    id: chip
    property string label: ""
    property string shortLabel: ""
    property string iconSource: ""
    property string blurb: ""
    property string accessibleText: ""
    property bool compact: true
    implicitWidth: chipRow.implicitWidth + 10
    implicitHeight: chipRow.implicitHeight + 6
    radius: height / 2
    color: Qt.rgba(palette.windowText.r, palette.windowText.g, palette.windowText.b, 0.07)
    Accessible.role: Accessible.StaticText
    Accessible.name: accessibleText
    HoverHandler { id: hover }
    ToolTip.visible: hover.hovered && blurb.length > 0
    ToolTip.text: blurb
    ToolTip.delay: 500
    RowLayout {
        id: chipRow
        anchors.centerIn: parent
        spacing: 4
        UrlIcon { source: chip.iconSource; size: 12 }
        Label { text: chip.compact ? chip.shortLabel : chip.label; font.pixelSize: 11 }
    }
}
