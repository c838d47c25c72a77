import QtQuick
import Quellin

// Running work, and its progress where that is known.
TableRow {
    id: cell

    accessibleRole: Accessible.ProgressBar
    contentHeight: Math.max(52, title.implicitHeight + 36)

    Text {
        id: title

        x: cell.sideMargin
        y: line.y - 8 - height
        width: parent.width - 2 * x
        text: cell.row.title
        textFormat: Text.PlainText
        color: Theme.label
        font: Theme.bodyFont
        wrapMode: Text.Wrap
    }

    ProgressLine {
        id: line

        x: cell.sideMargin
        y: (parent.height + title.implicitHeight + 4) / 2
        width: parent.width - 2 * x
        value: cell.row.fraction
        color: Theme.tint
    }
}
