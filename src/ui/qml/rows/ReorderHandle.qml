import QtQuick
import Quellin

// Moves its row up and down within the section while the list is edited.
Item {
    id: handle

    // Of the row.
    required property string name

    signal started()
    signal moved(double distance)
    signal finished()

    width: 44
    height: 44

    Accessible.role: Accessible.Button
    Accessible.name: qsTranslate("Guide", "Move") + " " + name

    Glyph {
        anchors.centerIn: parent
        width: Math.round(24 * Theme.symbolScale)
        height: width
        symbol: Glyph.Reorder
        color: Theme.secondaryLabel
    }

    HoverHandler {
        cursorShape: Qt.SizeVerCursor
    }

    DragHandler {
        target: null
        xAxis.enabled: false
        dragThreshold: 2
        grabPermissions: PointerHandler.CanTakeOverFromAnything
        onActiveChanged: {
            if (active)
                handle.started()
            else
                handle.finished()
        }
        onActiveTranslationChanged: if (active)
            handle.moved(activeTranslation.y)
    }
}
