import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

Rectangle {
    property string heading: ""
    default property alias content: body.data
    Layout.fillWidth: true
    implicitHeight: body.implicitHeight + 28
    radius: 10
    color: palette.base
    border.color: palette.mid
    ColumnLayout {
        id: body
        anchors.fill: parent
        anchors.margins: 14
        spacing: 8
        Label { text: parent.parent.heading; font.weight: Font.DemiBold; font.pixelSize: 15 }
    }
}
