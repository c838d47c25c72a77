import QtQuick
import Quellin

// What draws the content of a screen below its bar.
FocusScope {
    required property Page page

    // Whether there is a margin at either side.
    property bool inset: false
    // Whether rows have gone above the top edge.
    property bool scrolled: false

    // The item of a row; null when it is not drawn.
    function rowItem(index): Item {
        return null
    }
}
