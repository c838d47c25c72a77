import QtQuick
import QtQuick.Templates as T
import Quellin

// A panel over everything else, closed by Escape or a press outside it.
T.Popup {
    id: panel

    // Whether the item that opened it can still be used.
    readonly property bool usable: parent !== null && parent.enabled && parent.visible

    onUsableChanged: if (!usable)
        close()

    onClosed: if (usable)
        parent.forceActiveFocus()

    modal: true
    focus: true
    padding: 8
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside

    background: Rectangle {
        radius: 12
        color: Theme.raised
        border.width: 1
        border.color: Theme.separator
    }

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.rowMotion }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Theme.rowMotion }
    }

    T.Overlay.modal: Rectangle {
        color: Theme.dim
    }
}
