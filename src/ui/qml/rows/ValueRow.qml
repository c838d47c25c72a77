import QtQuick
import Quellin

// A setting with its value at the trailing edge, or below its title with large text; a tap lets the user change it.
TableRow {
    id: cell

    property string title
    property string value
    property bool available: true
    property int symbol: Glyph.Unfold

    // Measured apart from the texts, whose implicit widths depend on whether they are wrapped.
    readonly property bool valueBelow: metrics.advanceWidth(title) + metrics.advanceWidth(value) + 64 > surfaceWidth - 2 * sideMargin

    FontMetrics {
        id: metrics

        font: Theme.bodyFont
    }

    activatable: available
    contentHeight: Math.max(52, (valueBelow ? caption.implicitHeight + 2 : 0) + valueText.implicitHeight + 24)
    separatorInset: sideMargin

    Item {
        x: cell.sideMargin
        width: mark.x - 8 - x
        height: cell.contentHeight
        anchors.verticalCenter: parent.verticalCenter
        opacity: cell.available ? 1 : 0.5

        Text {
            id: caption

            y: cell.valueBelow ? 12 : (parent.height - height) / 2
            width: cell.valueBelow ? parent.width : implicitWidth
            text: cell.title
            textFormat: Text.PlainText
            color: Theme.label
            font: Theme.bodyFont
            wrapMode: cell.valueBelow ? Text.Wrap : Text.NoWrap
        }

        Text {
            id: valueText

            x: cell.valueBelow ? 0 : parent.width - width
            y: cell.valueBelow ? caption.y + caption.height + 2 : (parent.height - height) / 2
            width: cell.valueBelow ? parent.width : implicitWidth
            text: cell.value
            textFormat: Text.PlainText
            color: Theme.tint
            font: Theme.bodyFont
            wrapMode: cell.valueBelow ? Text.Wrap : Text.NoWrap
        }
    }

    Glyph {
        id: mark

        x: parent.width - width - cell.sideMargin + 2
        anchors.verticalCenter: parent.verticalCenter
        width: Math.round(18 * Theme.symbolScale)
        height: width
        symbol: cell.symbol
        color: Theme.secondaryLabel
        opacity: cell.available ? 1 : 0.5
    }
}
