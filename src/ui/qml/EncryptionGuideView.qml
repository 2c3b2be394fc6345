import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

Item {
    id: guide
    objectName: "encryptionGuideView"
    signal dismissed()
    ColumnLayout {
        anchors.centerIn: parent
        width: Math.min(parent.width - 48, 560)
        spacing: 12
        RowLayout { SymbolIcon { symbol: "lock.open"; size: 28 } Label { text: ui.texts.guideTitle; font.pixelSize: 20; font.weight: Font.DemiBold } }
        Label { text: ui.texts.guideIntro; wrapMode: Text.WordWrap; Layout.fillWidth: true; opacity: 0.8 }
        Repeater {
            model: ui.guideSteps
            RowLayout {
                spacing: 10
                Label { text: (index + 1) + "."; font.weight: Font.DemiBold }
                SymbolIcon { symbol: modelData.symbolName; size: 20 }
                ColumnLayout { spacing: 0; Layout.fillWidth: true
                    Label { text: modelData.title; font.weight: Font.DemiBold }
                    Label { text: modelData.detail; opacity: 0.7; wrapMode: Text.WordWrap; Layout.fillWidth: true } }
            }
        }
        Repeater {
            model: ui.guideNotes
            RowLayout { spacing: 10
                SymbolIcon { symbol: modelData.symbolName; Layout.alignment: Qt.AlignTop }
                Label { text: modelData.text; wrapMode: Text.WordWrap; Layout.fillWidth: true; opacity: 0.8 } }
        }
        RowLayout {
            Button { text: ui.texts.guideViewerButton; ToolTip.visible: hovered; ToolTip.text: ui.texts.guideViewerTip
                     onClicked: Qt.openUrlExternally(ui.texts.guideViewerURL) }
            Item { Layout.fillWidth: true }
            Button { text: ui.texts.guideClose; highlighted: true; onClicked: guide.dismissed() }
        }
    }
}
