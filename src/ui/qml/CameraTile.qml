import QtQuick
import QtQuick.Controls
import QtMultimedia
import Keelhold

// One camera: its video scaled to fit over a black field, or a placeholder
// that says why there is none. The player keeps feeding its own sink; this
// tile only shows copies of the frames, so tiles come and go freely.
Rectangle {
    id: tile
    property var tileData: ({})
    property bool isFocused: false
    property bool small: false
    property bool dimmed: false
    property string tooltip: ""
    property var texts: ({})
    signal tapFocus()

    // The timeline's position: past the end of this camera's footage the
    // tile says so, rather than holding its last frame.
    property real mediaTime: 0
    readonly property var player: tileData && tileData.player ? tileData.player : null
    readonly property bool footageEnded: player !== null && tileData.contentEnd > 0 && mediaTime > tileData.contentEnd + 0.05
    // A minute in the middle that doesn't play says why, as a camera without footage does.
    readonly property string gapReason: {
        const gaps = player !== null && tileData.gaps ? tileData.gaps : []
        for (let i = 0; i < gaps.length; ++i)
            if (mediaTime >= gaps[i].start && mediaTime < gaps[i].end)
                return gaps[i].reason
        return ""
    }
    readonly property bool showsVideo: player !== null && !footageEnded && gapReason.length === 0
    // Until its clips are read and its picture is found, the tile says so
    // over the picture it showed before, dimmed.
    readonly property bool waiting: (tileData && tileData.waiting === true) || (showsVideo && !player.hasPicture)
    objectName: (small ? "stripTile_" : "cameraTile_") + (tileData ? tileData.camera : "")
    color: "black"
    clip: true
    opacity: dimmed ? 0.45 : 1.0
    border.width: small && isFocused ? 2 : 0
    border.color: palette.highlight
    Accessible.role: Accessible.Button
    //: Screen reader name of a camera's tile; %1 is the camera's name, e.g. Left Side
    Accessible.name: qsTr("%1 camera").arg(tileData ? tileData.cameraName : "")

    VideoOutput {
        id: video
        objectName: "video"
        anchors.fill: parent
        anchors.margins: tile.border.width
        fillMode: VideoOutput.PreserveAspectFit
        visible: tile.showsVideo || tile.waiting
        opacity: tile.waiting ? 0.3 : 1.0
    }
    VideoMirror { player: tile.player; target: video.videoSink }

    Column {
        objectName: "waiting"
        visible: tile.waiting
        anchors.centerIn: parent
        width: parent.width - 24
        spacing: tile.small ? 2 : 8
        SymbolIcon {
            anchors.horizontalCenter: parent.horizontalCenter
            symbol: "hourglass"
            size: tile.small ? 16 : 32
            color: "#dddddd"
        }
        Label {
            objectName: "waitingText"
            visible: !tile.small
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            color: "#eeeeee"
            text: tile.texts.waiting || ""
        }
    }

    Column {
        objectName: "placeholder"
        visible: !tile.showsVideo && !tile.waiting
        anchors.centerIn: parent
        width: parent.width - 24
        spacing: tile.small ? 2 : 8
        SymbolIcon {
            anchors.horizontalCenter: parent.horizontalCenter
            symbol: tile.tileData && tile.tileData.locked ? "lock.fill" : "video.slash"
            size: tile.small ? 16 : 32
            color: "#bbbbbb"
        }
        Label {
            objectName: "placeholderText"
            visible: !tile.small
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            color: "#dddddd"
            text: tile.gapReason.length > 0 ? tile.gapReason
                  : !tile.footageEnded && tile.tileData && tile.tileData.placeholderReason ? tile.tileData.placeholderReason
                  : (tile.texts.noFootage || "")
        }
    }

    Label {
        x: tile.small ? 4 : 8
        y: tile.small ? 2 : 6
        text: (tile.tileData && tile.tileData.cameraName) || ""
        color: "white"
        font.pixelSize: tile.small ? 10 : 13
        font.weight: Font.DemiBold
        style: Text.Outline
        styleColor: "#80000000"
    }

    MouseArea {
        id: mouse
        anchors.fill: parent
        hoverEnabled: true
        cursorShape: Qt.PointingHandCursor
        onClicked: tile.tapFocus()
    }
    ToolTip.visible: mouse.containsMouse && tile.tooltip.length > 0
    ToolTip.delay: 600
    ToolTip.text: tile.tooltip
}
