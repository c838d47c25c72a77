import QtQuick
import Quellin

// Round buttons with captions, in as many lines as they need; the left and right keys go from one to the next.
Flow {
    id: flow

    // ActionButton values.
    required property var actions
    readonly property double cellWidth: Math.round(Math.max(72, 64 * Theme.textScale))
    readonly property double circleSide: Math.round(48 * Theme.symbolScale)

    // The button that gets the keyboard back.
    property int returning: -1

    signal chosen(int action)
    signal ended()

    function focusAt(index) {
        const button = buttons.itemAt(Math.max(0, Math.min(actions.length - 1, index)))
        if (button)
            button.forceActiveFocus(Qt.TabFocusReason)
    }

    function focusFirst() {
        focusAt(0)
    }

    Repeater {
        id: buttons

        model: flow.actions.length
        // The buttons are made anew when their number changes.
        onItemRemoved: (index, item) => {
            if (item.activeFocus)
                flow.returning = index
        }
        onItemAdded: (index, item) => {
            if (index === flow.returning) {
                flow.returning = -1
                item.forceActiveFocus(Qt.TabFocusReason)
            }
        }

        // Not a control of the toolkit, which would take as long to make as a whole row.
        Item {
            id: button

            required property int index
            readonly property var value: flow.actions[index] ?? null
            readonly property bool on: value !== null && value.on
            readonly property string text: value !== null ? value.title : ""
            readonly property bool visualFocus: activeFocus

            width: flow.cellWidth
            height: caption.y + caption.height + 8
            enabled: value !== null && value.enabled
            activeFocusOnTab: true
            Keys.onReturnPressed: flow.chosen(index)
            Keys.onEnterPressed: flow.chosen(index)
            Keys.onSpacePressed: flow.chosen(index)
            Keys.onLeftPressed: flow.focusAt(index - 1)
            Keys.onRightPressed: flow.focusAt(index + 1)
            Keys.onUpPressed: leave()
            Keys.onDownPressed: leave()
            Keys.onEscapePressed: leave()

            function leave() {
                focus = false
                flow.ended()
            }

            Accessible.role: value !== null && value.checkable ? Accessible.CheckBox : Accessible.Button
            Accessible.name: text
            Accessible.focusable: true
            Accessible.focused: activeFocus
            Accessible.checkable: value !== null && value.checkable
            Accessible.checked: on
            Accessible.onPressAction: if (enabled)
                flow.chosen(index)
            Accessible.onToggleAction: if (enabled)
                flow.chosen(index)

            Rectangle {
                id: circle

                x: (parent.width - width) / 2
                y: 4
                width: flow.circleSide
                height: width
                radius: width / 2
                opacity: button.enabled ? 1 : 0.5
                color: tap.pressed ? Theme.pressed : Theme.tintedFill
                border.width: button.visualFocus ? 2 : 0
                border.color: Theme.tint

                Glyph {
                    x: width / 2
                    y: x
                    width: flow.circleSide / 2
                    height: width
                    symbol: button.value !== null ? button.value.glyph : Glyph.Play
                    color: button.on ? Theme.favourite : Theme.tint
                }
            }

            Text {
                id: caption

                y: circle.y + circle.height + 4
                width: parent.width
                text: button.text
                textFormat: Text.PlainText
                color: Theme.label
                font: Theme.endTimeFont
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }

            TapHandler {
                id: tap

                onTapped: flow.chosen(button.index)
            }
        }
    }
}
