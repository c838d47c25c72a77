import QtQuick
import QtQuick.Templates as T
import Quellin

// A button of the navigation bar: a symbol, a title, or the sign that something is going on.
T.AbstractButton {
    id: button

    required property int kind

    readonly property bool busy: kind === Page.ActivityButton
    readonly property bool titled: kind === Page.TitleButton

    implicitWidth: titled ? label.implicitWidth + 24 : 44
    implicitHeight: 44
    enabled: !busy
    focusPolicy: Qt.TabFocus

    Accessible.name: text

    background: Rectangle {
        radius: height / 2
        color: button.pressed ? Theme.pressed : "transparent"
        border.width: button.visualFocus ? 2 : 0
        border.color: Theme.tint
    }

    contentItem: Item {
        Text {
            id: label

            anchors.centerIn: parent
            visible: button.titled
            text: button.text
            textFormat: Text.PlainText
            color: Theme.tint
            font: Theme.buttonFont
        }

        Glyph {
            anchors.centerIn: parent
            width: 24
            height: 24
            visible: !button.titled && !button.busy
            symbol: button.kind === Page.PlayButton ? Glyph.Play : Glyph.Refresh
            color: Theme.tint
        }

        Spinner {
            anchors.centerIn: parent
            visible: button.busy
        }
    }
}
