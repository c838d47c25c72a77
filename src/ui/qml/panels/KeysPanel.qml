import QtQuick
import QtQuick.Templates as T
import Quellin

// The list of keys, from below on a narrow window and in the middle of a wide one.
FloatingPanel {
    id: panel

    readonly property bool narrow: parent.width < 600

    x: (parent.width - width) / 2
    y: narrow ? parent.height - height : (parent.height - height) / 2
    width: narrow ? parent.width : Math.min(parent.width - 64, 520)
    height: Math.min(parent.height - 48, title.height + lines.contentHeight + 48)
    padding: 0

    background: Rectangle {
        radius: 20
        color: Theme.raised
        border.width: 1
        border.color: Theme.separator
    }

    contentItem: FocusScope {
        focus: true

        Text {
            id: title

            x: 20
            y: 16
            width: parent.width - x - 56
            text: qsTranslate("Guide", "Keys")
            textFormat: Text.PlainText
            color: Theme.label
            font: Theme.channelTitleFont

            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        IconButton {
            x: parent.width - width - 8
            y: title.y + (title.height - height) / 2
            symbol: Glyph.Close
            text: qsTranslate("Guide", "Close")
            onClicked: panel.close()
        }

        ListView {
            id: lines

            anchors {
                fill: parent
                topMargin: title.y + title.height + 8
                bottomMargin: 16
            }
            clip: true
            focus: true
            boundsBehavior: Flickable.StopAtBounds
            model: KeyTable.help

            Keys.onUpPressed: flick(0, 800)
            Keys.onDownPressed: flick(0, -800)

            Accessible.role: Accessible.List
            Accessible.name: title.text

            delegate: Item {
                id: line

                required property keyHelp modelData

                // Beside each other where both fit.
                readonly property bool stacked: what.implicitWidth + keys.implicitWidth + 56 > width

                width: ListView.view.width
                height: (stacked ? what.height + 2 + keys.height : Math.max(what.height, keys.height)) + 16

                Accessible.role: Accessible.ListItem
                Accessible.name: modelData.text + ", " + modelData.keys

                Text {
                    id: what

                    x: 20
                    y: 8
                    width: line.stacked ? parent.width - 40 : implicitWidth
                    text: line.modelData.text
                    textFormat: Text.PlainText
                    color: Theme.label
                    font: Theme.bodyFont
                    wrapMode: line.stacked ? Text.Wrap : Text.NoWrap
                }

                Text {
                    id: keys

                    x: line.stacked ? 20 : parent.width - width - 20
                    y: line.stacked ? what.y + what.height + 2 : 8
                    width: line.stacked ? parent.width - 40 : implicitWidth
                    text: line.modelData.keys
                    textFormat: Text.PlainText
                    color: Theme.secondaryLabel
                    font: Theme.bodyFont
                    wrapMode: line.stacked ? Text.Wrap : Text.NoWrap
                }
            }
        }
    }
}
