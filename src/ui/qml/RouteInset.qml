import QtQuick
import QtQuick.Controls
import Keelhold

// A small map of the event's route in the player, with a dot that moves
// with the frame on screen.
Rectangle {
    id: inset
    objectName: "routeInset"
    property var drivingData: null
    readonly property var record: drivingData ? drivingData.record : ({})
    readonly property bool located: record.hasPosition === true
    color: "#e9e7e2"
    radius: 8
    clip: true
    border.color: Qt.rgba(1, 1, 1, 0.5)
    border.width: 1

    TileMap {
        id: map
        objectName: "routeInsetMap"
        anchors.fill: parent
        anchors.margins: 1
        routes: inset.drivingData ? inset.drivingData.route : undefined
        routeWidth: 3
        onRoutesChanged: fitToRoutes()
        onWidthChanged: fitToRoutes()
        onHeightChanged: fitToRoutes()
    }
    Rectangle {
        objectName: "routeMarker"
        visible: inset.located
        readonly property point at: {
            map.revision
            return inset.located ? map.toView(inset.record.latitude, inset.record.longitude) : Qt.point(0, 0)
        }
        x: map.x + at.x - width / 2
        y: map.y + at.y - height / 2
        width: 12; height: 12; radius: 6
        color: "#e0302a"
        border.color: "white"
        border.width: 2
    }
    Label {
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        padding: 2
        leftPadding: 4; rightPadding: 4
        text: "© OpenStreetMap"
        font.pixelSize: 8
        color: "#333"
        background: Rectangle { color: Qt.rgba(1, 1, 1, 0.7); radius: 3 }
    }
}
