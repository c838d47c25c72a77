import QtQuick
import Quellin

// Why there is nothing to see, and what to do.
Item {
    id: note

    required property string title
    required property string message
    required property int symbol

    Accessible.role: Accessible.StaticText
    Accessible.name: title + ". " + message

    Column {
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
                width: 40
                height: 40
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
    }
}
