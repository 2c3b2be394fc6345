import QtQuick
import QtQuick.Controls
import QtQuick.Controls.impl
import QtQuick.Layouts

// What the event is and where: reason, damage, verification; then date,
// place and coordinates.
ColumnLayout {
    id: bar
    property var metadata: ({})
    property var texts: ({})
    spacing: 6

    component IconLabel: RowLayout {
        property alias source: img.source
        property alias text: lbl.text
        property string tip: ""
        spacing: 4
        IconImage { id: img; sourceSize: Qt.size(14, 14); color: palette.windowText; opacity: 0.8 }
        Label { id: lbl; opacity: 0.85 }
        HoverHandler { id: hover }
        ToolTip.visible: hover.hovered && tip.length > 0
        ToolTip.delay: 600
        ToolTip.text: tip
    }

    RowLayout {
        spacing: 8
        Rectangle {
            objectName: "reasonChip"
            radius: height / 2
            color: Qt.rgba(palette.highlight.r, palette.highlight.g, palette.highlight.b, 0.15)
            implicitWidth: chip.implicitWidth + 16
            implicitHeight: chip.implicitHeight + 6
            //: Screen reader name of the reason chip; %1 is the car's reason, e.g. Sentry Mode detection
            Accessible.name: qsTr("Reason: %1").arg(bar.metadata.reasonLabel || "")
            IconLabel {
                id: chip
                anchors.centerIn: parent
                source: bar.metadata.reasonIcon || ""
                text: bar.metadata.reasonLabel || ""
                tip: bar.metadata.reasonTooltip || ""
            }
        }
        IconLabel {
            objectName: "corruptionGlyph"
            visible: (bar.metadata.damagedCount || 0) > 0
            source: bar.metadata.damagedIcon || ""
            text: String(bar.metadata.damagedCount || 0)
            tip: bar.metadata.damagedTooltip || ""
        }
        Item { Layout.fillWidth: true }
        Button {
            id: badge
            objectName: "verifiedBadge"
            visible: !!bar.metadata.verified
            flat: true
            focusPolicy: Qt.NoFocus
            icon.source: bar.metadata.verifiedIcon || ""
            text: bar.texts.verifiedLabel
            ToolTip.visible: hovered && !detail.visible
            ToolTip.delay: 600
            ToolTip.text: bar.texts.verifiedTip
            onClicked: detail.visible ? detail.close() : detail.open()
            Popup {
                id: detail
                y: badge.height
                width: 340
                contentItem: ColumnLayout {
                    spacing: 6
                    Label { text: bar.texts.verifiedTitle; font.weight: Font.DemiBold }
                    Label { Layout.fillWidth: true; wrapMode: Text.WordWrap; text: bar.texts.verifiedText }
                    Label { Layout.fillWidth: true; wrapMode: Text.WordWrap; text: bar.metadata.archivedLine || ""; opacity: 0.8 }
                }
            }
        }
    }
    Flow {
        Layout.fillWidth: true
        spacing: 16
        IconLabel { objectName: "dateText"; source: bar.metadata.dateIcon || ""; text: bar.metadata.dateText || "" }
        IconLabel {
            objectName: "cityText"
            visible: (bar.metadata.city || "").length > 0
            source: bar.metadata.cityIcon || ""
            text: bar.metadata.city || ""
        }
        IconLabel {
            objectName: "coordinatesText"
            source: bar.metadata.coordinatesIcon || ""
            text: bar.metadata.coordinatesText || ""
            tip: bar.metadata.coordinatesTooltip || ""
        }
    }
}
