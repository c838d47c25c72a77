import QtQuick
import Quellin

// What the colours of a show say, as symbols.
Item {
    id: marks
    objectName: "marks"

    property bool popular: false
    property bool favourite: false
    property bool alarmed: false

    readonly property double side: Math.round(14 * Theme.textScale)
    readonly property double step: side + 4
    readonly property int count: (popular ? 1 : 0) + (favourite ? 1 : 0) + (alarmed ? 1 : 0)

    width: count > 0 ? count * step - 4 : 0
    height: side

    Loader {
        active: marks.popular
        sourceComponent: Glyph {
            width: marks.side
            height: marks.side
            symbol: Glyph.Heart
            color: Theme.alarm
        }
    }

    Loader {
        x: marks.popular ? marks.step : 0
        active: marks.favourite
        sourceComponent: Glyph {
            width: marks.side
            height: marks.side
            symbol: Glyph.Star
            color: Theme.favourite
        }
    }

    Loader {
        x: (marks.count - 1) * marks.step
        active: marks.alarmed
        sourceComponent: Glyph {
            width: marks.side
            height: marks.side
            symbol: Glyph.Bell
            color: Theme.alarm
        }
    }
}
