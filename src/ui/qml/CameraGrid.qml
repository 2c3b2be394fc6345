import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Keelhold

// The cameras of the event: the grid, or one camera large over a strip of
// all of them. Every tile keeps its player attached in both layouts, so a
// change of focus never disturbs the sync.
Item {
    id: grid
    objectName: "cameraGrid"
    property var controller: null
    property var texts: ({})
    PlayerLayout { id: rules }

    readonly property var tiles: controller ? controller.tiles : []
    readonly property string focused: controller ? controller.focusedCamera : ""
    readonly property string mode: controller ? rules.gridMode(focused, tiles, controller.isLoadingTiles) : "loading"
    readonly property int columns: rules.gridColumns(tiles.length)
    readonly property int rows: Math.max(1, Math.ceil(tiles.length / columns))
    readonly property int spacing: 4
    readonly property var focusedTile: {
        for (let i = 0; i < tiles.length; ++i)
            if (tiles[i].camera === focused)
                return tiles[i]
        return null
    }

    Label {
        objectName: "loadingCameras"
        anchors.centerIn: parent
        visible: grid.mode === "loading"
        text: grid.texts.loading
        opacity: 0.7
    }

    EmptyStateView {
        objectName: "noFootage"
        anchors.fill: parent
        visible: grid.mode === "empty"
        symbolName: "video.slash"
        title: grid.texts.emptyTitle
        message: grid.texts.emptyText
    }

    Item {
        objectName: "gridLayout"
        anchors.fill: parent
        visible: grid.mode === "grid"
        readonly property real cellWidth: (width - (grid.columns - 1) * grid.spacing) / grid.columns
        readonly property real cellHeight: (height - (grid.rows - 1) * grid.spacing) / grid.rows
        Repeater {
            model: grid.mode === "grid" ? grid.tiles : []
            delegate: CameraTile {
                required property var modelData
                required property int index
                x: (index % grid.columns) * (parent.cellWidth + grid.spacing)
                y: Math.floor(index / grid.columns) * (parent.cellHeight + grid.spacing)
                width: parent.cellWidth
                height: parent.cellHeight
                tileData: modelData
                texts: grid.texts
                tooltip: rules.gridTileTooltip(modelData.cameraName)
                onTapFocus: grid.controller.focusedCamera = modelData.camera
            }
        }
    }

    ColumnLayout {
        objectName: "focusedLayout"
        anchors.fill: parent
        visible: grid.mode === "focused"
        spacing: grid.spacing
        CameraTile {
            objectName: "focusedTile"
            Layout.fillWidth: true
            Layout.fillHeight: true
            tileData: grid.mode === "focused" ? grid.focusedTile : ({})
            isFocused: true
            texts: grid.texts
            tooltip: grid.focusedTile ? rules.gridTileTooltip(grid.focusedTile.cameraName) : ""
            onTapFocus: grid.controller.clearFocus()
        }
        ListView {
            objectName: "cameraStrip"
            Layout.fillWidth: true
            Layout.preferredHeight: rules.stripHeight
            orientation: ListView.Horizontal
            spacing: grid.spacing
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            model: grid.mode === "focused" ? grid.tiles : []
            delegate: CameraTile {
                required property var modelData
                height: ListView.view.height
                width: height * 4 / 3
                small: true
                tileData: modelData
                texts: grid.texts
                isFocused: modelData.camera === grid.focused
                dimmed: isFocused
                tooltip: rules.stripTooltip(modelData.cameraName, isFocused)
                onTapFocus: grid.controller.focusedCamera = modelData.camera
            }
        }
    }
}
