import QtQuick
import QtQuick.Templates as T
import Quellin

// A menu over a list: the actions on a row, or the choices of one.
FloatingPanel {
    id: panel

    property TableRow row: null
    property bool choosing: false
    property var entries: []

    function openActions(opener, actions, x, y) {
        choosing = false
        row = opener
        entries = actions
        openAt(x, y)
    }

    function openChoices(opener) {
        choosing = true
        row = opener
        entries = opener.row.choices
        openAt(opener.width - width - opener.sideMargin, opener.height)
    }

    function openAt(x, y) {
        const at = row.mapToItem(parent, x, y)
        panel.x = Math.max(8, Math.min(parent.width - width - 8, at.x))
        panel.y = Math.max(8, Math.min(parent.height - height - 8, at.y))
        open()
    }

    function choose(index) {
        const chosen = row
        close()
        if (choosing)
            chosen.rows.choose(chosen.index, index)
        else
            chosen.rows.performAction(index)
    }

    width: Math.min(parent.width - 16, Math.max(220, 280 * Math.min(Theme.textScale, 1.5)))
    height: Math.min(parent.height - 16, list.contentHeight + topPadding + bottomPadding)

    onOpened: {
        list.currentIndex = choosing ? Math.max(0, row.row.chosen) : 0
        list.positionViewAtIndex(list.currentIndex, ListView.Center)
        list.forceActiveFocus(Qt.TabFocusReason)
    }

    contentItem: ListView {
        id: list

        model: panel.entries
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        keyNavigationEnabled: true
        highlightMoveDuration: 0

        Accessible.role: Accessible.PopupMenu
        Accessible.name: panel.row !== null ? panel.row.row.accessibleName : ""

        Keys.onReturnPressed: panel.choose(currentIndex)
        Keys.onEnterPressed: panel.choose(currentIndex)
        Keys.onSpacePressed: panel.choose(currentIndex)

        delegate: T.MenuItem {
            id: entry

            required property int index
            required property var modelData

            readonly property bool chosen: panel.choosing && panel.row !== null && panel.row.row.chosen === index
            readonly property color role: panel.choosing ? Theme.label : Theme.roles[modelData.color]

            width: ListView.view.width
            implicitHeight: Math.max(44, label.implicitHeight + 16)
            text: panel.choosing ? modelData : modelData.name
            onClicked: panel.choose(index)

            Accessible.name: text
            Accessible.checked: chosen
            Accessible.onPressAction: panel.choose(index)

            background: Rectangle {
                radius: 8
                color: entry.pressed || entry.hovered ? Theme.pressed : "transparent"
                border.width: entry.ListView.isCurrentItem && list.activeFocus ? 2 : 0
                border.color: Theme.tint
            }

            contentItem: Item {
                Text {
                    id: label

                    anchors {
                        left: parent.left
                        leftMargin: 12
                        right: check.left
                        verticalCenter: parent.verticalCenter
                    }
                    text: entry.text
                    textFormat: Text.PlainText
                    color: entry.role
                    font: Theme.bodyFont
                    wrapMode: Text.Wrap
                }

                CheckMark {
                    id: check

                    anchors {
                        right: parent.right
                        rightMargin: 8
                        verticalCenter: parent.verticalCenter
                    }
                    visible: entry.chosen
                }
            }
        }
    }
}
