import QtQuick
import Quellin

Glyph {
    width: 24
    height: 24
    symbol: Glyph.Check
    color: Theme.tint
}
