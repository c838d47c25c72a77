import QtQuick
import Quellin

// A line of text; in a tile, the icon is above it.
TableRow {
    id: cell

    readonly property bool hasIcon: row.icon.toString() !== ""
    readonly property bool hasSymbol: row.symbol >= 0
    // With large text the detail goes below the title.
    readonly property bool detailBelow: tiled || detailText.implicitWidth > surfaceWidth * 0.45

    contentHeight: Math.max(48, texts.height + 24)
    separatorInset: tiled ? -1 : texts.x

    RowPicture {
        id: icon

        x: cell.sideMargin
        y: cell.tiled ? 12 : (parent.height - height) / 2
        width: visible ? 50 : 0
        height: 36
        visible: cell.hasIcon
        icon: cell.row.icon
    }

    Glyph {
        id: sign

        x: cell.sideMargin
        y: (parent.height - height) / 2
        width: Math.round(24 * Theme.symbolScale)
        height: width
        visible: cell.hasSymbol
        symbol: cell.hasSymbol ? cell.row.symbol : Glyph.Recent
        color: Theme.roles[cell.row.symbolColor]
    }

    Item {
        id: texts

        readonly property double edgeStart: (check.visible ? check.x : edge.x) - 4

        x: cell.hasSymbol ? sign.x + sign.width + 12
           : cell.tiled || !cell.hasIcon ? cell.sideMargin : icon.x + icon.width + 12
        y: cell.tiled ? parent.height - height - 12 : (parent.height - height) / 2
        width: (detailText.visible ? detailText.x - 12 : edgeStart) - x
        height: title.height + subtitle.used + lowerDetail.used

        Text {
            id: title

            width: parent.width
            text: cell.row.title
            textFormat: Text.PlainText
            color: Theme.roles[cell.row.titleColor]
            font: cell.tiled ? Theme.buttonFont : Theme.bodyFont
            wrapMode: Text.Wrap
            maximumLineCount: cell.tiled ? 2 : 8
            elide: Text.ElideRight
        }

        Text {
            id: subtitle

            readonly property double used: text === "" ? 0 : implicitHeight + 2

            y: title.height + lowerDetail.used + 2
            width: parent.width
            text: cell.row.subtitle
            textFormat: Text.PlainText
            color: Theme.secondaryLabel
            font: Theme.detailsFont
            wrapMode: Text.Wrap
            maximumLineCount: cell.tiled ? 1 : Theme.textScale > 1.5 ? 16 : 8
            elide: Text.ElideRight
        }

        Text {
            id: lowerDetail

            readonly property double used: text === "" ? 0 : implicitHeight + 2

            y: title.height + 2
            width: parent.width
            text: cell.detailBelow ? cell.row.detail : ""
            textFormat: Text.PlainText
            color: Theme.secondaryLabel
            font: Theme.detailsFont
            wrapMode: Text.Wrap
            maximumLineCount: cell.tiled ? 1 : 4
            elide: Text.ElideRight
        }
    }

    Text {
        id: detailText

        x: texts.edgeStart - implicitWidth
        anchors.verticalCenter: parent.verticalCenter
        visible: !cell.detailBelow && text !== ""
        text: cell.row.detail
        textFormat: Text.PlainText
        color: Theme.secondaryLabel
        font: Theme.bodyFont
    }

    CheckMark {
        id: check

        x: edge.x - width
        y: cell.tiled ? 8 : (parent.height - height) / 2
        visible: cell.row.checked
    }

    Accessory {
        id: edge

        x: parent.width - width - cell.sideMargin + 3
        width: cell.tiled && kind === Kit.Accessory.Disclosure ? 0 : implicitWidth
        visible: width > 0
        height: parent.height
        kind: cell.row.accessory
        onTapped: cell.rows.tapAccessory(cell.index)
    }
}
