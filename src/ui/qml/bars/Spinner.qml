import QtQuick
import Quellin

// An activity indicator.
Glyph {
    id: spinner

    width: Math.round(22 * Theme.symbolScale)
    height: width
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
