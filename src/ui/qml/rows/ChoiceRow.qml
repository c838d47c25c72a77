import QtQuick
import Quellin

// One of several choices; a tap opens them.
ValueRow {
    id: cell

    title: row.title
    value: row.chosenText
    available: row.enabled
    accessibleRole: Accessible.ComboBox

    function activate() {
        list.openChoices(cell)
    }
}
