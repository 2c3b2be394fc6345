import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Keelhold

// Above the list while encrypted events wait for their keys: what that
// means, the way to unlock them, and the way to stop the car encrypting.
Rectangle {
    id: notice
    objectName: "encryptedNotice"
    implicitHeight: col.implicitHeight + 20
    color: Qt.rgba(0.15, 0.39, 0.92, 0.10)
    ColumnLayout {
        id: col
        anchors.fill: parent
        anchors.margins: 10
        spacing: 6
        RowLayout {
            spacing: 8
            UrlIcon { source: unlock.texts.noticeIcon; size: 18; color: "#b45309" }
            Label { text: unlock.texts.noticeTitle; font.weight: Font.DemiBold; Layout.fillWidth: true; wrapMode: Text.WordWrap }
        }
        Label {
            objectName: "noticeText"
            text: unlock.noticeText
            Layout.fillWidth: true; wrapMode: Text.WordWrap; opacity: 0.8; font.pixelSize: 12
        }
        Flow {
            Layout.fillWidth: true
            spacing: 8
            Button {
                objectName: "noticeUnlock"
                text: unlock.texts.noticeUnlock
                highlighted: true
                onClicked: unlock.openFor([])
            }
            Button {
                objectName: "noticeGuide"
                text: unlock.texts.noticeGuide
                onClicked: appState.showEncryptionGuide = true
            }
        }
    }
}
