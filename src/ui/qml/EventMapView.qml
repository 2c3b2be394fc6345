import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Keelhold

// Located events as pins on a tile map, beside a list of every event.
// Choosing either hands over to the Drive section with that event selected.
Item {
    id: root
    objectName: "eventMapView"
    property bool fitted: false
    // Once the user has moved the map, arriving routes leave it where it is.
    property bool userMoved: false

    function tryFit() {
        if (fitted || !visible || map.width <= 0 || eventMap.pins.length === 0)
            return
        map.fitTo(eventMap.pins)
        fitted = true
    }
    function refitForRoutes() {
        if (fitted && !userMoved && visible && map.width > 0 && eventMap.pins.length > 0)
            map.fitTo(eventMap.pins)
    }
    onVisibleChanged: {
        if (visible)
            eventMap.showRoutes()
        tryFit()
    }
    Component.onCompleted: if (visible) eventMap.showRoutes()
    Connections { target: eventMap; function onPinsChanged() { root.tryFit() } }

    EmptyStateView {
        objectName: "mapEmptyState"
        anchors.fill: parent
        visible: eventMap.isEmpty
        symbolName: eventMap.texts.emptySymbol
        title: eventMap.texts.emptyTitle
        message: eventMap.texts.emptyText
    }

    RowLayout {
        anchors.fill: parent
        visible: !eventMap.isEmpty
        spacing: 0

        Item {
            id: mapArea
            Layout.fillWidth: true
            Layout.fillHeight: true
            clip: true

            TileMap {
                id: map
                objectName: "tileMap"
                anchors.fill: parent
                routes: eventMap.routes
                onWidthChanged: root.tryFit()
                onRoutesChanged: root.refitForRoutes()
            }

            DragHandler {
                id: drag
                target: null
                property point last: Qt.point(0, 0)
                onActiveChanged: { last = Qt.point(0, 0); if (active) root.userMoved = true }
                onTranslationChanged: {
                    map.pan(translation.x - last.x, translation.y - last.y)
                    last = Qt.point(translation.x, translation.y)
                }
            }
            WheelHandler {
                target: null
                onWheel: (event) => { root.userMoved = true; map.zoomAround(Math.pow(2, event.angleDelta.y / 240), event.x, event.y) }
            }
            PinchHandler {
                target: null
                property real lastScale: 1
                onActiveChanged: { lastScale = 1; if (active) root.userMoved = true }
                onScaleChanged: {
                    map.zoomAround(scale / lastScale, centroid.position.x, centroid.position.y)
                    lastScale = scale
                }
            }

            Repeater {
                model: eventMap.pins
                delegate: Item {
                    id: pin
                    objectName: "pin_" + modelData.id
                    readonly property point at: { map.revision; return map.toView(modelData.latitude, modelData.longitude) }
                    readonly property color tint: modelData.tint === "red" ? "#dc2626" : palette.highlight
                    x: at.x - width / 2
                    y: at.y - 34
                    width: Math.max(34, pinLabel.implicitWidth + 12)
                    height: 52
                    Rectangle {
                        id: head
                        anchors.horizontalCenter: parent.horizontalCenter
                        width: 28; height: 28; radius: 14
                        color: pin.tint
                        border.color: "white"; border.width: 2
                        UrlIcon { anchors.centerIn: parent; source: modelData.icon; size: 14; color: "white" }
                    }
                    Rectangle {
                        anchors.horizontalCenter: parent.horizontalCenter
                        anchors.top: head.bottom
                        width: 2; height: 6; color: pin.tint
                    }
                    Rectangle {
                        anchors.horizontalCenter: parent.horizontalCenter
                        y: 36
                        width: pinLabel.implicitWidth + 8; height: pinLabel.implicitHeight + 2
                        radius: 4
                        color: Qt.rgba(1, 1, 1, 0.85)
                        Label { id: pinLabel; anchors.centerIn: parent; text: modelData.label; font.pixelSize: 10; color: "#111" }
                    }
                    // Kept events carry a small check on their pin.
                    Rectangle {
                        objectName: "pinKept"
                        visible: modelData.kept
                        x: head.x + head.width - 10; y: head.y - 4
                        width: 14; height: 14; radius: 7
                        color: "#2e7d32"
                        border.color: "white"; border.width: 1.5
                        UrlIcon { anchors.centerIn: parent; source: eventMap.texts.keptIcon; size: 9; color: "white" }
                    }
                    Accessible.role: Accessible.Button
                    //: Screen reader name of a kept event's pin: its reason, then "Kept in your Vault"
                    Accessible.name: modelData.kept ? qsTr("%1, %2").arg(modelData.label).arg(eventMap.texts.kept)
                                                    : modelData.label
                    TapHandler { onTapped: eventMap.select(modelData.id) }
                }
            }

            // Without tiles the pins still stand and the list still works; say why the field is plain.
            Rectangle {
                objectName: "noTilesNote"
                visible: map.tilesUnavailable
                anchors.top: parent.top
                anchors.horizontalCenter: parent.horizontalCenter
                anchors.topMargin: 10
                width: Math.min(parent.width - 20, noTilesRow.implicitWidth + 24)
                height: noTilesRow.implicitHeight + 14
                radius: height / 2
                color: palette.base
                border.color: palette.mid
                RowLayout {
                    id: noTilesRow
                    anchors.centerIn: parent
                    width: parent.width - 24
                    spacing: 6
                    UrlIcon { source: eventMap.texts.noTilesIcon; size: 14 }
                    Label { objectName: "noTilesText"; text: eventMap.texts.noTiles; elide: Text.ElideRight; Layout.fillWidth: true }
                }
            }

            // What the routes' colours mean.
            Rectangle {
                objectName: "routeKey"
                visible: eventMap.hasRoutes
                anchors.left: parent.left
                anchors.bottom: parent.bottom
                anchors.margins: 10
                width: keyRow.implicitWidth + 16
                height: keyRow.implicitHeight + 10
                radius: 6
                color: Qt.rgba(1, 1, 1, 0.88)
                border.color: Qt.rgba(0, 0, 0, 0.15)
                RowLayout {
                    id: keyRow
                    anchors.centerIn: parent
                    spacing: 12
                    Repeater {
                        model: eventMap.routeKey
                        delegate: RowLayout {
                            spacing: 5
                            Rectangle { width: 16; height: 4; radius: 2; color: modelData.colour }
                            Label { text: modelData.label; font.pixelSize: 11; color: "#222" }
                        }
                    }
                }
            }

            Label {
                objectName: "mapAttribution"
                anchors.right: parent.right
                anchors.bottom: parent.bottom
                padding: 3
                leftPadding: 6; rightPadding: 6
                text: eventMap.texts.attribution
                font.pixelSize: 10
                color: "#333"
                background: Rectangle { color: Qt.rgba(1, 1, 1, 0.75) }
            }
        }

        Rectangle { width: 1; Layout.fillHeight: true; color: palette.mid }

        ListView {
            id: side
            objectName: "mapList"
            Layout.preferredWidth: 300
            Layout.fillHeight: true
            clip: true
            model: eventMap.listRows
            ScrollBar.vertical: ScrollBar {}
            section.property: "section"
            section.delegate: Label {
                required property string section
                width: ListView.view.width
                text: section
                font.weight: Font.DemiBold
                font.pixelSize: 12
                padding: 8
                opacity: 0.7
                background: Rectangle { color: palette.alternateBase }
            }
            delegate: ItemDelegate {
                objectName: "mapRow_" + modelData.id
                width: ListView.view.width
                onClicked: eventMap.select(modelData.id)
                //: Screen reader name of a row in the map's list: the event's reason, then its date and time
                Accessible.name: qsTr("%1, %2").arg(modelData.reasonLabel).arg(modelData.timestamp)
                contentItem: ColumnLayout {
                    spacing: 4
                    ReasonChip {
                        label: modelData.reasonLabel; shortLabel: modelData.reasonShortLabel; iconSource: modelData.reasonIcon
                        blurb: modelData.reasonBlurb; accessibleText: modelData.reasonAccessible; compact: false
                    }
                    Label { text: modelData.timestamp; font.pixelSize: 12 }
                    Label { visible: modelData.city.length > 0; text: modelData.city; font.pixelSize: 11; opacity: 0.7 }
                    RowLayout {
                        objectName: "mapRowKept"
                        visible: modelData.kept
                        spacing: 4
                        UrlIcon { source: eventMap.texts.keptIcon; size: 12 }
                        Label { text: eventMap.texts.kept; font.pixelSize: 11; opacity: 0.8 }
                    }
                }
            }
        }
    }
}
