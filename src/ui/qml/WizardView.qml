import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

// intro → pickDrive → scanning. The sample path leaves the onboarding flag alone.
Item {
    id: wiz
    objectName: "wizardView"
    property string step: "intro"
    property bool cancellable: false
    signal finished()
    signal dismissed()
    function runSample() { appState.loadSampleFootage(); dismissed() }
    function openPanel(start) { drivePicker.presentOpenPanel(start) }

    Component.onCompleted: appState.refreshVolumeCandidates()

    // The panel (licence gate, the folder dialog, the "TeslaCam" root, the
    // bookmark) is the picker's; this follows where it leads.
    Connections {
        target: drivePicker
        // The step first: a cached scan can end the scanning before
        // beginScan returns, and the step must be there to see it end.
        function onPicked(root) { wiz.step = "scanning"; appState.beginScan(root) }
        function onLicenceWindowRequested() { licenceWindow.open() }
    }
    Button {
        objectName: "wizardCancel"
        visible: wiz.cancellable && wiz.step !== "scanning"
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: 12
        flat: true
        text: ui.texts.cancel
        onClicked: wiz.dismissed()
    }
    Dialog {
        id: licenceWindow
        objectName: "licenceWindow"
        anchors.centerIn: parent
        modal: true
        title: ui.texts.licenceTitle
        standardButtons: Dialog.Ok
        Label { text: ui.texts.licenceText; wrapMode: Text.WordWrap; width: 360 }
    }

    ColumnLayout {
        anchors.centerIn: parent
        width: Math.min(parent.width - 64, 520)
        spacing: 14
        visible: wiz.step === "intro"
        SymbolIcon { symbol: "car.side"; size: 56; Layout.alignment: Qt.AlignHCenter }
        Label { text: ui.texts.introTitle; font.pixelSize: 24; font.weight: Font.DemiBold; Layout.alignment: Qt.AlignHCenter }
        Label { text: ui.texts.introText; wrapMode: Text.WordWrap; Layout.fillWidth: true; horizontalAlignment: Text.AlignHCenter; opacity: 0.8; lineHeight: 1.2 }
        Button { objectName: "getStarted"; text: ui.texts.getStarted; highlighted: true; Layout.alignment: Qt.AlignHCenter; onClicked: wiz.step = "pickDrive" }
        Button { objectName: "trySample"; text: ui.texts.sampleButton; flat: true; Layout.alignment: Qt.AlignHCenter
                 ToolTip.visible: hovered; ToolTip.text: ui.texts.sampleTip; onClicked: wiz.runSample() }
    }

    ColumnLayout {
        anchors.centerIn: parent
        width: Math.min(parent.width - 64, 560)
        spacing: 12
        visible: wiz.step === "pickDrive"
        Label { objectName: "pickerTitle"; text: ui.texts.pickerTitle; font.pixelSize: 22; font.weight: Font.DemiBold }
        Label { text: ui.texts.pickerText; wrapMode: Text.WordWrap; Layout.fillWidth: true; opacity: 0.8 }
        Repeater {
            model: appState.driveVolumeCandidates
            delegate: ItemDelegate {
                objectName: "candidate_" + index
                Layout.fillWidth: true
                onClicked: wiz.openPanel(modelData.volumeURL)
                contentItem: RowLayout {
                    spacing: 10
                    SymbolIcon { symbol: "externaldrive.fill"; size: 22 }
                    ColumnLayout {
                        Layout.fillWidth: true; spacing: 0
                        Label { text: ui.candidateHeading(modelData); font.weight: Font.DemiBold; Layout.fillWidth: true; elide: Text.ElideRight }
                        Label { text: ui.candidateCapacity(modelData); opacity: 0.6; visible: text.length > 0; Layout.fillWidth: true }
                    }
                    SymbolIcon { symbol: "chevron.right" }
                }
                background: Rectangle { radius: 8; color: parent.hovered ? palette.midlight : palette.base; border.color: palette.mid }
            }
        }
        Label { visible: appState.driveVolumeCandidates.length > 0; text: ui.texts.pickerNote; wrapMode: Text.WordWrap; Layout.fillWidth: true; opacity: 0.6 }
        RowLayout {
            visible: appState.driveVolumeCandidates.length === 0
            spacing: 10
            SymbolIcon { symbol: "externaldrive.badge.questionmark"; size: 28 }
            Label { text: ui.texts.noCandidates; wrapMode: Text.WordWrap; Layout.fillWidth: true }
        }
        Button { objectName: "pickerSample"; visible: appState.driveVolumeCandidates.length === 0; text: ui.texts.sampleButton; flat: true
                 ToolTip.visible: hovered; ToolTip.text: ui.texts.sampleTip; onClicked: wiz.runSample() }
        RowLayout {
            spacing: 10
            Button { objectName: "back"; text: ui.texts.back; onClicked: wiz.step = "intro" }
            Item { Layout.fillWidth: true }
            Button { objectName: "chooseManually"; text: ui.texts.chooseManually; ToolTip.visible: hovered; ToolTip.text: ui.texts.chooseManuallyTip
                     onClicked: wiz.openPanel(ui.texts.removableMediaFolder) }
        }
        // The panel's own guidance, here too: the desktop's dialog may have no room for it.
        Label {
            objectName: "panelMessage"
            visible: drivePicker.isPanelOpen
            text: ui.texts.panelMessage
            wrapMode: Text.WordWrap
            Layout.fillWidth: true
            font.italic: true
            opacity: 0.8
        }
    }

    ColumnLayout {
        anchors.centerIn: parent
        width: Math.min(parent.width - 64, 480)
        spacing: 12
        visible: wiz.step === "scanning"
        property bool wasScanning: appState.isScanning
        Connections {
            target: appState
            function onIsScanningChanged() { if (!appState.isScanning && wiz.step === "scanning") wiz.finished() }
        }
        Label { objectName: "scanTitle"; text: ui.texts.scanTitle; font.pixelSize: 22; font.weight: Font.DemiBold; Layout.alignment: Qt.AlignHCenter }
        BusyIndicator { running: appState.isScanning; Layout.alignment: Qt.AlignHCenter }
        Label { visible: !!appState.scanProgress; text: appState.scanProgress ? appState.scanProgress.phase : ""; Layout.alignment: Qt.AlignHCenter }
        Label { visible: !!appState.scanProgress
                text: appState.scanProgress ? ui.scanCountsText(appState.scanProgress.eventsFound, appState.scanProgress.clipsFound) : ""
                Layout.alignment: Qt.AlignHCenter }
        Label { text: ui.texts.scanHint; opacity: 0.6; Layout.alignment: Qt.AlignHCenter }
        Button { objectName: "doneButton"; text: appState.isScanning ? ui.texts.browseWhileFinishes : ui.texts.startBrowsing; highlighted: true
                 Layout.alignment: Qt.AlignHCenter; onClicked: wiz.finished() }
    }
}
