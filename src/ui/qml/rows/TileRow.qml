import QtQuick
import Quellin

// A tile: a symbol above a title, and a line about it; an ordinary row where tiles would be too narrow.
TableRow {
    id: cell

    readonly property bool dark: Theme.dark
    readonly property color symbolColor: dark, Theme.tileSymbol(row.hue)
    readonly property double edge: tiled ? 12 : sideMargin

    surfaceColor: tiled ? (dark, Theme.tileFill(row.hue)) : Theme.background
    accessibleRole: Accessible.Button
    contentHeight: Math.max(disc.height + 16, texts.height + 24)
    separatorInset: tiled ? -1 : texts.x

    Rectangle {
        id: disc

        x: cell.edge
        y: cell.tiled ? 12 : (parent.height - height) / 2
        width: Math.round(40 * Theme.symbolScale)
        height: width
        radius: width / 2
        color: cell.tiled ? "transparent" : (cell.dark, Theme.tileFill(cell.row.hue))

        Glyph {
            x: cell.tiled ? 0 : (parent.width - width) / 2
            y: x
            width: Math.round((cell.tiled ? 32 : 24) * Theme.symbolScale)
            height: width
            symbol: cell.row.symbol
            color: cell.symbolColor
            opacity: cell.row.enabled ? 1 : 0.5
        }
    }

    Item {
        id: texts

        x: cell.tiled ? cell.edge : disc.x + disc.width + 12
        y: cell.tiled ? parent.height - height - 12 : (parent.height - height) / 2
        width: parent.width - x - cell.edge
        height: title.height + detail.used

        Text {
            id: title

            width: parent.width
            text: cell.row.title
            textFormat: Text.PlainText
            color: cell.row.enabled ? Theme.label : Theme.secondaryLabel
            font: Theme.buttonFont
            wrapMode: Text.Wrap
            maximumLineCount: cell.tiled ? 2 : 4
            elide: Text.ElideRight
        }

        Text {
            id: detail

            // The place of a detail that is not known yet is kept, so that the title does not move.
            readonly property double used: implicitHeight + 2

            y: title.height + 2
            width: parent.width
            text: cell.row.detail
            textFormat: Text.PlainText
            color: Theme.secondaryLabel
            font: Theme.detailsFont
            wrapMode: Text.Wrap
            maximumLineCount: cell.tiled ? 1 : 3
            elide: Text.ElideRight
        }
    }
}
