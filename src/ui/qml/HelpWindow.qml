import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

// The help window: articles on the left, the selected one on the right. Its
// title, size and life are the controller's; the selection outlives it.
ApplicationWindow {
    id: win
    objectName: "helpWindow"
    width: 700; height: 480
    minimumWidth: 640; minimumHeight: 440
    palette.window: ui.colors.window
    palette.windowText: ui.colors.windowText
    palette.base: ui.colors.base
    palette.alternateBase: ui.colors.alternateBase
    palette.text: ui.colors.text
    palette.button: ui.colors.button
    palette.buttonText: ui.colors.buttonText
    palette.mid: ui.colors.mid
    palette.midlight: ui.colors.midlight
    palette.dark: ui.colors.dark
    palette.light: ui.colors.light
    palette.highlight: ui.colors.highlight
    palette.highlightedText: ui.colors.highlightedText
    palette.toolTipBase: ui.colors.toolTipBase
    palette.toolTipText: ui.colors.toolTipText
    palette.placeholderText: ui.colors.placeholderText
    property QtObject selection: null
    readonly property int selected: selection ? selection.selected : 0
    readonly property var article: ui.helpArticles[selected]

    RowLayout {
        anchors.fill: parent
        spacing: 0
        ListView {
            id: list
            Layout.preferredWidth: 230
            Layout.fillHeight: true
            model: ui.helpArticles
            currentIndex: win.selected
            //: Heading over the list of help articles
            header: Label { text: qsTr("Help"); font.weight: Font.DemiBold; padding: 12; opacity: 0.6 }
            delegate: ItemDelegate {
                width: ListView.view.width
                highlighted: index === win.selected
                onClicked: if (win.selection) win.selection.selected = index
                contentItem: RowLayout {
                    spacing: 8
                    SymbolIcon { symbol: ""; source: modelData.icon }
                    Label { text: modelData.title; wrapMode: Text.WordWrap; Layout.fillWidth: true }
                }
            }
        }
        Rectangle { width: 1; Layout.fillHeight: true; color: palette.mid }
        ScrollView {
            Layout.fillWidth: true
            Layout.fillHeight: true
            contentWidth: availableWidth
            ColumnLayout {
                x: 24
                width: Math.min(parent.width - 48, 560)
                spacing: 12
                Item { height: 8 }
                RowLayout {
                    spacing: 10
                    SymbolIcon { source: win.article.icon; size: 28 }
                    Label { objectName: "helpArticleTitle"; text: win.article.title; font.pixelSize: 20; font.weight: Font.DemiBold; wrapMode: Text.WordWrap; Layout.fillWidth: true }
                }
                Label { text: win.article.paragraphs[0]; wrapMode: Text.WordWrap; Layout.fillWidth: true; lineHeight: 1.2 }
                Repeater {
                    model: win.article.listLines
                    Label { text: "•  " + modelData; wrapMode: Text.WordWrap; Layout.fillWidth: true }
                }
                Repeater {
                    model: win.article.paragraphs.slice(1)
                    Label { text: modelData; wrapMode: Text.WordWrap; Layout.fillWidth: true; lineHeight: 1.2 }
                }
                Button {
                    objectName: "helpUnlock"
                    visible: !!win.article.offersUnlock
                    text: unlock.texts.unlockEncrypted
                    onClicked: unlock.openFor([])
                }
            }
        }
    }
}
