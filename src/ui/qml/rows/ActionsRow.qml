import QtQuick
import Quellin

// What can be done with the show of the page, as round buttons; beside an aside, which has them, nothing.
TableRow {
    id: cell

    readonly property bool besideAside: list !== null && list.besideAside

    takesText: true
    leastHeight: besideAside ? 0 : 44
    contentHeight: besideAside ? 0 : buttons.implicitHeight + 16
    separatorInset: -1
    accessibleRole: Accessible.Grouping

    function activate() {
        buttons.focusFirst()
    }

    ActionButtons {
        id: buttons

        x: cell.sideMargin - 8
        y: 4
        width: cell.surfaceWidth - 2 * x
        visible: !cell.besideAside
        actions: cell.row.buttons
        onChosen: action => cell.rows.choose(cell.index, action)
        onEnded: cell.list.forceActiveFocus()
    }
}
