import QtQuick
import QtQuick.Templates as T
import Quellin

// A button with a symbol; `text` is its accessible name.
T.AbstractButton {
    id: button

    required property int symbol
    property color color: Theme.tint

    implicitWidth: 44
    implicitHeight: 44
    focusPolicy: Qt.TabFocus

    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    Accessible.name: text
    Accessible.onPressAction: if (enabled)
        clicked()

    background: Rectangle {
        radius: height / 2
        color: button.pressed ? Theme.pressed : "transparent"
        border.width: button.visualFocus ? 2 : 0
        border.color: Theme.tint
    }

    hoverEnabled: true

    Loader {
        active: button.hovered
        sourceComponent: Hint {
            owner: button
        }
    }

    contentItem: Item {
        Glyph {
            anchors.centerIn: parent
            width: Math.round(24 * Math.min(Theme.symbolScale, 4 / 3))
            height: width
            symbol: button.symbol
            color: button.color
        }
    }
}
