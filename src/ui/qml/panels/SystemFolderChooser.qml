import QtQuick
import QtQuick.Dialogs
import Quellin

// The desktop's dialog to choose a folder, whose module may be missing.
FolderDialog {
    id: dialog

    required property Shell shell

    title: shell.fileChooserTitle
    currentFolder: shell.homeFolder
    onAccepted: shell.closeFileChooser(selectedFolder)
    onRejected: shell.closeFileChooser("")
    Component.onCompleted: open()
}
