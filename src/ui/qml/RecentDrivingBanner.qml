import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Keelhold

// Recent driving overwrites itself: offer to keep it now.
Rectangle {
    id: banner
    objectName: "recentDrivingBanner"
    signal keepAll()
    signal open()
    property bool hasEvents: true
    implicitHeight: col.implicitHeight + 20
    color: Qt.rgba(0.96, 0.62, 0.04, 0.12)
    ColumnLayout {
        id: col
        anchors.fill: parent
        anchors.margins: 10
        spacing: 6
        RowLayout {
            spacing: 8
            UrlIcon { source: inbox.texts.recentIcon; size: 18; color: "#b45309" }
            Label { text: inbox.texts.recentTitle; font.weight: Font.DemiBold; Layout.fillWidth: true; wrapMode: Text.WordWrap }
        }
        Label { text: inbox.texts.recentText; Layout.fillWidth: true; wrapMode: Text.WordWrap; opacity: 0.8; font.pixelSize: 12 }
        RowLayout {
            spacing: 8
            Button {
                objectName: "keepRecentNow"
                enabled: !appState.isArchiving
                text: inbox.texts.recentKeep
                icon.source: inbox.texts.recentKeepIcon
                icon.color: palette.buttonText
                highlighted: true
                ToolTip.visible: hovered; ToolTip.text: inbox.texts.recentKeepTip; ToolTip.delay: 500
                onClicked: banner.keepAll()
            }
            Button {
                objectName: "previewRecent"
                visible: banner.hasEvents
                text: inbox.texts.recentPreview
                onClicked: banner.open()
            }
        }
    }
}
