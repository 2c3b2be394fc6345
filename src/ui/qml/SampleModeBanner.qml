import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

Rectangle {
    id: root
    signal eject()
    objectName: "sampleModeBanner"
    implicitHeight: 44
    color: Qt.rgba(0.545, 0.361, 0.965, 0.14)
    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: 12
        anchors.rightMargin: 8
        spacing: 8
        SymbolIcon { symbol: "sparkles"; color: "#8b5cf6" }
        Label { text: ui.texts.sampleBanner; Layout.fillWidth: true; elide: Text.ElideRight }
        Button { text: ui.texts.ejectSample; onClicked: root.eject() }
    }
}
