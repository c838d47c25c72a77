import QtQuick
import Quellin

// The controls of a row while the list is edited: to delete it, and to move it.
Item {
    id: controls

    // The TableRow; its type would make the two depend on each other.
    required property var row
    readonly property string name: row.row.title ?? row.row.accessibleName

    IconButton {
        anchors {
            left: parent.left
            leftMargin: controls.row.sideMargin - 12
            verticalCenter: parent.verticalCenter
        }
        visible: controls.row.removable
        symbol: Glyph.Delete
        color: Theme.alarm
        text: qsTranslate("Guide", "Delete") + " " + controls.name
        onClicked: controls.row.rows.remove(controls.row.index)
    }

    ReorderHandle {
        anchors {
            right: parent.right
            rightMargin: controls.row.sideMargin - 12
            verticalCenter: parent.verticalCenter
        }
        visible: controls.row.movable
        name: controls.name
        onStarted: controls.row.list.startReorder(controls.row)
        onMoved: distance => controls.row.list.reorderBy(distance)
        onFinished: controls.row.list.finishReorder()
    }
}
