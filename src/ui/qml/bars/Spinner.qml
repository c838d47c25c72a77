import QtQuick
import Quellin

// An activity indicator.
Glyph {
    id: spinner

    width: 22
    height: 22
    symbol: Glyph.Activity
    color: Theme.secondaryLabel

    RotationAnimator on rotation {
        running: spinner.visible && Theme.moves
        from: 0
        to: 360
        duration: 1000
        loops: Animation.Infinite
    }
}
