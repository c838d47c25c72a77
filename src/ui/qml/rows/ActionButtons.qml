import QtQuick
import QtQuick.Templates as T
import Quellin

// Round buttons with captions, in as many lines as they need; the left and right keys go from one to the next.
Flow {
    id: flow

    // ActionButton values.
    required property var actions
    readonly property double cellWidth: Math.round(Math.max(72, 64 * Theme.textScale))

    signal chosen(int action)
    signal ended()

    function focusAt(index) {
        const button = buttons.itemAt(Math.max(0, Math.min(buttons.count - 1, index)))
        if (button)
            button.forceActiveFocus(Qt.TabFocusReason)
    }

    function focusFirst() {
        focusAt(0)
    }

    Repeater {
        id: buttons

        model: flow.actions.length

        T.AbstractButton {
            id: button

            required property int index
            readonly property var value: flow.actions[index] ?? null

            width: flow.cellWidth
            height: caption.y + caption.height + 8
            enabled: value !== null && value.enabled
            text: value !== null ? value.title : ""
            focusPolicy: Qt.TabFocus
            onClicked: flow.chosen(index)
            Keys.onReturnPressed: clicked()
            Keys.onEnterPressed: clicked()
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
            Accessible.checkable: value !== null && value.checkable
            Accessible.checked: value !== null && value.on
            Accessible.onPressAction: clicked()
            Accessible.onToggleAction: clicked()

            background: Item {}
            contentItem: Item {
                Rectangle {
                    id: circle

                    anchors.horizontalCenter: parent.horizontalCenter
                    y: 4
                    width: 48
                    height: 48
                    radius: 24
                    opacity: button.enabled ? 1 : 0.5
                    color: button.pressed ? Theme.pressed : Theme.tintedFill

                    Glyph {
                        anchors.centerIn: parent
                        width: 24
                        height: 24
                        symbol: button.value !== null ? button.value.glyph : Glyph.Play
                        color: button.value !== null && button.value.on ? Theme.favourite : Theme.tint
                    }
                }

                Rectangle {
                    anchors.fill: circle
                    anchors.margins: -4
                    radius: 28
                    color: "transparent"
                    border.width: 2
                    border.color: Theme.tint
                    visible: button.visualFocus
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
                }
            }
        }
    }
}
