import QtQuick
import QtQuick.Templates as T
import Quellin

// A button of the navigation bar: a symbol, a title, or an activity indicator.
T.AbstractButton {
    id: button

    required property int kind

    readonly property bool busy: kind === Kit.BarButtonKind.Activity
    readonly property bool titled: kind === Kit.BarButtonKind.Title

    implicitWidth: titled ? label.implicitWidth + 24 : 44
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
        active: button.hovered && !button.titled
        sourceComponent: Hint {
            owner: button
        }
    }

    contentItem: Item {
        Text {
            id: label

            anchors.centerIn: parent
            visible: button.titled
            text: button.text
            textFormat: Text.PlainText
            color: button.enabled ? Theme.tint : Theme.secondaryLabel
            font: Theme.buttonFont
        }

        Glyph {
            anchors.centerIn: parent
            width: Math.round(24 * Math.min(Theme.symbolScale, 4 / 3))
            height: width
            visible: !button.titled && !button.busy
            symbol: button.kind === Kit.BarButtonKind.Play ? Glyph.Play
                    : button.kind === Kit.BarButtonKind.Info ? Glyph.Info
                    : button.kind === Kit.BarButtonKind.List ? Glyph.Reorder
                    : button.kind === Kit.BarButtonKind.Options ? Glyph.Options : Glyph.Refresh
            color: button.enabled ? Theme.tint : Theme.secondaryLabel
        }

        Spinner {
            anchors.centerIn: parent
            visible: button.busy
        }
    }
}
