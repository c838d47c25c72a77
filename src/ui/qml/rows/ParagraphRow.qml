import QtQuick
import Quellin

// Running text in full.
TableRow {
    id: cell

    contentHeight: text.implicitHeight + 20
    separatorInset: -1
    accessibleRole: Accessible.StaticText

    Text {
        id: text

        x: cell.sideMargin
        y: 10
        width: cell.surfaceWidth - 2 * x
        text: cell.row.text
        textFormat: Text.PlainText
        color: Theme.label
        font: Theme.bodyFont
        lineHeight: 1.15
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
}
