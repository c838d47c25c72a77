import QtQuick
import Quellin

// How far something is, 0 to 1.
Item {
    id: line

    property double value: 0
    property double topPadding: 0

    implicitHeight: topPadding + 4

    Rectangle {
        y: line.topPadding
        width: parent.width
        height: 4
        radius: 2
        color: Theme.separator

        Rectangle {
            width: Math.max(4, parent.width * line.value)
            height: parent.height
            radius: 2
            color: Theme.running
        }
    }
}
