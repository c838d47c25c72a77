import QtQuick
import Quellin

// A setting that is on or off; the whole row switches it.
TableRow {
    id: cell

    activatable: row.enabled
    accessibleRole: Accessible.CheckBox
    checkable: true
    checked: row.on
    contentHeight: Math.max(52, texts.height + 24)
    separatorInset: texts.x

    function activate() {
        rows.toggle(index, !row.on)
    }

    Item {
        id: texts

        x: cell.sideMargin
        y: (parent.height - height) / 2
        width: track.x - 16 - x
        height: title.height + subtitle.used
        opacity: cell.row.enabled ? 1 : 0.5

        Text {
            id: title

            width: parent.width
            text: cell.row.title
            textFormat: Text.PlainText
            color: Theme.label
            font: Theme.bodyFont
            wrapMode: Text.Wrap
        }

        Text {
            id: subtitle

            readonly property double used: text === "" ? 0 : implicitHeight + 2

            y: title.height + 2
            width: parent.width
            text: cell.row.subtitle
            textFormat: Text.PlainText
            color: Theme.secondaryLabel
            font: Theme.detailsFont
            wrapMode: Text.Wrap
        }
    }

    Rectangle {
        id: track

        x: parent.width - width - cell.sideMargin
        anchors.verticalCenter: parent.verticalCenter
        width: 50
        height: 30
        radius: 15
        color: cell.row.on ? Theme.tint : "transparent"
        border.width: cell.row.on ? 0 : 2
        border.color: Theme.secondaryLabel
        opacity: cell.row.enabled ? 1 : 0.5

        Rectangle {
            x: cell.row.on ? parent.width - width - 4 : 6
            anchors.verticalCenter: parent.verticalCenter
            width: cell.row.on ? 22 : 18
            height: width
            radius: width / 2
            color: cell.row.on ? Theme.onTint : Theme.secondaryLabel

            Behavior on x {
                enabled: Theme.moves && cell.swiped === false
                NumberAnimation { duration: Theme.rowMotion; easing.type: Easing.OutCubic }
            }
        }
    }
}
