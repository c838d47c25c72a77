import QtQuick
import QtQuick.Templates as T
import Quellin

// The popover or sheet of a stack: a popover below or above its anchor, a sheet from below on a narrow window, and
// either in the middle otherwise.
T.Popup {
    id: panel

    required property PageStack presenter
    // The screen that presents it.
    property PageView presenterView: null
    property bool usable: true
    // Its notices are shown here as well: nothing behind the popover or sheet can be reached.
    property Shell shell: null

    signal gone()

    // What is drawn, also while it closes.
    property PageStack stack: null
    // The anchor's place in the window; empty without an anchor.
    property rect anchor: Qt.rect(0, 0, 0, 0)

    readonly property Item window: T.Overlay.overlay
    readonly property double windowWidth: window ? window.width : 0
    readonly property double windowHeight: window ? window.height : 0
    readonly property bool popover: stack !== null && stack.popover
    readonly property bool narrow: windowWidth < 600
    readonly property bool anchored: popover && anchor.width > 0

    readonly property double margin: 16
    readonly property double gap: 8
    readonly property double roomAbove: anchor.y - gap - margin
    readonly property double roomBelow: windowHeight - margin - gap - (anchor.y + anchor.height)
    readonly property double popoverHeight: Math.min(windowHeight - 96, 640)
    // Below where that leaves enough of it to be seen.
    readonly property bool below: roomBelow >= Math.min(popoverHeight, 320) || roomBelow >= roomAbove

    function follow() {
        if (presenter.presented) {
            drop()
            stack = presenter.presented
            findAnchor()
            open()
        } else {
            close()
        }
    }

    function findAnchor() {
        const item = stack && presenterView ? presenterView.anchorItem(stack.anchorKind, stack.anchorIndex) : null
        anchor = item ? item.mapToItem(window, 0, 0, item.width, item.height) : Qt.rect(0, 0, 0, 0)
    }

    function within(position, size, whole) {
        return Math.max(margin, Math.min(whole - size - margin, position))
    }

    function drop() {
        if (stack && stack !== presenter.presented) {
            const gone = stack
            stack = null
            gone.release()
        }
    }

    // The type is named by its file: a stack of pages contains this one.
    onStackChanged: {
        if (stack)
            pages.setSource("StackPages.qml", { "stack": stack, "presented": true, "focus": true })
        else
            pages.source = ""
    }

    Component.onCompleted: if (presenter.presented)
        follow()
    onUsableChanged: if (!usable)
        presenter.dismiss()
    // The anchor moves when the window has been laid out.
    onWindowWidthChanged: Qt.callLater(findAnchor)
    onWindowHeightChanged: Qt.callLater(findAnchor)

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

    width: popover ? Math.min(windowWidth - 2 * margin, 420)
           : narrow ? windowWidth : Math.min(windowWidth - 48, 560)
    height: anchored ? Math.min(popoverHeight, Math.max(320, below ? roomBelow : roomAbove))
            : popover ? popoverHeight
            : narrow ? windowHeight - 48 : Math.min(windowHeight - 96, 720)
    x: anchored ? within(anchor.x + (anchor.width - width) / 2, width, windowWidth) : (windowWidth - width) / 2
    y: anchored ? within(below ? anchor.y + anchor.height + gap : anchor.y - gap - height, height, windowHeight)
       : narrow && !popover ? windowHeight - height : (windowHeight - height) / 2

    background: Rectangle {
        radius: 20
        color: Theme.background
        border.width: 1
        border.color: Theme.separator
    }

    contentItem: FocusScope {
        focus: true

        Loader {
            id: pages

            anchors {
                fill: parent
                // The page's corners are not rounded.
                topMargin: 12
                leftMargin: 2
                rightMargin: 2
                bottomMargin: panel.narrow && !panel.popover ? 0 : 12
            }
            focus: true
        }

        Loader {
            anchors {
                left: parent.left
                right: parent.right
                bottom: parent.bottom
                bottomMargin: 4
            }
            active: panel.shell !== null
            sourceComponent: NoticeBar {
                shell: panel.shell
                onKeyboardLeft: pages.forceActiveFocus()
            }
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
