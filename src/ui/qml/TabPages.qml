import QtQuick
import QtQuick.Controls.Basic as C
import Quellin

// The screens of one tab, one on top of the other.
C.StackView {
    id: view

    required property PageStack stack

    initialItem: TablePage {
        page: view.stack.root
    }

    // Only what is seen, with no alert before it, may take the keyboard; any other screen gets it in its turn.
    function giveFocus() {
        if (visible && enabled)
            currentItem.forceActiveFocus()
        else
            currentItem.focus = true
    }

    Component {
        id: pageComponent

        TablePage {
            Component.onDestruction: page.release()
        }
    }

    Connections {
        target: view.stack

        function onPagePushed(page) {
            view.push(pageComponent, { "page": page },
                      Theme.moves ? C.StackView.PushTransition : C.StackView.Immediate)
            view.giveFocus()
        }

        function onPagesPopped(count) {
            view.pop(view.get(view.depth - 1 - count),
                     Theme.moves ? C.StackView.PopTransition : C.StackView.Immediate)
            view.giveFocus()
        }
    }

    pushEnter: Transition {
        XAnimator { from: view.width; to: 0; duration: Theme.motion; easing.type: Easing.OutCubic }
    }
    pushExit: Transition {
        XAnimator { from: 0; to: -view.width / 4; duration: Theme.motion; easing.type: Easing.OutCubic }
    }
    popEnter: Transition {
        XAnimator { from: -view.width / 4; to: 0; duration: Theme.motion; easing.type: Easing.OutCubic }
    }
    popExit: Transition {
        XAnimator { from: 0; to: view.width; duration: Theme.motion; easing.type: Easing.OutCubic }
    }
}
