import QtQuick
import Quellin

// A time of day; a tap opens the time picker.
ValueRow {
    id: cell

    title: row.title
    value: row.timeText
    available: row.enabled
    accessibleRole: Accessible.Button
    symbol: Glyph.Currently

    function activate() {
        list.openTimePicker(cell)
    }
}
