import QtQuick
import Quellin

// Common to rows of every kind: the section's header and footer around it, the surface with the row's own content,
// the actions that a swipe uncovers, and the controls of edit mode. In a section of tiles the first row of each line
// has the line's height, and the others are drawn beside it and have none.
FocusScope {
    id: cell

    required property int index
    required property tableSection section
    // The value type of the row's kind.
    required property var row

    // The TableList; its type would make the two depend on each other.
    readonly property var list: ListView.view
    readonly property TableModel rows: list ? list.page.rows : null
    readonly property bool focused: ListView.isCurrentItem && list.activeFocus && list.keyboardUsed
    readonly property double sideMargin: tiled ? 12 : list ? list.sideMargin : 16

    // Whether a tap or Enter calls activate().
    property bool activatable: row.selectable
    // Whether Enter goes into a field.
    property bool takesText: false
    property int accessibleRole: Accessible.ListItem
    property bool checkable: false
    property bool checked: false
    property color surfaceColor: tiled ? Theme.groupedBackground : Theme.background
    property int surfaceRadius: tiled ? 12 : 0
    // Where the line below the row begins; negative for no line.
    property double separatorInset: sideMargin
    readonly property alias shownColor: surface.color
    property double contentHeight: 0
    property double leastHeight: 44
    default property alias content: surfaceContent.data
    // What is left for the row's content.
    readonly property double surfaceWidth: surfaceContent.width
    // The row without header and footer, and what of it moves with a swipe.
    readonly property alias body: surfaceBody
    readonly property alias movingBody: surface
    readonly property double middle: y + bodyTop + bodyHeight / 2

    readonly property bool tiled: section.tiles && list !== null && list.tileColumns > 1
    readonly property int column: tiled ? section.place % list.tileColumns : 0
    readonly property double bodyTop: column === 0 ? header.height + gap : -bodyHeight
    readonly property double bodyHeight: tiled ? list.tileHeight : Math.max(leastHeight, contentHeight)

    property bool swiped: false
    property var actions: []
    readonly property double actionWidth: Math.round(76 * Math.min(Theme.textScale, 1.5))
    readonly property bool removable: rows !== null && rows.editing && row.deletable
    readonly property bool movable: rows !== null && rows.editing && row.movable
    readonly property bool editing: removable || movable
    // While the reorder handle drags the row, its body is drawn over the list, at this distance from the list's top
    // edge.
    property bool dragged: false
    property double draggedTop: 0

    function activate() {
        rows.tap(index)
    }

    // With Shift, together with the rows since the last tap.
    function extend() {
        if (row.selectable)
            rows.tap(index, true)
        else
            activate()
    }

    function uncover() {
        actions = rows.actions(index)
        swiped = actions.length > 0
    }

    function cover() {
        if (panel.activeFocus)
            list.forceActiveFocus()
        swiped = false
    }

    // A row that is back in its place has no actions below it.
    function dropActions() {
        if (surface.x === 0 && !push.held && !swiped)
            actions = []
    }

    function reset() {
        swiped = false
        actions = []
        if (dragged)
            list.cancelReorder()
    }

    width: ListView.view ? ListView.view.width : 0
    // Above each line of tiles, and below the last one.
    readonly property double gap: tiled ? list.tileGap : 0

    implicitHeight: (column === 0 ? header.height + gap + bodyHeight : 0) + (section.last ? gap : 0) + footer.height
    Component.onCompleted: {
        rows.shown(index)
        list.notePlace()
    }
    onIndexChanged: if (list)
        list.notePlace()
    onRowChanged: {
        if (!rows || !rows.actionsApply(index))
            cover()
        if (rows && index >= 0)
            rows.shown(index)
    }
    onSwipedChanged: if (list)
        list.noteSwipe(cell)
    // A row that waits for its next use is neither drawn nor read aloud.
    ListView.onPooled: {
        reset()
        visible = false
    }
    ListView.onReused: {
        visible = true
        list.notePlace()
    }

    Loader {
        id: header

        width: parent.width
        height: item ? (item as Item).implicitHeight : 0
        active: cell.section.first && cell.section.header !== ""
        sourceComponent: SectionHeader {
            text: cell.section.header
            sideMargin: cell.list ? cell.list.sideMargin : 16
            radius: cell.list ? cell.list.bandRadius : 0
        }
    }

    Item {
        id: surfaceBody

        parent: cell.dragged ? cell.list : cell
        x: cell.tiled ? cell.list.tileX(cell.column) : 0
        y: cell.dragged ? cell.draggedTop : cell.bodyTop
        z: cell.dragged ? 2 : 0
        width: cell.tiled ? cell.list.tileWidth : cell.width
        height: cell.bodyHeight
        clip: panel.active

        Loader {
            id: panel

            anchors {
                top: parent.top
                bottom: parent.bottom
                right: parent.right
            }
            active: cell.actions.length > 0
            sourceComponent: SwipeActions {
                actions: cell.actions
                actionWidth: cell.actionWidth
                onCancelled: cell.cover()
                onChosen: action => {
                    cell.cover()
                    cell.rows.performAction(action)
                }
            }
        }

        RowSurface {
            id: surface

            x: push.held ? push.reached : cell.swiped ? -cell.actions.length * cell.actionWidth : 0
            width: parent.width
            height: parent.height
            radius: cell.surfaceRadius
            plainColor: cell.surfaceColor
            selectable: cell.activatable || cell.swiped
            selected: cell.row.selected
            onTapped: extending => {
                cell.list.keyboardUsed = false
                if (cell.swiped)
                    cell.cover()
                else if (extending)
                    cell.extend()
                else
                    cell.activate()
            }
            onXChanged: cell.dropActions()

            Accessible.role: cell.accessibleRole
            Accessible.name: cell.row.accessibleName
            Accessible.focusable: true
            Accessible.focused: cell.focused
            Accessible.checkable: cell.checkable
            Accessible.checked: cell.checked
            Accessible.onPressAction: if (cell.activatable && cell.enabled)
                cell.activate()
            Accessible.onToggleAction: if (cell.activatable && cell.enabled)
                cell.activate()

            Behavior on x {
                enabled: Theme.moves && !push.held
                NumberAnimation { duration: Theme.rowMotion; easing.type: Easing.OutCubic }
            }

            Item {
                id: surfaceContent

                anchors {
                    fill: parent
                    leftMargin: cell.removable ? 32 : 0
                    rightMargin: (cell.movable ? 44 : 0) + (cell.list && !cell.tiled ? cell.list.trailingInset : 0)
                }
            }

            Loader {
                anchors.fill: parent
                active: cell.editing
                sourceComponent: EditControls {
                    row: cell
                }
            }

            Rectangle {
                x: cell.separatorInset + (cell.removable ? 32 : 0)
                width: parent.width - x
                height: 1
                anchors.bottom: parent.bottom
                color: Theme.separator
                visible: !cell.section.last && !cell.tiled && cell.separatorInset >= 0
            }
        }

        DragHandler {
            id: push

            property bool held: false
            property double begin: 0
            property double reached: 0

            // A row that moves is dragged by its handle.
            enabled: !cell.editing || !cell.row.movable
            target: null
            yAxis.enabled: false
            // Otherwise the list would take over the touch at the first vertical movement.
            grabPermissions: PointerHandler.CanTakeOverFromAnything
            onActiveChanged: {
                const width = cell.actions.length * cell.actionWidth
                if (active) {
                    if (!cell.swiped)
                        cell.actions = cell.rows.actions(cell.index)
                    begin = cell.swiped ? -width : 0
                    reached = begin
                    held = true
                } else {
                    cell.swiped = reached < -width / 2
                    held = false
                    cell.dropActions()
                }
            }
            onActiveTranslationChanged: if (held)
                reached = Math.max(-cell.actions.length * cell.actionWidth, Math.min(0, begin + activeTranslation.x))
        }
    }

    Loader {
        id: footer

        width: parent.width
        height: item ? (item as Item).implicitHeight : 0
        anchors.bottom: parent.bottom
        active: cell.section.last && cell.section.footer !== ""
        sourceComponent: SectionFooter {
            text: cell.section.footer
            sideMargin: cell.list ? cell.list.sideMargin : 16
        }
    }
}
