import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Keelhold

// The cameras of the event: the grid, or one camera large over a strip of
// all of them. One tile per camera slot is made with the screen and kept:
// a video view is costly to make (each sets up its own GPU context), so a
// new event or a change of layout only moves and refills the same tiles.
// Every player stays attached throughout, so focus never disturbs the sync.
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
    readonly property int maxCameras: 7
    readonly property real cellWidth: (width - (columns - 1) * spacing) / columns
    readonly property real cellHeight: (height - (rows - 1) * spacing) / rows
    readonly property real stripTop: height - rules.stripHeight
    readonly property real slotHeight: rules.stripHeight
    readonly property real slotWidth: slotHeight * 4 / 3
    readonly property int focusedIndex: {
        for (let i = 0; i < tiles.length; ++i)
            if (tiles[i].camera === focused)
                return i
        return -1
    }

    Label {
        objectName: "loadingCameras"
        anchors.centerIn: parent
        visible: grid.mode === "loading"
        text: grid.texts.loading || ""
        opacity: 0.7
    }

    EmptyStateView {
        objectName: "noFootage"
        anchors.fill: parent
        visible: grid.mode === "empty"
        symbolName: "video.slash"
        title: grid.texts.emptyTitle || ""
        message: grid.texts.emptyText || ""
    }

    Item {
        id: gridArea
        objectName: grid.mode === "grid" ? "gridLayout" : "focusedLayout"
        anchors.fill: parent
        visible: grid.mode === "grid" || grid.mode === "focused"

        // The strip: a small tile per camera, in tile order, scrolling
        // sideways without indicators.
        Flickable {
            id: strip
            objectName: "cameraStrip"
            visible: grid.mode === "focused"
            x: 0
            y: grid.stripTop
            width: parent.width
            height: grid.slotHeight
            clip: true
            contentWidth: grid.tiles.length * (grid.slotWidth + grid.spacing)
            contentHeight: height
            flickableDirection: Flickable.HorizontalFlick
            boundsBehavior: Flickable.StopAtBounds
            // The focused camera's own slot: a second view of the same
            // player, dimmed.
            CameraTile {
                objectName: grid.focusedIndex >= 0 ? "stripTile_" + grid.tiles[grid.focusedIndex].camera : ""
                visible: grid.mode === "focused" && grid.focusedIndex >= 0
                x: Math.max(0, grid.focusedIndex) * (grid.slotWidth + grid.spacing)
                width: grid.slotWidth
                height: grid.slotHeight
                small: true
                isFocused: true
                mediaTime: grid.controller ? grid.controller.currentTime : 0
                dimmed: true
                texts: grid.texts
                tileData: visible ? grid.tiles[grid.focusedIndex] : ({})
                tooltip: visible ? rules.stripTooltip(tileData.cameraName, true) : ""
            }
        }

        Repeater {
            id: tilesRepeater
            model: grid.maxCameras
            delegate: CameraTile {
                id: tile
                required property int index
                readonly property bool present: index < grid.tiles.length
                readonly property bool isBig: grid.mode === "focused" && index === grid.focusedIndex
                readonly property bool inStrip: grid.mode === "focused" && !isBig
                parent: inStrip ? strip.contentItem : gridArea
                visible: present && (grid.mode === "grid" || grid.mode === "focused")
                tileData: present ? grid.tiles[index] : ({})
                small: inStrip
                isFocused: isBig
                mediaTime: grid.controller ? grid.controller.currentTime : 0
                texts: grid.texts
                objectName: isBig ? "focusedTile" : (inStrip ? "stripTile_" : "cameraTile_") + (present ? tileData.camera : "")
                x: isBig ? 0 : inStrip ? index * (grid.slotWidth + grid.spacing)
                                       : (index % grid.columns) * (grid.cellWidth + grid.spacing)
                y: isBig || inStrip ? 0 : Math.floor(index / grid.columns) * (grid.cellHeight + grid.spacing)
                width: isBig ? gridArea.width : inStrip ? grid.slotWidth : grid.cellWidth
                height: isBig ? grid.stripTop - grid.spacing : inStrip ? grid.slotHeight : grid.cellHeight
                tooltip: !present ? "" : inStrip ? rules.stripTooltip(tileData.cameraName, false)
                                                 : rules.gridTileTooltip(tileData.cameraName)
                onTapFocus: {
                    if (isBig)
                        grid.controller.clearFocus()
                    else
                        grid.controller.focusedCamera = tileData.camera
                }
            }
        }
    }
}
