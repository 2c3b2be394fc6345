import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Keelhold

// What a keep did: its heading and up to three lines, then Done.
ColumnLayout {
    id: sheet
    objectName: "archiveReportSheet"
    signal done()
    spacing: 14
    RowLayout {
        spacing: 10
        UrlIcon { source: vault.report.headingIcon || ""; size: 28; color: palette.highlight }
        Label { objectName: "reportHeading"; text: vault.report.heading || ""; font.pixelSize: 20; font.weight: Font.DemiBold }
    }
    Repeater {
        model: vault.report.lines || []
        delegate: RowLayout {
            objectName: "reportLine"
            Layout.fillWidth: true
            spacing: 10
            UrlIcon { source: modelData.icon; size: 18; Layout.alignment: Qt.AlignTop }
            Label { text: modelData.text; wrapMode: Text.WordWrap; Layout.fillWidth: true }
        }
    }
    Item { implicitHeight: 4 }
    Button {
        objectName: "reportDone"
        Layout.alignment: Qt.AlignRight
        text: vault.texts.done
        highlighted: true
        onClicked: sheet.done()
    }
}
