import QtQuick
import QtQuick.Dialogs
import Quellin

// The desktop's dialog to choose a file, whose module may be missing.
FileDialog {
    id: dialog

    required property Shell shell

    title: shell.fileChooserTitle
    fileMode: FileDialog.OpenFile
    onAccepted: shell.closeFileChooser(selectedFile)
    onRejected: shell.closeFileChooser("")
    Component.onCompleted: open()
}
