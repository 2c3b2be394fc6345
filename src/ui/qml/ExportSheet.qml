import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Keelhold

// "Export & Share": choose one camera copied as it is, or a new movie of the
// event with its layout, overlay, size and length; export it into a scratch
// folder, then show it in its folder, email it, or save a copy. Its flow and
// words are ExportFlow's; a fresh flow is made each time the sheet opens.
Popup {
    id: sheet
    objectName: "exportSheet"
    property var presenter: null
    property var flow: null
    readonly property var texts: flow ? flow.texts : ({})
    readonly property string stage: flow ? flow.state : "choosing"
    readonly property bool combined: flow !== null && flow.isCombined
    parent: Overlay.overlay
    anchors.centerIn: parent
    width: 560
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
                text: sheet.flow ? sheet.flow.explanationText : ""
            }
            GridLayout {
                objectName: "exportChoices"
                Layout.fillWidth: true
                columns: 2
                columnSpacing: 12
                rowSpacing: 6
                enabled: sheet.stage === "choosing"
                opacity: enabled ? 1 : 0.6

                Label { text: sheet.texts.layoutLabel || "" }
                ComboBox {
                    id: layoutChoice
                    objectName: "exportLayoutChoice"
                    Layout.preferredWidth: 280
                    model: sheet.flow ? sheet.flow.layouts : []
                    textRole: "name"
                    valueRole: "value"
                    currentIndex: sheet.flow ? indexOfValue(sheet.flow.layout) : -1
                    onActivated: sheet.flow.layout = currentValue
                    delegate: ItemDelegate {
                        objectName: "exportLayout_" + modelData.value
                        width: layoutChoice.width
                        text: modelData.name
                        highlighted: layoutChoice.highlightedIndex === index
                    }
                }

                Item { visible: reportAbout.visible; implicitWidth: 1; implicitHeight: 1 }
                Label {
                    id: reportAbout
                    objectName: "exportReportAbout"
                    visible: sheet.flow !== null && sheet.flow.isReport
                    Layout.preferredWidth: 280
                    wrapMode: Text.WordWrap
                    opacity: 0.8
                    text: sheet.flow === null ? ""
                          : sheet.flow.layout === "package" ? sheet.texts.packageAbout || ""
                          : sheet.texts.reportAbout || ""
                }
                Item { visible: keysBox.visible; implicitWidth: 1; implicitHeight: 1 }
                CheckBox {
                    id: keysBox
                    objectName: "exportIncludeKeys"
                    visible: sheet.flow !== null && sheet.flow.keysOffered
                    text: sheet.texts.includeKeys || ""
                    checked: sheet.flow !== null && sheet.flow.includeKeys
                    onToggled: sheet.flow.includeKeys = checked
                    ToolTip.visible: hovered
                    ToolTip.text: sheet.texts.includeKeysTip || ""
                }

                Label { text: sheet.texts.cameraLabel || ""; visible: cameraChoice.visible }
                ComboBox {
                    id: cameraChoice
                    objectName: "exportCameraChoice"
                    visible: sheet.flow !== null && sheet.flow.needsCamera
                    Layout.preferredWidth: 280
                    model: sheet.flow ? sheet.flow.cameras : []
                    textRole: "name"
                    valueRole: "raw"
                    currentIndex: sheet.flow ? indexOfValue(sheet.flow.selectedCamera) : -1
                    onActivated: sheet.flow.selectedCamera = currentValue
                }

                Label {
                    text: sheet.texts.overlayLabel || ""
                    visible: sheet.combined
                    Layout.alignment: Qt.AlignTop
                    Layout.topMargin: 10
                }
                GridLayout {
                    visible: sheet.combined
                    columns: 2
                    columnSpacing: 12
                    rowSpacing: 0
                    CheckBox {
                        objectName: "exportShowTime"
                        text: sheet.texts.overlayTime || ""
                        checked: sheet.flow !== null && sheet.flow.showTime
                        onToggled: sheet.flow.showTime = checked
                    }
                    CheckBox {
                        objectName: "exportShowNames"
                        text: sheet.texts.overlayNames || ""
                        checked: sheet.flow !== null && sheet.flow.showNames
                        onToggled: sheet.flow.showNames = checked
                    }
                    CheckBox {
                        objectName: "exportShowReason"
                        text: sheet.texts.overlayReason || ""
                        checked: sheet.flow !== null && sheet.flow.showReason
                        onToggled: sheet.flow.showReason = checked
                    }
                    CheckBox {
                        id: drivingDataBox
                        objectName: "exportShowDrivingData"
                        // Its word follows the clips, not the whole block being
                        // greyed while the movie is made.
                        readonly property bool offered: sheet.flow !== null && sheet.flow.drivingDataOffered
                        enabled: offered
                        text: offered ? sheet.texts.overlayDrivingData || "" : sheet.texts.noDrivingData || ""
                        opacity: offered ? 1 : 0.5
                        checked: sheet.flow !== null && sheet.flow.showDrivingData
                        onToggled: sheet.flow.showDrivingData = checked
                    }
                }

                Label { text: sheet.texts.sizeLabel || ""; visible: sheet.combined }
                RowLayout {
                    visible: sheet.combined
                    spacing: 4
                    Repeater {
                        model: [{ value: "720", key: "size720" }, { value: "1080", key: "size1080" },
                                { value: "full", key: "sizeFull" }]
                        RadioButton {
                            objectName: "exportSize_" + modelData.value
                            text: sheet.texts[modelData.key] || ""
                            checked: sheet.flow !== null && sheet.flow.size === modelData.value
                            onToggled: if (checked) sheet.flow.size = modelData.value
                        }
                    }
                }

                Label { text: sheet.texts.rangeLabel || ""; visible: sheet.combined }
                RowLayout {
                    visible: sheet.combined
                    spacing: 4
                    Repeater {
                        model: [{ value: "whole", key: "rangeWhole" }, { value: "moment", key: "rangeMoment" },
                                { value: "custom", key: "rangeCustom" }]
                        RadioButton {
                            objectName: "exportRange_" + modelData.value
                            text: sheet.texts[modelData.key] || ""
                            enabled: sheet.flow !== null && (modelData.value === "whole"
                                     || (modelData.value === "moment" ? sheet.flow.momentOffered : sheet.flow.customOffered))
                            checked: sheet.flow !== null && sheet.flow.range === modelData.value
                            onToggled: if (checked) sheet.flow.range = modelData.value
                            ToolTip.visible: hovered && modelData.value === "moment"
                            ToolTip.text: sheet.texts.rangeMomentTip || ""
                        }
                    }
                }

                Item { visible: customRow.visible; implicitWidth: 1; implicitHeight: 1 }
                RowLayout {
                    id: customRow
                    visible: sheet.combined && sheet.flow !== null && sheet.flow.range === "custom"
                    spacing: 6
                    Label { text: sheet.texts.rangeFrom || "" }
                    TimeSpinBox {
                        objectName: "exportRangeStart"
                        to: sheet.flow ? Math.floor(sheet.flow.timelineLength) : 0
                        value: sheet.flow ? Math.round(sheet.flow.customStart) : 0
                        onValueModified: sheet.flow.customStart = value
                    }
                    Label { text: sheet.texts.rangeTo || "" }
                    TimeSpinBox {
                        objectName: "exportRangeEnd"
                        to: sheet.flow ? Math.ceil(sheet.flow.timelineLength) : 0
                        value: sheet.flow ? Math.round(sheet.flow.customEnd) : 0
                        onValueModified: sheet.flow.customEnd = value
                    }
                    Label { text: sheet.texts.rangeUnit || ""; opacity: 0.7 }
                }
            }
            Label {
                objectName: "exportRangeProblem"
                Layout.fillWidth: true
                visible: text.length > 0
                wrapMode: Text.WordWrap
                color: "#c0392b"
                text: sheet.flow ? sheet.flow.rangeProblem : ""
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
                Label {
                    objectName: "exportProgressText"
                    Layout.fillWidth: true
                    elide: Text.ElideRight
                    text: sheet.flow && sheet.flow.progressText.length > 0 ? sheet.flow.progressText
                                                                         : sheet.texts.exporting || ""
                    opacity: 0.8
                }
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
