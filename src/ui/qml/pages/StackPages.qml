import QtQuick
import Quellin

// The screens of a stack: the top one alone, or beside the one below it.
FocusScope {
    id: view

    required property PageStack stack
    property Shell shell: null
    // Whether the window is wide enough for two screens.
    property bool sideBySide: false
    // Whether the stack is a popover or sheet, which its first screen closes.
    property bool presented: false

    readonly property bool divided: sideBySide && stack.depth > 1
    readonly property double half: Math.floor(width / 2)

    readonly property PageView topScreen: screens.count > 0 ? screens.itemAt(stack.depth - 1) as PageView : null

    function goBack() {
        if (topScreen)
            topScreen.page.goBack()
    }

    function refresh() {
        if (topScreen && topScreen.page.canRefresh)
            topScreen.page.pull()
    }

    // Whether the top screen has a search field.
    function focusSearch() {
        return topScreen !== null && topScreen.focusSearch(true)
    }

    function tabOpened() {
        if (topScreen && topScreen.page.searchOnOpening)
            topScreen.focusSearch(true)
    }

    // Later, when the screen has taken the focus from the one below.
    onTopScreenChanged: Qt.callLater(screenOpened)

    function screenOpened() {
        if (topScreen && shell && !shell.touching)
            topScreen.opened()
    }

    onSideBySideChanged: stack.setSideBySide(sideBySide)
    Component.onCompleted: stack.setSideBySide(sideBySide)
    clip: true

    Repeater {
        id: screens

        model: view.stack

        PageView {
            id: screen

            required property int index
            required property bool leaving

            // How many screens of the stack are above this one; negative once it was popped.
            readonly property int above: view.stack.depth - 1 - index
            readonly property bool atLeft: view.divided && above === 1
            readonly property bool atRight: view.divided && above === 0
            readonly property bool shown: above === 0 || atLeft

            property bool placed: index === 0

            x: leaving || !placed ? view.width : atRight ? view.half : shown ? 0 : -view.width / 4
            width: atLeft ? view.half : atRight ? view.width - view.half : view.width
            height: view.height
            visible: shown || slide.running
            enabled: shown
            focus: above === 0
            canGoBack: page.canGoBack && !atLeft
            closable: view.presented && index === 0

            Component.onCompleted: placed = true

            Behavior on x {
                enabled: Theme.moves && view.visible

                NumberAnimation {
                    id: slide

                    duration: Theme.motion
                    easing.type: Easing.OutCubic
                    onRunningChanged: if (!running && screen.leaving)
                        Qt.callLater(view.stack.dropLeaving)
                }
            }

            Rectangle {
                width: 1
                height: parent.height
                color: Theme.separator
                visible: screen.atRight
            }
        }
    }

    PresentedStack {
        presenter: view.stack
        shell: view.shell
        presenterView: view.topScreen
        usable: view.visible && view.enabled
        onGone: if (usable)
            view.forceActiveFocus()
    }
}
