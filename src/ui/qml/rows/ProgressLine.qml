import QtQuick
import Quellin

// Progress from 0 to 1; below 0 it is unknown, and a short bar moves along the line.
Item {
    id: line

    property double value: 0
    property double topPadding: 0
    property color color: Theme.running
    property color trackColor: Theme.separator

    readonly property bool known: value >= 0

    implicitHeight: topPadding + 4

    Rectangle {
        id: track

        y: line.topPadding
        width: parent.width
        height: 4
        radius: 2
        color: line.trackColor
        clip: !line.known

        Rectangle {
            id: bar

            property double moved: 0.35

            x: line.known ? 0 : (track.width + width) * moved - width
            width: line.known ? Math.max(4, track.width * line.value) : track.width * 0.3
            height: parent.height
            radius: 2
            color: line.color

            NumberAnimation {
                target: bar
                property: "moved"
                running: !line.known && line.visible && Theme.moves
                from: 0
                to: 1
                duration: 1400
                loops: Animation.Infinite
                easing.type: Easing.InOutQuad
            }
        }
    }
}
