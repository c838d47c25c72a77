import QtQuick
import Quellin

// The head of a channel: icon, name, when it was updated, and what can be done with it.
RowSurface {
    id: row

    required property string title
    required property color titleColor
    required property string details
    required property var icon
    required property int accessory
    required property string accessoryName

    signal accessoryTapped()

    color: Theme.groupedBackground
    implicitHeight: Math.max(64, texts.implicitHeight + 24)

    Picture {
        id: picture

        width: 50
        height: 36
        anchors {
            left: parent.left
            leftMargin: 16
            verticalCenter: parent.verticalCenter
        }
        image: row.icon
    }

    Column {
        id: texts

        anchors {
            left: picture.right
            leftMargin: 12
            right: edge.left
            rightMargin: 8
            verticalCenter: parent.verticalCenter
        }

        Text {
            width: parent.width
            text: row.title
            textFormat: Text.PlainText
            color: row.titleColor
            font: Theme.channelTitleFont
            elide: Text.ElideRight
            maximumLineCount: 2
            wrapMode: Text.Wrap
        }

        Text {
            width: parent.width
            visible: text !== ""
            text: row.details
            textFormat: Text.PlainText
            color: Theme.secondaryLabel
            font: Theme.detailsFont
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 10
            maximumLineCount: 1
            elide: Text.ElideRight
        }
    }

    Item {
        id: edge

        width: 44
        height: parent.height
        anchors {
            right: parent.right
            rightMargin: 4
        }

        Glyph {
            anchors.centerIn: parent
            width: 18
            height: 18
            visible: row.accessory === TableModel.DisclosureAccessory
            symbol: Glyph.Disclosure
            color: Theme.secondaryLabel
        }

        Spinner {
            anchors.centerIn: parent
            visible: row.accessory === TableModel.SpinnerAccessory
        }

        IconButton {
            anchors.centerIn: parent
            visible: row.accessory === TableModel.PlayAccessory
            symbol: Glyph.Play
            text: row.accessoryName
            onClicked: row.accessoryTapped()
        }
    }
}
