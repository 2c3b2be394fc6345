import QtQuick
import QtQuick.Controls

// Stands where a later screen goes (event list, Vault columns, map, player).
Rectangle {
    property string name: ""
    color: "transparent"
    Label { anchors.centerIn: parent; text: parent.name; opacity: 0.4 }
}
