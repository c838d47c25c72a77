import QtQuick
import Quellin

// What comes into sight above a list that is pulled down to be refreshed.
Item {
    id: indicator

    property bool turning: false

    height: 64

    Spinner {
        anchors.centerIn: parent
        visible: indicator.turning
    }

    Glyph {
        anchors.centerIn: parent
        width: 22
        height: 22
        visible: !indicator.turning
        symbol: Glyph.Refresh
        color: Theme.secondaryLabel
    }
}
