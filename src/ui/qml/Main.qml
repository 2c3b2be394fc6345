import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

ApplicationWindow {
    id: window
    width: 1100
    height: 720
    minimumWidth: 900
    minimumHeight: 600
    visible: true
    title: "Keelhold"

    ColumnLayout {
        anchors.centerIn: parent
        spacing: 12
        Label {
            Layout.alignment: Qt.AlignHCenter
            text: "Keelhold"
            font.pixelSize: 32
            font.bold: true
        }
        Label {
            Layout.alignment: Qt.AlignHCenter
            text: "Your Tesla footage, safely read and kept."
            font.pixelSize: 16
            opacity: 0.7
        }
    }
}
