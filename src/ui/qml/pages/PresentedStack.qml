import QtQuick
import QtQuick.Templates as T
import Quellin

// The popover or sheet of a stack: at its anchor, from below on a narrow window, or in the middle.
T.Popup {
    id: panel

    required property PageStack presenter
    property bool usable: true

    signal gone()

    // What is drawn, also while it goes.
    property PageStack stack: null

    readonly property Item window: T.Overlay.overlay
    readonly property double windowWidth: window ? window.width : 0
    readonly property double windowHeight: window ? window.height : 0
    readonly property bool popover: stack !== null && stack.popover
    readonly property bool narrow: windowWidth < 600

    function follow() {
        if (presenter.presented) {
            drop()
            stack = presenter.presented
            open()
        } else {
            close()
        }
    }

    function drop() {
        if (stack && stack !== presenter.presented) {
            stack.release()
            stack = null
        }
    }

    Component.onCompleted: if (presenter.presented)
        follow()
    onUsableChanged: if (!usable)
        presenter.dismiss()

    Connections {
        target: panel.presenter

        function onPresentedChanged() {
            panel.follow()
        }
    }

    parent: T.Overlay.overlay
    modal: true
    focus: true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    onAboutToHide: presenter.dismiss()
    onClosed: {
        drop()
        gone()
    }

    width: popover ? Math.min(windowWidth - 32, 420) : narrow ? windowWidth : Math.min(windowWidth - 48, 560)
    height: popover ? Math.min(windowHeight - 96, 640)
            : narrow ? windowHeight - 48 : Math.min(windowHeight - 96, 720)
    x: !popover || stack.anchorKind === PageStack.NoAnchor || stack.anchorKind === PageStack.RowAnchor
       ? (windowWidth - width) / 2
       : stack.anchorKind === PageStack.RightButton ? windowWidth - width - 16 : 16
    y: popover ? Math.min(68, windowHeight - height - 16) : narrow ? windowHeight - height : (windowHeight - height) / 2

    background: Rectangle {
        radius: 20
        color: Theme.background
        border.width: 1
        border.color: Theme.separator
    }

    contentItem: FocusScope {
        focus: true

        Loader {
            anchors {
                fill: parent
                topMargin: 8
                leftMargin: 1
                rightMargin: 1
                bottomMargin: panel.narrow && !panel.popover ? 0 : 12
            }
            active: panel.stack !== null
            focus: true
            // The type is named by its file: a stack of pages contains this one.
            onActiveChanged: if (active)
                setSource("StackPages.qml", { "stack": panel.stack, "presented": true, "focus": true })
        }
    }

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.motion }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Theme.motion }
    }

    T.Overlay.modal: Rectangle {
        color: Theme.dim
    }
}
