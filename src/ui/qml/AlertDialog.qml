import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

// A question or refusal over the window: a title, one message, and the
// buttons given as `footer`. The window behind dims and takes no clicks.
Dialog {
    id: alert
    property alias message: messageLabel.text
    property alias messageObjectName: messageLabel.objectName
    parent: Overlay.overlay
    anchors.centerIn: parent
    modal: true
    width: Math.min(440, parent ? parent.width - 40 : 440)
    padding: 20
    topPadding: 8
    header: Label {
        text: alert.title
        font.pixelSize: 15
        font.weight: Font.DemiBold
        padding: 20
        bottomPadding: 4
        wrapMode: Text.WordWrap
    }
    contentItem: Label {
        id: messageLabel
        wrapMode: Text.WordWrap
        lineHeight: 1.15
        opacity: 0.85
    }
    Overlay.modal: Rectangle { color: "#66000000" }
}
