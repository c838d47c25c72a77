import QtQuick
import QtQuick.Templates as T
import Quellin

// A button with a title.
T.AbstractButton {
    id: button

    property bool primary: false
    property color color: Theme.tint

    implicitWidth: Math.max(64, label.implicitWidth + 32)
    implicitHeight: Math.max(44, label.implicitHeight + 16)
    focusPolicy: Qt.TabFocus

    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    Accessible.name: text
    Accessible.onPressAction: if (enabled)
        clicked()

    background: Rectangle {
        radius: button.primary ? 12 : height / 2
        color: button.primary ? button.color : button.pressed ? Qt.alpha(button.color, 0.16) : "transparent"
        opacity: button.primary && button.pressed ? 0.8 : 1
        border.width: button.visualFocus ? 2 : 0
        border.color: button.primary ? Theme.onTint : button.color
    }

    contentItem: Text {
        id: label

        text: button.text
        textFormat: Text.PlainText
        color: button.primary ? Theme.onTint : button.color
        font: Theme.buttonFont
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        wrapMode: Text.Wrap
    }
}
