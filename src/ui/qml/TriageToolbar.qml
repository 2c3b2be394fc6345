import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Keelhold

// Filter menu, the Select toggle, the bulk buttons and the filter tokens.
ColumnLayout {
    id: bar
    property bool isBulkSelecting: false
    signal bulkSelectingToggled(bool on)
    spacing: 6

    component Picker: Menu {
        id: picker
        property var entries: []
        property string current: ""
        signal picked(string value)
        Repeater {
            model: picker.entries
            delegate: MenuItem {
                objectName: "pick_" + (modelData.value === "" ? "none" : modelData.value)
                text: modelData.label
                checkable: true
                checked: picker.current === modelData.value
                onTriggered: picker.picked(modelData.value)
            }
        }
    }

    RowLayout {
        Layout.fillWidth: true
        spacing: 6
        Button {
            id: filterButton
            objectName: "filterButton"
            text: inbox.texts.filter
            icon.source: inbox.filterMenuIcon
            icon.color: palette.buttonText
            flat: true
            ToolTip.visible: hovered; ToolTip.text: inbox.texts.filterTip; ToolTip.delay: 500
            onClicked: filterMenu.popup(filterButton, 0, filterButton.height)
            Menu {
                id: filterMenu
                objectName: "filterMenu"
                Picker {
                    objectName: "statusPicker"
                    title: inbox.texts.status
                    entries: inbox.statusEntries
                    current: appState.filterState
                    onPicked: (v) => appState.filterState = v
                }
                Picker {
                    objectName: "reasonPicker"
                    title: inbox.texts.reason
                    entries: inbox.reasonEntries
                    current: appState.filterReason
                    onPicked: (v) => appState.filterReason = v
                }
                Picker {
                    objectName: "kindPicker"
                    title: inbox.texts.kind
                    entries: inbox.kindEntries
                    current: appState.filterKind
                    onPicked: (v) => appState.filterKind = v
                }
                MenuSeparator {}
                MenuItem {
                    objectName: "clearAllFilters"
                    text: inbox.texts.clearAll
                    onTriggered: inbox.clearAllFilters()
                }
            }
        }
        Item { Layout.fillWidth: true }
        Button {
            objectName: "selectToggle"
            text: inbox.texts.select
            icon.source: inbox.texts.selectIcon
            icon.color: palette.buttonText
            checkable: true
            flat: !checked
            checked: bar.isBulkSelecting
            ToolTip.visible: hovered; ToolTip.text: inbox.texts.selectTip; ToolTip.delay: 500
            onToggled: bar.bulkSelectingToggled(checked)
        }
    }

    // The bar keeps its place for the whole of Select mode, so the first
    // tick doesn't push the list down under the pointer.
    Item {
        objectName: "bulkBar"
        visible: bar.isBulkSelecting
        Layout.fillWidth: true
        implicitHeight: bulkKeepButton.implicitHeight
        Label {
            objectName: "bulkHint"
            visible: !bulkActions.visible
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width
            elide: Text.ElideRight
            text: inbox.texts.bulkHint
            opacity: 0.7
            font.pixelSize: 12
        }
    RowLayout {
        id: bulkActions
        objectName: "bulkActions"
        visible: { inbox.bulkCount; return inbox.showsBulkActions(bar.isBulkSelecting) }
        spacing: 6
        Button {
            id: bulkKeepButton
            objectName: "bulkKeep"
            enabled: !appState.isArchiving
            text: inbox.bulkKeepTitle
            icon.source: inbox.texts.bulkKeepIcon
            icon.color: palette.buttonText
            highlighted: true
            ToolTip.visible: hovered; ToolTip.text: inbox.texts.bulkKeepTip; ToolTip.delay: 500
            onClicked: appState.keepBulkSelection()
        }
        Button {
            objectName: "bulkDismiss"
            text: inbox.bulkDismissTitle
            icon.source: inbox.texts.bulkDismissIcon
            icon.color: palette.buttonText
            ToolTip.visible: hovered; ToolTip.text: inbox.texts.bulkDismissTip; ToolTip.delay: 500
            onClicked: appState.dismissBulkSelection()
        }
    }
    }

    Flow {
        objectName: "filterTokens"
        visible: inbox.showsTokens
        Layout.fillWidth: true
        spacing: 6
        Repeater {
            model: inbox.filterTokens
            delegate: Rectangle {
                objectName: "token_" + modelData.filter
                property string label: modelData.label
                height: 26
                width: tokenRow.implicitWidth + 14
                radius: 13
                color: Qt.rgba(palette.highlight.r, palette.highlight.g, palette.highlight.b, 0.15)
                RowLayout {
                    id: tokenRow
                    anchors.verticalCenter: parent.verticalCenter
                    x: 10
                    spacing: 2
                    Label { text: modelData.label; font.pixelSize: 12 }
                    ToolButton {
                        objectName: "removeToken"
                        implicitWidth: 22; implicitHeight: 22
                        icon.source: inbox.texts.tokenIcon
                        icon.color: palette.buttonText
                        icon.width: 10; icon.height: 10
                        ToolTip.visible: hovered; ToolTip.text: inbox.texts.tokenTip; ToolTip.delay: 500
                        onClicked: inbox.clearFilter(modelData.filter)
                    }
                }
            }
        }
    }
}
