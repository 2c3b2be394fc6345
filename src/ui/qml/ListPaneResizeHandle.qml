import QtQuick
import QtQuick.Controls

// A 1-point line in an 8-point hit area. The width follows the drag from its
// start, so it never drifts at the ends.
Item {
    id: root
    objectName: "listPaneResizeHandle"
    property real width_: 340
    signal widthDragged(real w)
    width: 8
    property bool dragging: false
    property real startWidth: 0

    Rectangle { anchors.horizontalCenter: parent.horizontalCenter; width: 1; height: parent.height; color: palette.mid }
    HoverHandler { id: hover; cursorShape: Qt.SizeHorCursor }
    DragHandler {
        target: null
        dragThreshold: 1
        onActiveChanged: {
            if (active) { root.dragging = true; root.startWidth = root.width_ }
            else root.dragging = false
        }
        onTranslationChanged: if (active) root.widthDragged(ui.dragWidth(root.startWidth, translation.x))
    }
    ToolTip.visible: hover.hovered && !dragging
    ToolTip.delay: 800
    ToolTip.text: ui.texts.resizeTip
    Accessible.name: qsTr("Resize event list")
}
