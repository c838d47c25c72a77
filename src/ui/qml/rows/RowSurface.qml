import QtQuick
import Quellin

// A row's background, which responds to taps.
Rectangle {
    id: surface

    property bool selectable: false
    property bool selected: false
    property color plainColor: Theme.background

    // With Shift, `extending` is true.
    signal tapped(bool extending)

    color: (selectable && tap.pressed) || selected ? Theme.pressed : plainColor

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
