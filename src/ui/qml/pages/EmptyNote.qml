import QtQuick
import Quellin

// Why a table is empty, and a button with the next step.
Flickable {
    id: note

    required property string title
    required property string message
    required property string button
    required property int symbol

    signal pressed()

    contentHeight: Math.max(height, column.implicitHeight + 32)
    boundsBehavior: Flickable.StopAtBounds
    clip: true

    Accessible.role: Accessible.StaticText
    Accessible.name: title + ". " + message

    Column {
        id: column

        anchors.centerIn: parent
        width: Math.min(parent.width - 64, 360)
        spacing: 8

        Rectangle {
            width: 88
            height: 88
            radius: 44
            anchors.horizontalCenter: parent.horizontalCenter
            color: Theme.tintedFill

            Glyph {
                anchors.centerIn: parent
                width: 48
                height: 48
                symbol: note.symbol
                color: Theme.tint
            }
        }

        Item {
            width: 1
            height: 8
        }

        Text {
            width: parent.width
            text: note.title
            textFormat: Text.PlainText
            color: Theme.label
            font: Theme.channelTitleFont
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }

        Text {
            width: parent.width
            text: note.message
            textFormat: Text.PlainText
            color: Theme.secondaryLabel
            font: Theme.bodyFont
            lineHeight: 1.2
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }

        Item {
            width: 1
            height: 8
            visible: button.visible
        }

        TextButton {
            id: button

            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(parent.width, implicitWidth)
            visible: text !== ""
            primary: true
            text: note.button
            onClicked: note.pressed()
        }
    }
}
