import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Keelhold

// The one position of all cameras: a slider that seeks at once, the red
// mark of the moment, and the two times under it.
ColumnLayout {
    id: scrubber
    property var controller: null
    property var texts: ({})
    property var drivingData: null
    spacing: 0
    PlayerLayout { id: rules }

    Item {
        Layout.fillWidth: true
        Layout.preferredHeight: slider.implicitHeight
        Slider {
            id: slider
            objectName: "timelineSlider"
            anchors.fill: parent
            focusPolicy: Qt.NoFocus
            from: 0
            to: scrubber.controller ? Math.max(1.0, scrubber.controller.duration) : 1.0
            value: scrubber.controller ? scrubber.controller.currentTime : 0
            onMoved: if (scrubber.controller) scrubber.controller.seek(value)
            Accessible.name: scrubber.texts.sliderName
            ToolTip.visible: hovered && !pressed
            ToolTip.delay: 800
            ToolTip.text: scrubber.texts.sliderTip
        }
        Rectangle {
            id: mark
            objectName: "momentMark"
            readonly property real centre: scrubber.controller
                ? rules.momentMarkX(scrubber.controller.triggerOffset, scrubber.controller.duration, slider.width) : -1
            visible: centre >= 0
            x: centre - width / 2
            anchors.verticalCenter: parent.verticalCenter
            width: 3
            height: parent.height - 4
            radius: 1
            color: "#e0302a"
            Accessible.ignored: true
            HoverHandler { id: markHover }
            ToolTip.visible: markHover.hovered
            ToolTip.text: scrubber.controller && mark.visible ? rules.momentMarkTooltip(scrubber.controller.triggerOffset) : ""
        }
    }
    // Speed and braking over the whole event, lined up with the slider's
    // thumb travel; a click jumps there like the slider.
    SpeedStrip {
        id: strip
        objectName: "speedStrip"
        Layout.fillWidth: true
        Layout.preferredHeight: 14
        visible: !!scrubber.drivingData && scrubber.drivingData.hasData
        profile: scrubber.drivingData ? scrubber.drivingData.profile : undefined
        duration: scrubber.controller ? Math.max(1.0, scrubber.controller.duration) : 1.0
        inset: 12
        speedColor: palette.highlight
        trackColor: Qt.rgba(palette.text.r, palette.text.g, palette.text.b, 0.10)
        Accessible.ignored: true
        MouseArea {
            id: stripArea
            anchors.fill: parent
            hoverEnabled: true
            onClicked: (mouse) => {
                if (!scrubber.controller || strip.width <= 2 * strip.inset)
                    return
                const f = Math.max(0, Math.min(1, (mouse.x - strip.inset) / (strip.width - 2 * strip.inset)))
                scrubber.controller.seek(f * strip.duration)
            }
        }
        ToolTip.visible: stripArea.containsMouse
        ToolTip.delay: 800
        ToolTip.text: scrubber.drivingData ? scrubber.drivingData.texts.stripTip : ""
    }
    RowLayout {
        Layout.fillWidth: true
        Label {
            objectName: "currentTimeText"
            text: scrubber.controller ? scrubber.controller.timeString(scrubber.controller.currentTime) : ""
            font.family: "DejaVu Sans Mono"
            opacity: 0.8
        }
        Label {
            objectName: "approximateFramesNote"
            visible: !!scrubber.controller && scrubber.controller.isShowingApproximateFrames
            text: scrubber.controller ? scrubber.controller.approximateFramesText : ""
            font.italic: true
            opacity: 0.6
        }
        Item { Layout.fillWidth: true }
        Label {
            objectName: "durationText"
            text: scrubber.controller ? scrubber.controller.timeString(scrubber.controller.duration) : ""
            font.family: "DejaVu Sans Mono"
            opacity: 0.8
        }
    }
}
