import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

Rectangle {
    id: root
    signal eject()
    objectName: "sampleModeBanner"
    implicitHeight: Math.max(44, row.implicitHeight + 16)
    color: Qt.rgba(0.545, 0.361, 0.965, 0.14)
    RowLayout {
        id: row
        anchors.fill: parent
        anchors.leftMargin: 12
        anchors.rightMargin: 8
        spacing: 8
        SymbolIcon { symbol: "sparkles"; color: "#8b5cf6" }
        Label { text: ui.texts.sampleBanner; Layout.fillWidth: true; wrapMode: Text.WordWrap }
        Button { text: ui.texts.ejectSample; onClicked: root.eject() }
    }
}
