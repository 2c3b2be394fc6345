import QtQuick
import QtQuick.Controls

// The pane's toolbar: keep and dismiss for the event, then export and focus
// mode. K and D reach the same actions through the player's keys.
Item {
    id: bar
    property var presenter: null
    property var texts: ({})
    property bool focusMode: false
    property var drivingData: null
    // In a narrow pane the labels shorten, then give way to icons (their
    // tooltips still say everything), so nothing is cut off.
    // A pane not yet sized is not narrow.
    readonly property bool narrow: width > 0 && width < 610
    readonly property bool veryNarrow: width > 0 && width < 450
    signal exportRequested()
    signal focusModeToggled()
    // Plain rows, each button at its own width: the layouts' cached sizes
    // don't always follow a label that changes after the first layout.
    readonly property int spacing: 6
    implicitHeight: Math.max(leading.implicitHeight, trailing.implicitHeight)
    implicitWidth: leading.implicitWidth + trailing.implicitWidth + 2 * spacing

    component ToolbarButton: Button {
        property string tip: ""
        focusPolicy: Qt.NoFocus
        display: AbstractButton.TextBesideIcon
        icon.width: 16
        icon.height: 16
        icon.color: palette.buttonText
        ToolTip.visible: hovered && tip.length > 0
        ToolTip.delay: 600
        ToolTip.text: tip
    }

    Row {
        id: leading
        spacing: bar.spacing
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        ToolbarButton {
            objectName: "keepButton"
            // One keep at a time: the running one is the one Cancel reaches.
            enabled: !appState.isArchiving
            text: bar.narrow ? bar.texts.keepShort : bar.texts.keep
            Accessible.name: bar.texts.keep
            icon.source: bar.texts.keepIcon
            highlighted: bar.presenter ? bar.presenter.keepProminent : false
            icon.color: highlighted ? palette.highlightedText : palette.buttonText
            flat: !highlighted
            tip: bar.texts.keepTip
            onClicked: bar.presenter.keep()
        }
        ToolbarButton {
            objectName: "dismissButton"
            text: bar.texts.dismiss
            display: bar.veryNarrow ? AbstractButton.IconOnly : AbstractButton.TextBesideIcon
            icon.source: bar.texts.dismissIcon
            flat: true
            tip: bar.texts.dismissTip
            onClicked: bar.presenter.dismiss()
        }
    }
    Row {
        id: trailing
        spacing: bar.spacing
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        ToolbarButton {
            id: exportButton
            objectName: "exportButton"
            text: (bar.texts.export || "").replace("&", "&&") // a lone & would underline the next letter
            display: bar.veryNarrow ? AbstractButton.IconOnly : AbstractButton.TextBesideIcon
            Accessible.name: bar.texts.export || ""
            icon.source: bar.texts.exportIcon
            flat: true
            tip: bar.texts.exportTip
            onClicked: bar.exportRequested()
        }
        // Always in its place; it works for events whose clips carry the car's
        // driving data.
        ToolbarButton {
            objectName: "drivingDataButton"
            enabled: !!bar.drivingData && bar.drivingData.hasData
            readonly property bool showing: enabled && bar.drivingData.showOverlay
            width: implicitContentWidth + leftPadding + rightPadding
            display: AbstractButton.IconOnly
            icon.source: bar.drivingData ? bar.drivingData.texts.toggleIcon : ""
            // Lit while the readings show, without a pressed-in look.
            icon.color: showing ? palette.highlight : palette.buttonText
            flat: true
            tip: !bar.drivingData ? "" : enabled ? bar.drivingData.texts.toggleTip : bar.drivingData.texts.noData
            Accessible.name: bar.drivingData ? bar.drivingData.texts.toggle : ""
            onClicked: bar.drivingData.showOverlay = !bar.drivingData.showOverlay
        }
        ToolbarButton {
            objectName: "focusModeButton"
            display: AbstractButton.IconOnly
            icon.source: bar.focusMode ? bar.texts.unfocusIcon : bar.texts.focusIcon
            flat: true
            tip: bar.texts.focusTip
            Accessible.name: bar.texts.focusTip
            onClicked: bar.focusModeToggled()
        }
    }
}
