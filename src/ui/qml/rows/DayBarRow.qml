import QtQuick
import Quellin

// The hours of a day on a bar, with marked parts, and times below it.
TableRow {
    id: cell

    readonly property double barWidth: surfaceWidth - 2 * sideMargin

    activatable: false
    accessibleRole: Accessible.Graphic
    contentHeight: track.y + track.height + 6 + hours.height + 14
    separatorInset: -1

    Rectangle {
        id: track

        x: cell.sideMargin
        y: 16
        width: cell.barWidth
        height: 16
        radius: 8
        color: Theme.separator
        clip: true

        Repeater {
            model: cell.row.edges.length / 2

            Rectangle {
                required property int index
                readonly property double from: cell.row.edges[2 * index]

                x: from * track.width
                width: Math.max(2, (cell.row.edges[2 * index + 1] - from) * track.width)
                height: track.height
                radius: track.radius
                color: Theme.tint
            }
        }
    }

    Item {
        id: hours

        readonly property int steps: cell.row.scale.length - 1

        x: cell.sideMargin
        y: track.y + track.height + 6
        width: cell.barWidth
        height: childrenRect.height

        Repeater {
            model: cell.row.scale

            Text {
                required property int index
                required property string modelData
                // With large text only the ends and the middle have room.
                readonly property bool fits: Theme.textScale < 1.5 || index % 2 === 0

                x: index === 0 ? 0 : index === hours.steps ? hours.width - width
                                   : hours.width * index / hours.steps - width / 2
                visible: fits
                text: modelData
                textFormat: Text.PlainText
                color: Theme.secondaryLabel
                font: Theme.detailsFont
                Accessible.ignored: true
            }
        }
    }
}
