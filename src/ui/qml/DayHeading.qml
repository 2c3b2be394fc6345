import QtQuick
import QtQuick.Controls

// The heading over one day's events in a list; it sticks to the top while
// its day scrolls past.
Rectangle {
    required property string section
    objectName: "dayHeading_" + section
    width: ListView.view ? ListView.view.width : 0
    height: 26
    color: palette.window
    Label {
        anchors.verticalCenter: parent.verticalCenter
        x: 12
        width: parent.width - 24
        elide: Text.ElideRight
        text: parent.section
        font.pixelSize: 12
        font.weight: Font.DemiBold
        opacity: 0.75
    }
    Rectangle { anchors.bottom: parent.bottom; width: parent.width; height: 1; color: palette.mid; opacity: 0.35 }
}
