import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Keelhold

// Over the list, scrolling with it: the promise and the revalidation line.
ColumnLayout {
    id: header
    spacing: 6
    ReadOnlyPromiseBanner { Layout.fillWidth: true; Layout.leftMargin: 10; Layout.rightMargin: 10; Layout.topMargin: 8 }
    RowLayout {
        objectName: "revalidatingLine"
        visible: appState.isRevalidatingScan
        Layout.leftMargin: 12
        spacing: 6
        BusyIndicator { implicitWidth: 16; implicitHeight: 16; running: parent.visible }
        Label { text: inbox.texts.checking; font.pixelSize: 12; opacity: 0.75 }
    }
    Item { implicitHeight: 2 }
}
