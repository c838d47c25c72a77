import QtQuick
import Quellin

// A row's background, which responds to taps, and the ring of the keyboard focus.
Item {
    id: surface

    property bool selectable: false
    property bool selected: false
    property bool focused: false
    property color color: Theme.background
    readonly property color shownColor: (selectable && tap.pressed) || selected ? Theme.pressed : color
    property int radius: 0

    // With Shift, `extending` is true.
    signal tapped(bool extending)

    Rectangle {
        anchors.fill: parent
        radius: surface.radius
        color: surface.shownColor
    }

    Rectangle {
        anchors.fill: parent
        anchors.margins: 2
        color: "transparent"
        radius: 8
        border.width: 2
        border.color: Theme.tint
        visible: surface.focused
        z: 1
    }

    HoverHandler {
        enabled: surface.selectable
        cursorShape: Qt.PointingHandCursor
    }

    TapHandler {
        id: tap

        enabled: surface.selectable
        onTapped: surface.tapped((point.modifiers & Qt.ShiftModifier) !== 0)
    }
}
