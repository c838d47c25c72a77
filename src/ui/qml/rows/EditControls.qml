import QtQuick
import Quellin

// The controls of a row while the list is edited: to delete it, and to move it.
Item {
    id: controls

    // The TableRow; its type would make the two depend on each other.
    required property var row

    IconButton {
        anchors {
            left: parent.left
            leftMargin: controls.row.sideMargin - 12
            verticalCenter: parent.verticalCenter
        }
        visible: controls.row.removable
        symbol: Glyph.Delete
        color: Theme.alarm
        text: qsTranslate("Guide", "Delete") + " " + controls.row.row.accessibleName
        onClicked: controls.row.rows.remove(controls.row.index)
    }

    ReorderHandle {
        anchors {
            right: parent.right
            rightMargin: controls.row.sideMargin - 12
            verticalCenter: parent.verticalCenter
        }
        visible: controls.row.movable
        name: controls.row.row.accessibleName
        onStarted: controls.row.list.startReorder(controls.row)
        onMoved: distance => controls.row.list.reorderBy(distance)
        onFinished: controls.row.list.finishReorder()
    }
}
