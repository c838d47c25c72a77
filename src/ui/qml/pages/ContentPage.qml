import QtQuick
import Quellin

// What draws the content of a screen below its bar.
FocusScope {
    required property Page page

    // Whether there is a margin at either side.
    property bool inset: false
    // Whether rows have gone above the top edge.
    property bool scrolled: false

    // The keyboard moves up from the first row.
    signal leftUpwards()

    // The keyboard comes from above.
    function enter() {
        forceActiveFocus(Qt.TabFocusReason)
    }

    // By a keyboard or a pointer.
    function opened() {
    }

    // The user has changed what is searched for.
    function searchEdited() {
    }

    // The item of a row; null when it is not drawn.
    function rowItem(index): Item {
        return null
    }
}
