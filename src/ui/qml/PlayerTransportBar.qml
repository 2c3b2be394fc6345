import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Keelhold

// Play, pause, step, the moment, speed, and the way back to the grid.
RowLayout {
    id: bar
    property var controller: null
    property var presenter: null
    property var texts: ({})
    property var momentsTexts: ({})
    // Narrow panes drop the frame steps (the , and . keys remain) and the
    // words beside icons; nothing is cut off. Judged by the pane, not by the
    // row, whose width follows what it shows; and a turn after the pane's
    // width changes, since buttons shown inside the layout pass that set it
    // were left where they stood, on top of their neighbours.
    readonly property real paneWidth: parent ? parent.width : width
    property bool narrow: true
    function judgeWidth() { narrow = paneWidth < 740 }
    onPaneWidthChanged: Qt.callLater(judgeWidth)
    Component.onCompleted: judgeWidth()
    spacing: 4
    PlayerLayout { id: rules }

    component TransportButton: ToolButton {
        property string tip: ""
        focusPolicy: Qt.NoFocus
        icon.width: 20
        icon.height: 20
        icon.color: palette.buttonText
        ToolTip.visible: hovered && tip.length > 0
        ToolTip.delay: 600
        ToolTip.text: tip
    }

    TransportButton {
        objectName: "frameBackButton"
        visible: !bar.narrow
        icon.source: bar.texts.frameBackIcon
        tip: bar.texts.frameBackTip
        onClicked: bar.controller.stepFrame(-1)
    }
    TransportButton {
        objectName: "stepBackButton"
        icon.source: bar.texts.stepBackIcon
        tip: bar.texts.stepBackTip
        onClicked: bar.controller.stepBack()
    }
    TransportButton {
        objectName: "playPauseButton"
        icon.source: bar.controller && bar.controller.isPlaying ? bar.texts.pauseIcon : bar.texts.playIcon
        icon.width: 26
        icon.height: 26
        tip: bar.texts.playTip
        onClicked: bar.controller.togglePlayPause()
    }
    TransportButton {
        objectName: "stepForwardButton"
        icon.source: bar.texts.stepForwardIcon
        tip: bar.texts.stepForwardTip
        onClicked: bar.controller.stepForward()
    }
    TransportButton {
        objectName: "frameForwardButton"
        visible: !bar.narrow
        icon.source: bar.texts.frameForwardIcon
        tip: bar.texts.frameForwardTip
        onClicked: bar.controller.stepFrame(1)
    }
    TransportButton {
        objectName: "momentButton"
        visible: bar.controller !== null && bar.controller.triggerOffset !== null && bar.controller.triggerOffset !== undefined
        text: bar.texts.moment
        display: bar.narrow ? AbstractButton.IconOnly : AbstractButton.TextBesideIcon
        Accessible.name: bar.texts.moment || ""
        icon.source: bar.texts.momentIcon
        icon.color: "#e0302a"
        palette.buttonText: "#e0302a"
        tip: bar.texts.momentTip
        onClicked: bar.controller.jumpToMoment()
    }
    // Where something happened: activity in front of a camera, hard moments.
    TransportButton {
        objectName: "previousPlaceButton"
        visible: bar.controller !== null && bar.controller.hasPlaces
        icon.source: bar.texts.previousPlaceIcon
        tip: bar.momentsTexts.previousTip || ""
        Accessible.name: bar.momentsTexts.previousTip || ""
        onClicked: bar.controller.jumpToPlace(-1)
    }
    TransportButton {
        objectName: "nextPlaceButton"
        visible: bar.controller !== null && bar.controller.hasPlaces
        text: bar.momentsTexts.next || ""
        // Its words only where the row has room to spare for them.
        display: bar.paneWidth < 900 ? AbstractButton.IconOnly : AbstractButton.TextBesideIcon
        icon.source: bar.texts.nextPlaceIcon
        tip: bar.momentsTexts.nextTip || ""
        Accessible.name: bar.momentsTexts.next || ""
        onClicked: bar.controller.jumpToPlace(1)
    }
    Item { Layout.fillWidth: true }
    Label {
        objectName: "speedShortfall"
        visible: bar.controller !== null && bar.controller.isFallingBehind
        text: visible ? rules.speedShortfall(bar.controller.rate, bar.controller.playingRate) : ""
        color: "#c77700"
        elide: Text.ElideRight
        // Gives way to the buttons: the whole sentence is in its tooltip.
        Layout.fillWidth: true
        Layout.minimumWidth: 0
        Layout.maximumWidth: bar.narrow ? 160 : 320
        ToolTip.visible: shortfallHover.hovered && truncated
        ToolTip.text: text
        HoverHandler { id: shortfallHover }
    }
    Label { visible: !bar.narrow; text: bar.texts.speed; opacity: 0.8 }
    ComboBox {
        id: speed
        objectName: "speedPicker"
        focusPolicy: Qt.NoFocus
        readonly property var rates: bar.controller ? bar.controller.allowedRates : []
        model: rates.map(r => rules.speedLabel(r))
        currentIndex: bar.controller ? rates.indexOf(bar.controller.rate) : -1
        onActivated: (index) => bar.presenter.chooseRate(rates[index])
        implicitWidth: 80
        ToolTip.visible: hovered
        ToolTip.delay: 600
        ToolTip.text: bar.texts.speedTip
    }
    Button {
        objectName: "showAllCamerasButton"
        visible: bar.controller !== null && bar.controller.focusedCamera !== ""
        focusPolicy: Qt.NoFocus
        text: bar.texts.showAll
        icon.source: bar.texts.showAllIcon
        display: bar.narrow ? AbstractButton.IconOnly : AbstractButton.TextBesideIcon
        Accessible.name: bar.texts.showAll || ""
        ToolTip.visible: hovered
        ToolTip.delay: 600
        ToolTip.text: bar.texts.showAllTip
        // On the next turn, so the grid isn't rebuilt inside the click.
        onClicked: Qt.callLater(bar.controller.clearFocus)
    }
}
