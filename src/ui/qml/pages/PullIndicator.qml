import QtQuick
import Quellin

// Lies over a list that is refreshed by a pull at its top: follows the finger without grabbing it, and shows a symbol
// in the space above the list. The list's own overshoot would end whenever a row is removed.
Item {
    id: pull

    property bool atTop: false
    property bool turning: false
    // How far to move the list down.
    property double reached: 0

    signal pulled()

    clip: true

    PointHandler {
        id: finger

        // Where the finger was when the list reached its top.
        property double begin: 0

        onActiveChanged: {
            if (active) {
                begin = point.position.y
                return
            }
            const far = pull.reached > sign.height
            pull.reached = 0
            if (far)
                pull.pulled()
        }
        onPointChanged: {
            if (!active)
                return
            if (!pull.atTop)
                begin = point.position.y
            const down = point.position.y - begin - Application.styleHints.startDragDistance
            const aside = Math.abs(point.position.x - point.pressPosition.x)
            pull.reached = down > aside ? down / 2 : 0
        }
    }

    Behavior on reached {
        enabled: Theme.moves && !finger.active
        NumberAnimation { duration: Theme.motion; easing.type: Easing.OutCubic }
    }

    Item {
        id: sign

        objectName: "pullSign"

        width: parent.width
        height: 64
        y: pull.reached - height
        visible: pull.reached > 0

        Spinner {
            anchors.centerIn: parent
            visible: pull.turning
        }

        Glyph {
            anchors.centerIn: parent
            width: 22
            height: 22
            visible: !pull.turning
            symbol: Glyph.Refresh
            color: Theme.secondaryLabel
        }
    }
}
