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
    property var moments: null
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
    // The drive's hard moments, each a tick with its word, lined up with
    // the slider's thumb travel; a click plays from just before it.
    Item {
        id: marksRow
        objectName: "hardMomentMarks"
        readonly property var marks: scrubber.moments ? scrubber.moments.marks : []
        readonly property real duration: scrubber.controller ? Math.max(1.0, scrubber.controller.duration) : 1.0
        Layout.fillWidth: true
        Layout.preferredHeight: 16
        visible: marks.length > 0
        clip: true
        function xOf(time) { return 12 + time / duration * (width - 24) }
        Repeater {
            model: marksRow.marks
            delegate: Item {
                id: markItem
                required property var modelData
                required property int index
                objectName: "hardMomentMark"
                // Up to the next mark: a word that would run into it is cut short.
                readonly property real room: (index + 1 < marksRow.marks.length
                    ? marksRow.xOf(marksRow.marks[index + 1].time) : marksRow.width) - x - tick.width - 4
                x: marksRow.xOf(modelData.time) - 1
                width: tick.width + 2 + Math.max(0, Math.min(word.implicitWidth, room))
                height: marksRow.height
                Rectangle { id: tick; width: 2; height: parent.height; color: "#e0302a" }
                Label {
                    id: word
                    x: tick.width + 2
                    width: Math.max(0, Math.min(implicitWidth, markItem.room))
                    anchors.verticalCenter: parent.verticalCenter
                    text: markItem.modelData.word
                    font.pixelSize: 10
                    color: "#e0302a"
                    elide: Text.ElideRight
                }
                HoverHandler { id: markHover2 }
                TapHandler {
                    onTapped: if (scrubber.controller) scrubber.controller.seek(Math.max(0, markItem.modelData.time - 2))
                }
                ToolTip.visible: markHover2.hovered
                ToolTip.text: markItem.modelData.tip
                Accessible.role: Accessible.Button
                Accessible.name: markItem.modelData.tip
            }
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
    // Movement in front of each camera, a row each in the grid's order;
    // only where something happened.
    ActivityStrip {
        id: activityStrip
        objectName: "activityStrip"
        Layout.fillWidth: true
        Layout.topMargin: 3
        Layout.preferredHeight: implicitHeight
        visible: !!scrubber.moments && scrubber.moments.hasActivity
        activity: scrubber.moments ? scrubber.moments.activity : undefined
        duration: scrubber.controller ? Math.max(1.0, scrubber.controller.duration) : 1.0
        inset: 12
        activeColor: palette.highlight
        trackColor: Qt.rgba(palette.text.r, palette.text.g, palette.text.b, 0.08)
        MouseArea {
            id: activityArea
            anchors.fill: parent
            hoverEnabled: true
            onClicked: (mouse) => { if (scrubber.controller) scrubber.controller.seek(activityStrip.timeAt(mouse.x)) }
        }
        ToolTip.visible: activityArea.containsMouse
        ToolTip.delay: 600
        ToolTip.text: activityArea.containsMouse ? activityStrip.tipAt(activityArea.mouseX, activityArea.mouseY) : ""
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
