import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Keelhold

// What unlocking does, in plain words, and where the sign-in goes. The
// pasted token leaves the field the moment it is handed over.
Item {
    id: sheet
    objectName: "unlockSheet"
    signal dismissed()
    readonly property bool asksForToken: !unlock.hasToken

    ScrollView {
        anchors.fill: parent
        contentWidth: availableWidth
        ColumnLayout {
            width: parent.width
            spacing: 10
            RowLayout {
                spacing: 8
                UrlIcon { source: unlock.texts.icon; size: 24 }
                Label { text: unlock.texts.title; font.pixelSize: 20; font.weight: Font.DemiBold; Layout.fillWidth: true; wrapMode: Text.WordWrap }
            }
            Label { text: unlock.texts.intro; wrapMode: Text.WordWrap; Layout.fillWidth: true }
            Label { objectName: "whatIsSent"; text: unlock.texts.whatIsSent; wrapMode: Text.WordWrap; Layout.fillWidth: true; opacity: 0.8 }
            Label { text: unlock.texts.afterwards; wrapMode: Text.WordWrap; Layout.fillWidth: true; opacity: 0.8 }

            Label {
                visible: !sheet.asksForToken
                objectName: "signedIn"
                text: unlock.isRemembered ? unlock.texts.remembered : unlock.texts.signedIn
                wrapMode: Text.WordWrap; Layout.fillWidth: true
                font.weight: Font.DemiBold
            }
            ColumnLayout {
                visible: sheet.asksForToken
                Layout.fillWidth: true
                spacing: 6
                Label { text: unlock.texts.tokenHeading; font.weight: Font.DemiBold }
                Label { text: unlock.texts.browserSignInDetail; wrapMode: Text.WordWrap; Layout.fillWidth: true; opacity: 0.8 }
                RowLayout {
                    Layout.fillWidth: true
                    spacing: 8
                    Button {
                        objectName: "browserSignIn"
                        text: unlock.texts.browserSignIn
                        enabled: !unlock.busy
                        onClicked: unlock.beginBrowserSignIn()
                    }
                    TextField {
                        id: landedField
                        objectName: "landedField"
                        visible: unlock.browserSignInStarted
                        Layout.fillWidth: true
                        placeholderText: unlock.texts.landedPlaceholder
                        inputMethodHints: Qt.ImhSensitiveData | Qt.ImhNoPredictiveText
                        enabled: !unlock.busy
                        onAccepted: continueButton.clicked()
                    }
                    Button {
                        id: continueButton
                        objectName: "continueSignIn"
                        visible: unlock.browserSignInStarted
                        text: unlock.texts["continue"]
                        enabled: !unlock.busy && landedField.text.length > 0
                        onClicked: {
                            const landed = landedField.text
                            landedField.text = ""
                            unlock.finishBrowserSignIn(landed, rememberBox.checked)
                        }
                    }
                }
                Label { text: unlock.texts.orToken; font.weight: Font.DemiBold; Layout.topMargin: 4 }
                Repeater {
                    model: unlock.tokenSteps
                    RowLayout {
                        Layout.fillWidth: true
                        spacing: 8
                        Label { text: (index + 1) + "."; font.weight: Font.DemiBold; Layout.alignment: Qt.AlignTop }
                        Label { text: modelData; wrapMode: Text.WordWrap; Layout.fillWidth: true }
                    }
                }
                Button {
                    objectName: "openViewer"
                    text: unlock.texts.openViewer
                    onClicked: unlock.openViewer()
                }
                TextField {
                    id: tokenField
                    objectName: "tokenField"
                    Layout.fillWidth: true
                    placeholderText: unlock.texts.tokenPlaceholder
                    echoMode: TextInput.Password
                    inputMethodHints: Qt.ImhSensitiveData | Qt.ImhNoPredictiveText
                    enabled: !unlock.busy
                    onAccepted: unlockButton.clicked()
                }
                CheckBox {
                    id: rememberBox
                    objectName: "rememberBox"
                    text: unlock.texts.remember
                    enabled: !unlock.busy
                    ToolTip.visible: hovered; ToolTip.text: unlock.texts.rememberTip; ToolTip.delay: 500
                }
            }
            Label {
                objectName: "rememberNote"
                visible: unlock.rememberNote.length > 0
                text: unlock.rememberNote
                wrapMode: Text.WordWrap; Layout.fillWidth: true; opacity: 0.8
            }
            RowLayout {
                visible: unlock.busy
                spacing: 8
                BusyIndicator { running: unlock.busy; implicitWidth: 24; implicitHeight: 24 }
                Label { text: unlock.texts.busy }
            }
            Label {
                objectName: "unlockSummary"
                visible: unlock.summary.length > 0
                text: unlock.summary
                font.weight: Font.DemiBold
                wrapMode: Text.WordWrap; Layout.fillWidth: true
            }
            Repeater {
                model: unlock.messages
                Label {
                    objectName: "unlockMessage"
                    text: modelData
                    wrapMode: Text.WordWrap; Layout.fillWidth: true
                    color: "#b45309"
                }
            }
            RowLayout {
                Layout.fillWidth: true
                spacing: 8
                Button {
                    objectName: "forgetSignIn"
                    visible: unlock.hasToken
                    text: unlock.texts.forget
                    enabled: !unlock.busy
                    onClicked: unlock.forgetSignIn()
                }
                Button {
                    objectName: "signInAgain"
                    visible: unlock.offersSignInAgain && unlock.hasToken
                    text: unlock.texts.signInAgain
                    onClicked: unlock.signInAgain()
                }
                Item { Layout.fillWidth: true }
                Button {
                    objectName: "closeUnlock"
                    text: unlock.texts.close
                    onClicked: sheet.dismissed()
                }
                Button {
                    id: unlockButton
                    objectName: "unlockButton"
                    text: unlock.texts.unlock
                    highlighted: true
                    enabled: !unlock.busy && (!sheet.asksForToken || tokenField.text.length > 0)
                    onClicked: {
                        const pasted = sheet.asksForToken ? tokenField.text : ""
                        tokenField.text = ""
                        unlock.unlock(pasted, rememberBox.checked)
                    }
                }
            }
        }
    }
}
