import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

Rectangle {
    objectName: "readOnlyPromiseBanner"
    implicitHeight: row.implicitHeight + 24
    radius: 10
    color: Qt.rgba(palette.highlight.r, palette.highlight.g, palette.highlight.b, 0.10)
    border.color: Qt.rgba(palette.highlight.r, palette.highlight.g, palette.highlight.b, 0.35)
    RowLayout {
        id: row
        anchors.fill: parent
        anchors.margins: 12
        spacing: 12
        SymbolIcon { symbol: "lock.shield"; size: 22; color: palette.highlight; Layout.alignment: Qt.AlignTop }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 2
            Label { text: ui.texts.promiseTitle; font.weight: Font.DemiBold; Layout.fillWidth: true; wrapMode: Text.WordWrap }
            Label { text: ui.texts.promiseText; opacity: 0.75; Layout.fillWidth: true; wrapMode: Text.WordWrap }
        }
    }
}
