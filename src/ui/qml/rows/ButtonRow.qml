import QtQuick
import Quellin

// A button; a plain one looks like a link, a primary one is filled.
TableRow {
    id: cell

    readonly property bool primary: row.style === Kit.ButtonStyle.Primary

    activatable: row.enabled && row.selectable
    accessibleRole: Accessible.Button
    contentHeight: Math.max(primary ? 68 : 48, label.implicitHeight + (primary ? 44 : 24))
    separatorInset: primary ? -1 : sideMargin

    Rectangle {
        anchors {
            fill: parent
            leftMargin: cell.sideMargin
            rightMargin: cell.sideMargin
            topMargin: 10
            bottomMargin: 10
        }
        visible: cell.primary
        radius: 12
        color: cell.row.enabled ? Theme.tint : Theme.tintedFill
    }

    Text {
        id: label

        x: cell.sideMargin + (cell.primary ? 16 : 0)
        width: parent.width - 2 * x
        anchors.verticalCenter: parent.verticalCenter
        text: cell.row.title
        textFormat: Text.PlainText
        color: !cell.row.enabled ? Theme.secondaryLabel
               : cell.primary ? Theme.onTint
               : cell.row.style === Kit.ButtonStyle.Destructive ? Theme.alarm : Theme.tint
        font: Theme.buttonFont
        horizontalAlignment: cell.primary ? Text.AlignHCenter : Text.AlignLeft
        wrapMode: Text.Wrap
    }
}
