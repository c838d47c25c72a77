import QtQuick
import QtQuick.Templates as T
import Quellin

// The actions that a swipe uncovers; the first one is at the trailing edge.
Row {
    id: panel

    // RowAction values.
    required property var actions
    required property double actionWidth

    signal chosen(int action)
    signal cancelled()

    layoutDirection: Qt.RightToLeft

    Keys.onEscapePressed: cancelled()
    Keys.onRightPressed: cancelled()

    Repeater {
        model: panel.actions

        T.AbstractButton {
            id: action

            required property int index
            required property var modelData

            width: panel.actionWidth
            height: panel.height
            text: modelData.title
            focusPolicy: Qt.TabFocus
            onClicked: panel.chosen(index)
            Keys.onReturnPressed: panel.chosen(index)
            Keys.onEnterPressed: panel.chosen(index)

            Accessible.name: modelData.name
            Accessible.onPressAction: panel.chosen(index)

            background: Rectangle {
                color: Theme.roles[action.modelData.color]
                opacity: action.pressed ? 0.8 : 1

                Rectangle {
                    anchors.fill: parent
                    anchors.margins: 4
                    radius: 8
                    color: "transparent"
                    border.width: action.visualFocus ? 2 : 0
                    border.color: Theme.background
                }
            }

            contentItem: Text {
                leftPadding: 6
                rightPadding: 6
                text: action.text
                textFormat: Text.PlainText
                color: Theme.background
                font: Theme.titleFont
                fontSizeMode: Text.Fit
                minimumPixelSize: 11
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                wrapMode: Text.WordWrap
                elide: Text.ElideRight
            }
        }
    }
}
