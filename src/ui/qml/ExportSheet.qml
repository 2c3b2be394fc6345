import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Keelhold

// "Export & Share": choose a camera, export it into a scratch folder, then
// show it in its folder, email it, or save a copy. Its flow and words are
// ExportFlow's; a fresh flow is made each time the sheet opens.
Popup {
    id: sheet
    objectName: "exportSheet"
    property var presenter: null
    property var flow: null
    readonly property var texts: flow ? flow.texts : ({})
    readonly property string stage: flow ? flow.state : "choosing"
    parent: Overlay.overlay
    anchors.centerIn: parent
    width: 520
    modal: true
    closePolicy: Popup.NoAutoClose
    padding: 20

    onAboutToShow: flow = presenter ? presenter.newExportFlow() : null
    onClosed: if (flow) flow.stop()

    FileHandOff { id: handOff }

    contentItem: ColumnLayout {
        spacing: 12
        Label {
            text: sheet.texts.title || ""
            font.pixelSize: 18
            font.weight: Font.DemiBold
        }
        ReadOnlyPromiseBanner { objectName: "exportPromise"; Layout.fillWidth: true }

        // Choosing and exporting
        ColumnLayout {
            visible: sheet.stage !== "ready"
            Layout.fillWidth: true
            spacing: 10
            Label {
                Layout.fillWidth: true
                wrapMode: Text.WordWrap
                text: sheet.texts.explanation || ""
            }
            RowLayout {
                spacing: 8
                Label { text: sheet.texts.cameraLabel || "" }
                ComboBox {
                    id: cameraChoice
                    objectName: "exportCameraChoice"
                    enabled: sheet.stage === "choosing"
                    Layout.preferredWidth: 220
                    model: sheet.flow ? sheet.flow.cameras : []
                    textRole: "name"
                    valueRole: "raw"
                    currentIndex: sheet.flow ? indexOfValue(sheet.flow.selectedCamera) : -1
                    onActivated: sheet.flow.selectedCamera = currentValue
                }
            }
            Label {
                Layout.fillWidth: true
                wrapMode: Text.WordWrap
                text: sheet.texts.note || ""
                opacity: 0.7
                font.pixelSize: 12
            }
            Label {
                objectName: "exportError"
                Layout.fillWidth: true
                visible: sheet.flow !== null && sheet.flow.errorMessage.length > 0
                wrapMode: Text.WordWrap
                color: "#c0392b"
                text: sheet.flow ? sheet.flow.errorMessage : ""
            }
            ColumnLayout {
                visible: sheet.stage === "exporting"
                Layout.fillWidth: true
                ProgressBar {
                    objectName: "exportProgress"
                    Layout.fillWidth: true
                    from: 0; to: 1
                    value: sheet.flow ? sheet.flow.progress : 0
                }
                Label { text: sheet.texts.exporting || ""; opacity: 0.8 }
            }
        }

        // Ready
        ColumnLayout {
            visible: sheet.stage === "ready"
            Layout.fillWidth: true
            spacing: 10
            Label {
                objectName: "readyText"
                Layout.fillWidth: true
                wrapMode: Text.WrapAnywhere
                text: sheet.flow ? sheet.flow.readyText : ""
                font.weight: Font.DemiBold
            }
            RowLayout {
                spacing: 8
                Button {
                    objectName: "showInFolderButton"
                    text: sheet.texts.showInFolder || ""
                    ToolTip.visible: hovered
                    ToolTip.text: sheet.texts.showInFolderTip || ""
                    onClicked: handOff.showInFolder(sheet.flow.exportedPath)
                }
                Button {
                    objectName: "emailButton"
                    visible: handOff.canEmail
                    text: sheet.texts.email || ""
                    ToolTip.visible: hovered
                    ToolTip.text: sheet.texts.emailTip || ""
                    onClicked: handOff.email(sheet.flow.exportedPath)
                }
                Button {
                    objectName: "saveToButton"
                    enabled: sheet.flow !== null && !sheet.flow.isSaving
                    text: sheet.texts.saveTo || ""
                    ToolTip.visible: hovered
                    ToolTip.text: sheet.texts.saveToTip || ""
                    onClicked: sheet.flow.presentSavePanel()
                }
            }
            RowLayout {
                objectName: "savingRow"
                visible: sheet.flow !== null && sheet.flow.isSaving
                spacing: 8
                BusyIndicator { running: parent.visible; implicitWidth: 20; implicitHeight: 20 }
                Label { text: sheet.texts.saving || ""; opacity: 0.8 }
            }
            Label {
                objectName: "savedText"
                visible: text.length > 0
                text: sheet.flow ? sheet.flow.savedText : ""
            }
            Label {
                objectName: "saveError"
                visible: text.length > 0
                color: "#c0392b"
                text: sheet.flow ? sheet.flow.saveErrorMessage : ""
            }
        }

        RowLayout {
            Layout.fillWidth: true
            Layout.topMargin: 6
            Item { Layout.fillWidth: true }
            Button {
                objectName: "exportFooterButton"
                text: sheet.stage === "choosing" ? sheet.texts.cancel || ""
                    : sheet.stage === "exporting" ? sheet.texts.stop || "" : sheet.texts.done || ""
                ToolTip.visible: hovered && sheet.stage === "exporting"
                ToolTip.text: sheet.texts.stopTip || ""
                onClicked: sheet.stage === "exporting" ? sheet.flow.stop() : sheet.close()
            }
            Button {
                objectName: "startExportButton"
                visible: sheet.stage === "choosing"
                enabled: sheet.flow !== null && sheet.flow.canExport
                highlighted: true
                text: sheet.texts.export || ""
                onClicked: sheet.flow.startExport()
            }
        }
    }
}
