import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Keelhold

// The promise, the revalidation line, the triage toolbar and a divider.
ColumnLayout {
    id: header
    property bool isBulkSelecting: false
    signal bulkSelectingToggled(bool on)
    spacing: 8
    ReadOnlyPromiseBanner { Layout.fillWidth: true; Layout.leftMargin: 10; Layout.rightMargin: 10; Layout.topMargin: 8 }
    RowLayout {
        objectName: "revalidatingLine"
        visible: appState.isRevalidatingScan
        Layout.leftMargin: 12
        spacing: 6
        BusyIndicator { implicitWidth: 16; implicitHeight: 16; running: parent.visible }
        Label { text: inbox.texts.checking; font.pixelSize: 12; opacity: 0.75 }
    }
    TriageToolbar {
        Layout.fillWidth: true
        Layout.leftMargin: 8
        Layout.rightMargin: 8
        isBulkSelecting: header.isBulkSelecting
        onBulkSelectingToggled: (on) => header.bulkSelectingToggled(on)
    }
    Rectangle { Layout.fillWidth: true; height: 1; color: palette.mid }
}
