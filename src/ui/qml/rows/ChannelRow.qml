import QtQuick
import Quellin

// A channel: icon, name, and a line about it.
TableRow {
    id: cell

    readonly property bool playable: row.accessory === Kit.Accessory.Play
    // Whether this is the heading of the channel's shows.
    readonly property bool heading: section.leads && section.header === ""

    activatable: row.selectable || playable
    surfaceColor: tiled || heading ? Theme.groupedBackground : Theme.background
    surfaceRadius: tiled ? 12 : heading && list ? list.bandRadius : 0
    contentHeight: Math.max(64, texts.height + 24)
    separatorInset: heading ? -1 : texts.x

    RowPicture {
        id: icon

        x: cell.sideMargin
        anchors.verticalCenter: parent.verticalCenter
        width: 50
        height: 36
        icon: cell.row.icon
    }

    Item {
        id: texts

        anchors {
            left: icon.right
            leftMargin: 12
            right: check.visible ? check.left : edge.left
            rightMargin: 8
        }
        y: (parent.height - height) / 2
        height: title.height + subtitle.used

        Text {
            id: title

            width: parent.width
            text: cell.row.title
            textFormat: Text.PlainText
            color: cell.heading ? Theme.tint : Theme.label
            font: cell.heading ? Theme.channelTitleFont : Theme.titleFont
            elide: Text.ElideRight
            maximumLineCount: Theme.textScale > 1.5 ? 8 : 2
            wrapMode: Text.Wrap
        }

        Text {
            id: subtitle

            readonly property double used: text === "" ? 0 : implicitHeight

            y: title.height
            width: parent.width
            text: cell.row.subtitle
            textFormat: Text.PlainText
            color: Theme.secondaryLabel
            font: Theme.detailsFont
            wrapMode: Text.Wrap
            maximumLineCount: Theme.textScale > 1.5 ? 6 : 2
            elide: Text.ElideRight
        }
    }

    CheckMark {
        id: check

        anchors {
            right: edge.left
            verticalCenter: parent.verticalCenter
        }
        visible: cell.row.checked
    }

    Accessory {
        id: edge

        x: parent.width - width - cell.sideMargin + (cell.playable ? 10 : 3)
        width: implicitWidth
        height: parent.height
        kind: cell.row.accessory
        onTapped: cell.rows.tapAccessory(cell.index)
    }
}
