import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Keelhold

// The car's record for the frame on screen, heads-up over the video: gear,
// speed, brake and accelerator, blinkers, steering wheel, driver assistance
// and heading. Fixed light-on-dark colours, so it reads over any picture in
// either colour scheme.
Rectangle {
    id: hud
    objectName: "drivingDataOverlay"
    property var drivingData: null
    readonly property var record: drivingData ? drivingData.record : ({})
    // Read from the record itself, so no binding sees the flag ahead of it.
    readonly property bool hasRecord: record.speed !== undefined
    readonly property var texts: drivingData ? drivingData.texts : ({})
    readonly property color dim: Qt.rgba(1, 1, 1, 0.28)
    readonly property color lit: "#ffffff"

    implicitWidth: row.implicitWidth + 28
    implicitHeight: row.implicitHeight + 20
    radius: 10
    color: Qt.rgba(0.05, 0.05, 0.07, 0.72)
    border.color: Qt.rgba(1, 1, 1, 0.12)

    RowLayout {
        id: row
        anchors.centerIn: parent
        spacing: 16

        // Gear: the four letters, the one engaged lit.
        Row {
            objectName: "gearIndicator"
            spacing: 3
            Repeater {
                model: ["P", "R", "N", "D"]
                delegate: Label {
                    required property string modelData
                    text: modelData
                    font.pixelSize: 15
                    font.weight: hud.record.gear === modelData ? Font.Bold : Font.Normal
                    color: hud.record.gear === modelData ? hud.lit : hud.dim
                }
            }
        }

        // Speed; a click switches the unit, which is remembered.
        Item {
            implicitWidth: Math.max(54, speedColumn.implicitWidth)
            implicitHeight: speedColumn.implicitHeight
            Column {
                id: speedColumn
                anchors.centerIn: parent
                Label {
                    objectName: "speedValue"
                    anchors.horizontalCenter: parent.horizontalCenter
                    text: hud.hasRecord ? String(hud.record.speed) : "–"
                    color: hud.lit
                    font.pixelSize: 28
                    font.weight: Font.Bold
                    font.family: "DejaVu Sans"
                }
                Label {
                    objectName: "speedUnit"
                    anchors.horizontalCenter: parent.horizontalCenter
                    //: Speed units under the speed; keep them short
                    text: hud.drivingData ? (hud.drivingData.useMiles ? qsTr("mph") : qsTr("km/h")) : ""
                    color: hud.dim
                    font.pixelSize: 10
                }
            }
            MouseArea {
                id: unitArea
                objectName: "speedUnitButton"
                anchors.fill: parent
                hoverEnabled: true
                cursorShape: Qt.PointingHandCursor
                onClicked: hud.drivingData.useMiles = !hud.drivingData.useMiles
            }
            ToolTip.visible: unitArea.containsMouse
            ToolTip.delay: 600
            ToolTip.text: hud.texts.unitTip || ""
        }

        // Pedals: the brake lamp over the accelerator's travel.
        Column {
            spacing: 5
            Rectangle {
                objectName: "brakeIndicator"
                readonly property bool on: hud.hasRecord && hud.record.brake === true
                width: 64; height: 18; radius: 4
                color: on ? "#e0302a" : "transparent"
                border.color: on ? "#e0302a" : hud.dim
                Label {
                    anchors.centerIn: parent
                    text: hud.texts.brake || ""
                    font.pixelSize: 10
                    font.weight: Font.Bold
                    font.letterSpacing: 0.8
                    color: parent.on ? "white" : hud.dim
                }
                HoverHandler { id: brakeHover }
                ToolTip.visible: brakeHover.hovered
                ToolTip.delay: 600
                ToolTip.text: hud.texts.brakeTip || ""
            }
            Row {
                spacing: 5
                Rectangle {
                    objectName: "acceleratorBar"
                    readonly property real fraction: hud.hasRecord ? hud.record.pedal : 0
                    anchors.verticalCenter: parent.verticalCenter
                    width: 40; height: 6; radius: 3
                    color: hud.dim
                    Rectangle {
                        width: parent.width * parent.fraction
                        height: parent.height
                        radius: 3
                        color: "#3ddc84"
                    }
                    HoverHandler { id: pedalHover }
                    ToolTip.visible: pedalHover.hovered
                    ToolTip.delay: 600
                    ToolTip.text: hud.texts.pedalTip || ""
                }
                Label {
                    objectName: "acceleratorText"
                    width: 22
                    text: hud.hasRecord ? hud.record.pedalText.replace(" ", "") : ""
                    color: hud.lit
                    font.pixelSize: 10
                    horizontalAlignment: Text.AlignRight
                }
            }
        }

        // Blinkers: an arrow each way, lit while the car signals.
        Row {
            spacing: 6
            Label {
                objectName: "blinkerLeft"
                readonly property bool on: hud.hasRecord && hud.record.blinkerLeft === true
                text: "◀"
                font.pixelSize: 18
                color: on ? "#3ddc84" : hud.dim
            }
            Label {
                objectName: "blinkerRight"
                readonly property bool on: hud.hasRecord && hud.record.blinkerRight === true
                text: "▶"
                font.pixelSize: 18
                color: on ? "#3ddc84" : hud.dim
            }
        }

        // The steering wheel, turned as the car's is.
        Row {
            spacing: 6
            Item {
                objectName: "steeringWheel"
                width: 26; height: 26
                anchors.verticalCenter: parent.verticalCenter
                rotation: hud.hasRecord ? Math.max(-540, Math.min(540, hud.record.steeringAngle)) : 0
                Rectangle {
                    anchors.fill: parent
                    radius: width / 2
                    color: "transparent"
                    border.color: hud.lit
                    border.width: 2.5
                }
                Rectangle { anchors.centerIn: parent; width: parent.width - 4; height: 2.5; color: hud.lit }
                Rectangle {
                    anchors.horizontalCenter: parent.horizontalCenter
                    y: parent.height / 2
                    width: 2.5; height: parent.height / 2 - 2
                    color: hud.lit
                }
                Rectangle { anchors.centerIn: parent; width: 7; height: 7; radius: 3.5; color: hud.lit }
                HoverHandler { id: wheelHover }
            }
            Label {
                objectName: "steeringText"
                width: 60
                anchors.verticalCenter: parent.verticalCenter
                text: hud.hasRecord ? hud.record.steeringText : ""
                color: hud.lit
                font.pixelSize: 12
            }
            ToolTip.visible: wheelHover.hovered
            ToolTip.delay: 600
            ToolTip.text: hud.texts.steeringTip || ""
        }

        // Heading: a needle and the compass point.
        Row {
            spacing: 6
            Item {
                width: 22; height: 22
                anchors.verticalCenter: parent.verticalCenter
                Rectangle { anchors.fill: parent; radius: width / 2; color: "transparent"; border.color: hud.dim; border.width: 1.5 }
                Label {
                    anchors.centerIn: parent
                    text: "▲"
                    font.pixelSize: 11
                    color: hud.lit
                    rotation: hud.hasRecord ? hud.record.heading : 0
                }
            }
            Label {
                objectName: "headingText"
                width: 58
                anchors.verticalCenter: parent.verticalCenter
                text: hud.hasRecord ? hud.record.headingText : ""
                color: hud.lit
                font.pixelSize: 12
            }
        }

        // Driver assistance, in words, only while engaged.
        Rectangle {
            objectName: "assistanceBadge"
            readonly property string words: hud.hasRecord ? hud.record.assistance : ""
            visible: words.length > 0
            width: assistanceLabel.implicitWidth + 16
            height: assistanceLabel.implicitHeight + 8
            radius: height / 2
            color: hud.hasRecord ? hud.record.assistanceColour : "transparent"
            Label {
                id: assistanceLabel
                objectName: "assistanceText"
                anchors.centerIn: parent
                text: parent.words
                color: "white"
                font.pixelSize: 12
                font.weight: Font.DemiBold
            }
        }
    }
}
