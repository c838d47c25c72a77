import QtQuick
import Quellin

// A short message at the bottom, with a button that usually undoes what was just done.
Item {
    id: notice

    required property Shell shell

    // The notice goes while its button has the keyboard.
    signal keyboardLeft()

    implicitHeight: surface.height + 32
    visible: shell.noticeShown || slide.running

    Connections {
        target: notice.shell

        function onNoticeUpdated() {
            if (!notice.shell.noticeShown && action.activeFocus)
                notice.keyboardLeft()
        }
    }

    Rectangle {
        id: surface

        readonly property double least: label.implicitWidth + (action.visible ? action.width + 8 : 8) + 24
        readonly property bool folded: action.visible && label.implicitWidth + action.implicitWidth + 40 > parent.width - 32

        anchors.horizontalCenter: parent.horizontalCenter
        y: notice.shell.noticeShown ? 16 : notice.height
        width: folded ? parent.width - 32 : Math.min(parent.width - 32, Math.max(288, least))
        height: content.implicitHeight + 8
        radius: 12
        color: Theme.label

        Accessible.role: Accessible.Notification
        Accessible.name: label.text

        Behavior on y {
            enabled: Theme.moves
            NumberAnimation { id: slide; duration: Theme.motion; easing.type: Easing.OutCubic }
        }

        Item {
            id: content

            anchors {
                left: parent.left
                right: parent.right
                leftMargin: 16
                rightMargin: 8
                verticalCenter: parent.verticalCenter
            }
            implicitHeight: surface.folded ? label.implicitHeight + 12 + action.height
                                           : Math.max(48, label.implicitHeight + 16)
            height: implicitHeight

            Text {
                id: label

                y: surface.folded ? 10 : (parent.height - height) / 2
                width: surface.folded ? parent.width - 8 : parent.width - (action.visible ? action.width + 8 : 8)
                text: notice.shell.noticeText
                textFormat: Text.PlainText
                color: Theme.background
                font: Theme.bodyFont
                wrapMode: Text.Wrap
            }

            TextButton {
                id: action

                x: parent.width - width
                y: surface.folded ? parent.height - height : (parent.height - height) / 2
                width: Math.min(implicitWidth, parent.width)
                visible: text !== ""
                color: Theme.tintOnLabel
                text: notice.shell.noticeAction
                onClicked: notice.shell.pressNoticeAction()
                Keys.onEscapePressed: notice.shell.dismissNotice()
            }
        }
    }
}
