import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Keelhold

// The Drive section's list column: scanning, empty states, or the inbox.
ColumnLayout {
    id: root
    objectName: "eventListView"
    property bool isBulkSelecting: false
    property string menuEventID: ""
    spacing: 0

    // Column toolbar
    RowLayout {
        Layout.fillWidth: true
        Layout.leftMargin: 12
        Layout.rightMargin: 6
        Layout.preferredHeight: 40
        Label { text: inbox.texts.title; font.pixelSize: 16; font.weight: Font.DemiBold; Layout.fillWidth: true }
        ToolButton {
            objectName: "switchDrive"
            visible: inbox.showsSwitchDrive
            text: inbox.texts.switchDrive
            icon.source: inbox.texts.switchDriveIcon
            icon.color: palette.buttonText
            display: AbstractButton.TextBesideIcon
            ToolTip.visible: hovered; ToolTip.text: inbox.texts.switchDriveTip; ToolTip.delay: 500
            onClicked: appState.showOnboarding = true
        }
    }
    Rectangle { Layout.fillWidth: true; height: 1; color: palette.mid }

    // A failure replaces the list but not the column's title and toolbar,
    // so "Switch Drive" stays within reach.
    FailureView {
        property var s: { appState.currentFailure; return ui.failureScreen() }
        screen: s
        visible: inbox.content === "failure" && s.title !== undefined
        Layout.fillWidth: true
        Layout.fillHeight: true
    }

    ColumnLayout {
        objectName: "scanningStep"
        visible: inbox.content === "scanning"
        Layout.fillWidth: true
        Layout.fillHeight: true
        Item { Layout.fillHeight: true }
        BusyIndicator { Layout.alignment: Qt.AlignHCenter; running: parent.visible }
        Label { Layout.alignment: Qt.AlignHCenter; text: inbox.texts.scanTitle; font.pixelSize: 16; font.weight: Font.DemiBold }
        Label { Layout.alignment: Qt.AlignHCenter; text: inbox.scanCounts || inbox.texts.scanHint; opacity: 0.7 }
        Item { Layout.fillHeight: true }
    }

    EmptyStateView {
        objectName: "inboxEmptyState"
        visible: inbox.content === "noDrive" || inbox.content === "emptyDrive"
        Layout.fillWidth: true
        Layout.fillHeight: true
        symbolName: inbox.emptyScreen.symbolName || ""
        title: inbox.emptyScreen.title || ""
        message: inbox.emptyScreen.message || ""
        actionTitle: inbox.emptyScreen.actionTitle || ""
        secondaryTitle: inbox.emptyScreen.secondaryTitle || ""
        onAction: appState.showOnboarding = true
        onSecondaryAction: appState.showOnboarding = true
    }

    ColumnLayout {
        objectName: "inboxContent"
        visible: inbox.content === "inbox"
        Layout.fillWidth: true
        Layout.fillHeight: true
        spacing: 0

        // The filters and Select stay put; the banners scroll away with the
        // list, so they don't leave room for only a few rows.
        TriageToolbar {
            Layout.fillWidth: true
            Layout.leftMargin: 8
            Layout.rightMargin: 8
            Layout.topMargin: 6
            Layout.bottomMargin: 6
            isBulkSelecting: root.isBulkSelecting
            onBulkSelectingToggled: (on) => root.isBulkSelecting = on
        }
        Rectangle { Layout.fillWidth: true; height: 1; color: palette.mid }

        ListView {
            id: list
            objectName: "inboxList"
            Layout.fillWidth: true
            Layout.fillHeight: true
            clip: true
            focus: true
            model: inbox.rows
            keyNavigationEnabled: false
            reuseItems: true
            cacheBuffer: 640
            boundsBehavior: Flickable.StopAtBounds
            ScrollBar.vertical: ScrollBar {}
            section.property: "dayHeading"
            section.labelPositioning: ViewSection.InlineLabels | ViewSection.CurrentLabelAtStart
            section.delegate: DayHeading {}
            // The selection scrolls into view, wherever it was set from (keys, the map, Preview).
            Connections {
                target: inbox.rows
                function onSelectedIndexChanged() {
                    if (inbox.rows.selectedIndex >= 0)
                        list.positionViewAtIndex(inbox.rows.selectedIndex, ListView.Contain)
                }
            }
            Keys.onUpPressed: inbox.moveSelection(-1)
            Keys.onDownPressed: inbox.moveSelection(1)
            Keys.onPressed: (event) => {
                if (event.modifiers !== Qt.NoModifier && event.modifiers !== Qt.KeypadModifier)
                    return
                if (event.key === Qt.Key_K) { inbox.keepSelected(); event.accepted = true }
                else if (event.key === Qt.Key_D) { inbox.dismissSelected(); event.accepted = true }
            }
            header: Column {
                width: ListView.view ? ListView.view.width : 0
                SampleModeBanner {
                    visible: appState.isSampleMode
                    width: parent.width
                    onEject: inbox.ejectSample()
                }
                EncryptedNotice {
                    visible: unlock.showsNotice
                    width: parent.width
                }
                RecentDrivingBanner {
                    visible: inbox.showsRecentBanner
                    hasEvents: inbox.showsRecentBanner
                    width: parent.width
                    onKeepAll: inbox.keepRecentDriving()
                    onOpen: inbox.previewRecentDriving()
                }
                InboxListHeader { width: parent.width }
            }
            delegate: EventRow {
                width: ListView.view.width
                bulkMode: root.isBulkSelecting
                onActivated: { appState.selectedEventID = eventID; list.forceActiveFocus() }
                onToggleBulk: appState.toggleBulkSelection(eventID)
                onMenuRequested: (x, y) => {
                    root.menuEventID = eventID
                    rowMenu.popup(this, x, y)
                }
            }
        }
    }

    Menu {
        id: rowMenu
        objectName: "rowMenu"
        MenuItem { objectName: "menuKeep"; text: inbox.texts.keep; enabled: !appState.isArchiving; onTriggered: appState.keepIDs([root.menuEventID]) }
        MenuItem { objectName: "menuDismiss"; text: inbox.texts.dismiss; onTriggered: appState.dismissIDs([root.menuEventID]) }
    }
}
