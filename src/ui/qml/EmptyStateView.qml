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
        // Side by side where they fit, one above the other in a narrow column.
        GridLayout {
            Layout.alignment: Qt.AlignHCenter
            columnSpacing: 10
            rowSpacing: 8
            columns: primary.implicitWidth + secondary.implicitWidth + columnSpacing <= parent.width ? 2 : 1
            Button { id: primary; objectName: "emptyStateAction"; visible: root.actionTitle.length > 0; text: root.actionTitle; highlighted: true
                     Layout.alignment: Qt.AlignHCenter; onClicked: root.action() }
            Button { id: secondary; objectName: "emptyStateSecondary"; visible: root.secondaryTitle.length > 0; text: root.secondaryTitle
                     Layout.alignment: Qt.AlignHCenter; onClicked: root.secondaryAction() }
        }
    }
}
