import QtQuick
import Quellin

Glyph {
    width: Math.round(24 * Theme.symbolScale)
    height: width
    symbol: Glyph.Check
    color: Theme.tint
}
