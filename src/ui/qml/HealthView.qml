import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

Item {
    id: root
    objectName: "healthView"
    property var c: { appState.healthReport; return ui.healthContent() }

    EmptyStateView {
        anchors.fill: parent
        visible: !root.c.present
        symbolName: root.c.symbolName || ""
        title: root.c.title || ""
        message: root.c.message || ""
    }
    ScrollView {
        anchors.fill: parent
        visible: root.c.present === true
        contentWidth: availableWidth
        ColumnLayout {
            width: Math.min(parent.width - 48, 720)
            x: 24
            spacing: 14
            Item { height: 10 }
            ReadOnlyPromiseBanner { Layout.fillWidth: true }
            Card {
                heading: root.c.freeSpaceHeading || ""
                ProgressBar {
                    Layout.fillWidth: true
                    visible: root.c.hasFullness === true
                    value: root.c.fullnessFraction || 0
                    palette.highlight: root.c.barIsOrange ? "#f59e0b" : ui_accent
                    property color ui_accent: root.palette.highlight
                }
                Label { objectName: "fullnessText"; text: root.c.fullnessText || ""; wrapMode: Text.WordWrap; Layout.fillWidth: true }
            }
            Card { heading: root.c.formatHeading || ""; Label { text: root.c.formatVerdict || ""; wrapMode: Text.WordWrap; Layout.fillWidth: true } }
            Card {
                heading: root.c.conditionHeading || ""
                RowLayout {
                    Layout.fillWidth: true
                    SymbolIcon { visible: (root.c.conditionSymbol || "").length > 0; symbol: root.c.conditionSymbol || "" }
                    Label { objectName: "conditionText"; text: root.c.conditionText || ""; wrapMode: Text.WordWrap; Layout.fillWidth: true }
                }
                Label { visible: (root.c.conditionSubtext || "").length > 0; text: root.c.conditionSubtext || ""; opacity: 0.7; wrapMode: Text.WordWrap; Layout.fillWidth: true }
            }
            Card {
                visible: root.c.showEncryption === true
                heading: root.c.encryptionHeading || ""
                RowLayout { SymbolIcon { symbol: "lock.doc" } Label { text: root.c.encryptionText || "" } }
                Label { text: root.c.encryptionDetail || ""; opacity: 0.7; wrapMode: Text.WordWrap; Layout.fillWidth: true }
                Button {
                    text: root.c.encryptionButton || ""
                    ToolTip.visible: hovered; ToolTip.text: root.c.encryptionButtonTip || ""
                    onClicked: appState.showEncryptionGuide = true
                }
            }
            Label { text: root.c.recommendationsHeading || ""; font.pixelSize: 17; font.weight: Font.DemiBold; visible: (root.c.recommendations || []).length > 0 }
            Repeater {
                model: root.c.recommendations || []
                delegate: ColumnLayout {
                    Layout.fillWidth: true
                    spacing: 8
                    RowLayout {
                        spacing: 12
                        SymbolIcon { symbol: modelData.symbolName; size: 20; color: modelData.colour; Layout.alignment: Qt.AlignTop }
                        ColumnLayout {
                            Layout.fillWidth: true
                            spacing: 2
                            Label { text: modelData.title; font.weight: Font.DemiBold; Layout.fillWidth: true; wrapMode: Text.WordWrap }
                            Label { text: modelData.detail; opacity: 0.7; Layout.fillWidth: true; wrapMode: Text.WordWrap }
                        }
                    }
                    Rectangle { Layout.fillWidth: true; height: 1; color: palette.mid; opacity: 0.5 }
                }
            }
            Item { height: 16 }
        }
    }
}
