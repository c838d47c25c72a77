import QtQuick
import Quellin

// What every row has: its surface, which answers to a finger, and the ring of the keyboard's focus.
Item {
    id: surface

    property bool selectable: false
    property bool selected: false
    property bool focused: false
    property color color: Theme.background
    property int radius: 0
    property string spoken: ""

    signal tapped()

    Accessible.role: Accessible.ListItem
    Accessible.name: spoken
    Accessible.focusable: true
    Accessible.focused: focused
    Accessible.onPressAction: if (selectable)
        tapped()

    Rectangle {
        anchors.fill: parent
        radius: surface.radius
        color: (surface.selectable && tap.pressed) || surface.selected ? Theme.pressed : surface.color
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
        onTapped: surface.tapped()
    }
}
