import QtQuick
import QtQuick.Dialogs

// The Vault's folder picker; on OK the folder becomes the Vault.
FolderDialog {
    objectName: "vaultFolderPicker"
    title: vault.texts.pickerTitle
    acceptLabel: vault.texts.pickerPrompt
    onAccepted: vault.chooseFolder(selectedFolder)
}
