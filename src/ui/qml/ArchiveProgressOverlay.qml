import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Keelhold

// A keep in progress, at the bottom of the detail area; Cancel stops after the current file.
Rectangle {
    id: overlay
    objectName: "archiveProgressOverlay"
    visible: vault.showsProgress
    implicitHeight: col.implicitHeight + 24
    radius: 12
    color: palette.window
    border.color: palette.mid
    ColumnLayout {
        id: col
        anchors.fill: parent
        anchors.margins: 12
        spacing: 8
        RowLayout {
            spacing: 10
            UrlIcon { source: vault.texts.overlayIcon; size: 22; color: palette.highlight }
            Label { text: vault.texts.overlayTitle; font.pixelSize: 15; font.weight: Font.DemiBold; Layout.fillWidth: true }
            Button {
                objectName: "cancelArchive"
                text: vault.texts.cancel
                ToolTip.visible: hovered; ToolTip.text: vault.texts.overlayCancelTip; ToolTip.delay: 500
                onClicked: vault.cancelArchive()
            }
        }
        ProgressBar { objectName: "archiveProgressBar"; Layout.fillWidth: true; from: 0; to: 1; value: vault.progressFraction }
        Label { objectName: "archiveProgressLine"; text: vault.progressLine; opacity: 0.75 }
    }
}
