import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Keelhold

// The player's keys, each as a small key cap with its label; closable,
// remembered in the settings.
Item {
    id: bar
    objectName: "keyboardHintBar"
    KeyboardHints { id: hints }
    visible: hints.showHints
    implicitHeight: visible ? row.implicitHeight + 8 : 0

    RowLayout {
        id: row
        anchors.fill: parent
        anchors.topMargin: 4
        anchors.bottomMargin: 4
        spacing: 14
        Flow {
            Layout.fillWidth: true
            spacing: 14
            Repeater {
                model: hints.items
                delegate: Row {
                    required property var modelData
                    spacing: 5
                    Rectangle {
                        width: cap.implicitWidth + 10
                        height: cap.implicitHeight + 4
                        radius: 4
                        color: "transparent"
                        border.color: palette.mid
                        Label { id: cap; anchors.centerIn: parent; text: modelData.key; font.pixelSize: 11 }
                    }
                    Label { text: modelData.label; font.pixelSize: 11; opacity: 0.75; anchors.verticalCenter: parent.verticalCenter }
                }
            }
        }
        ToolButton {
            objectName: "hideHintsButton"
            focusPolicy: Qt.NoFocus
            text: "✕"
            font.pixelSize: 11
            ToolTip.visible: hovered
            ToolTip.text: hints.closeTooltip
            onClicked: hints.showHints = false
        }
    }
}
