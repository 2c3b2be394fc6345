import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

// The generic message panel: symbol, title, message, up to two buttons.
Item {
    id: root
    property string symbolName: ""
    property string title: ""
    property string message: ""
    property string actionTitle: ""
    property string secondaryTitle: ""
    signal action()
    signal secondaryAction()

    ColumnLayout {
        anchors.centerIn: parent
        width: Math.min(parent.width - 64, 480)
        spacing: 14
        SymbolIcon { Layout.alignment: Qt.AlignHCenter; symbol: root.symbolName; size: 48; opacity: 0.75 }
        Label {
            objectName: "emptyStateTitle"
            Layout.fillWidth: true
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            text: root.title
            font.pixelSize: 20
            font.weight: Font.DemiBold
        }
        Label {
            objectName: "emptyStateMessage"
            Layout.fillWidth: true
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            text: root.message
            opacity: 0.75
            lineHeight: 1.2
        }
        RowLayout {
            Layout.alignment: Qt.AlignHCenter
            spacing: 10
            Button { objectName: "emptyStateAction"; visible: root.actionTitle.length > 0; text: root.actionTitle; highlighted: true; onClicked: root.action() }
            Button { objectName: "emptyStateSecondary"; visible: root.secondaryTitle.length > 0; text: root.secondaryTitle; onClicked: root.secondaryAction() }
        }
    }
}
