import QtQuick
import QtQuick.Controls.Basic as C
import Qt.labs.qmlmodels
import Quellin

// The rows of a table: their delegates, the keyboard, the open swipe, reordering, and the place in the list.
ListView {
    id: view

    required property Page page

    // The keyboard moves up from the first row.
    signal leftUpwards()

    readonly property double sideMargin: width >= 600 ? 24 : 16
    // Bands across the column are rounded where the column does not fill the page.
    property int bandRadius: 0

    // Whether the head's picture and actions are drawn beside the list.
    property bool besideAside: false

    // Whether the screen was opened with a keyboard or a pointer, so that a field may take the keyboard.
    property bool fieldWanted: false

    // The width that the index strip covers.
    property double trailingInset: 0

    readonly property int tileColumns: Theme.textScale >= 1.5 ? 1 : width >= 700 ? 4 : width >= 600 ? 3 : 2
    readonly property double tileGap: 12
    readonly property double tileWidth: Math.floor((width - trailingInset - 2 * sideMargin - (tileColumns - 1) * tileGap) / tileColumns)
    readonly property double tileHeight: Math.round(132 * Math.min(Theme.textScale, 1.5))

    // The focus ring is for the keyboard: it disappears with the next tap.
    property bool keyboardUsed: false
    // The row whose actions are uncovered; there is at most one.
    property TableRow swipedRow: null
    readonly property TableRow currentRow: currentItem as TableRow

    // Rows stay where they are while the user touches or scrolls the list, or sees the actions of one.
    readonly property bool touched: visible && (finger.active || moving || scrollBar.pressed || (menu.item !== null && (menu.item as RowMenu).opened) || swipedRow !== null || dragged !== null)

    function tileX(column) {
        return sideMargin + column * (tileWidth + tileGap)
    }

    function closeSwiped() {
        if (swipedRow)
            swipedRow.cover()
    }

    function noteSwipe(row) {
        if (row.swiped) {
            if (swipedRow !== row)
                closeSwiped()
            swipedRow = row
        } else if (swipedRow === row) {
            swipedRow = null
        }
    }

    function notePlace() {
        readingOrder.rowPlaced()
    }

    // The current row is never reused, so that a field keeps its focus and text while its row is out of sight.
    function holdCurrent(row) {
        currentIndex = row.index
    }

    function rowMenu(): RowMenu {
        menu.active = true
        return menu.item as RowMenu
    }

    function openMenu(row, x, y) {
        const actions = row.rows.actions(row.index)
        if (actions.length > 0)
            rowMenu().openActions(row, actions, x, y)
    }

    function openChoices(row) {
        rowMenu().openChoices(row)
    }

    function openTimePicker(row) {
        timePicker.active = true
        const picker = timePicker.item as TimePicker
        picker.openFor(row)
    }

    function goTo(index) {
        positionViewAtIndex(index, ListView.Beginning)
    }

    // ---- reordering

    property TableRow dragged: null
    property double dragStart: 0
    property int dropBefore: -1
    // Near an edge the list scrolls, the faster the nearer the row is; in units per second.
    readonly property double scrollSpeed: {
        if (!dragged)
            return 0
        const top = dragged.draggedTop
        const near = dragged.bodyHeight
        if (top < dragStart)
            return -900 * Math.max(0, Math.min(1, 1 - (top - stickyHeight) / near))
        return 900 * Math.max(0, Math.min(1, 1 - (height - near - top) / near))
    }

    function startReorder(row) {
        // The current row is kept although it scrolls out of sight.
        holdCurrent(row)
        dragStart = row.y + row.bodyTop - contentY
        row.draggedTop = dragStart
        row.dragged = true
        dragged = row
        dropBefore = -1
        interactive = false
    }

    function reorderBy(distance) {
        if (dragged) {
            dragged.draggedTop = dragStart + distance
            findDrop()
        }
    }

    function findDrop() {
        const y = contentY + dragged.draggedTop + dragged.bodyHeight / 2
        const over = indexAt(width / 2, y)
        if (over < 0)
            return
        const next = y > (itemAtIndex(over) as TableRow).middle && over !== dragged.index ? over + 1 : over
        dropBefore = page.rows.canMoveBefore(dragged.index, next) ? next : -1
    }

    function scrollBy(distance) {
        const end = originY + contentHeight + bottomMargin - height
        const to = Math.max(originY, Math.min(end, contentY + distance))
        if (to !== contentY) {
            contentY = to
            findDrop()
        }
    }

    function finishReorder() {
        const index = dragged ? dragged.index : -1
        const next = dropBefore
        cancelReorder()
        if (next >= 0)
            page.rows.moveBefore(index, next)
    }

    function cancelReorder() {
        if (dragged)
            dragged.dragged = false
        dragged = null
        dropBefore = -1
        interactive = true
    }

    FrameAnimation {
        running: view.scrollSpeed !== 0
        onTriggered: view.scrollBy(view.scrollSpeed * frameTime)
    }

    objectName: "rows"
    model: page.rows
    clip: true
    focus: true
    activeFocusOnTab: true
    currentIndex: -1
    keyNavigationEnabled: false
    highlightFollowsCurrentItem: false
    boundsBehavior: Flickable.StopAtBounds
    cacheBuffer: 480
    // A line of tiles belongs to its first row: it must not be dropped while the line can still be seen. The others have
    // their places below the line.
    displayMarginBeginning: tileHeight + tileGap
    displayMarginEnd: tileHeight + tileGap
    bottomMargin: 16
    // A reused row must have its new height at once, or the list places the rows after it by the old one. Rows
    // therefore compute their heights in bindings: a Column would only update its height when the scene is polished.
    reuseItems: true

    Accessible.role: Accessible.List
    Accessible.name: page.title

    delegate: DelegateChooser {
        role: "kind"

        DelegateChoice { roleValue: Kit.RowKind.Show; ShowRow {} }
        DelegateChoice { roleValue: Kit.RowKind.Channel; ChannelRow {} }
        DelegateChoice { roleValue: Kit.RowKind.Text; TextRow {} }
        DelegateChoice { roleValue: Kit.RowKind.Switch; SwitchRow {} }
        DelegateChoice { roleValue: Kit.RowKind.Choice; ChoiceRow {} }
        DelegateChoice { roleValue: Kit.RowKind.Time; TimeRow {} }
        DelegateChoice { roleValue: Kit.RowKind.Input; InputRow {} }
        DelegateChoice { roleValue: Kit.RowKind.Button; ButtonRow {} }
        DelegateChoice { roleValue: Kit.RowKind.Progress; ProgressRow {} }
        DelegateChoice { roleValue: Kit.RowKind.Picture; PictureRow {} }
        DelegateChoice { roleValue: Kit.RowKind.Head; HeadRow {} }
        DelegateChoice { roleValue: Kit.RowKind.Actions; ActionsRow {} }
        DelegateChoice { roleValue: Kit.RowKind.Paragraph; ParagraphRow {} }
        DelegateChoice { roleValue: Kit.RowKind.Tile; TileRow {} }
        DelegateChoice { roleValue: Kit.RowKind.DayBar; DayBarRow {} }
    }

    PlaceKeeper {
        list: view
        model: view.page.rows
    }

    ReadingOrder {
        id: readingOrder

        objectName: "readingOrder"
        list: view
    }

    onMovementStarted: closeSwiped()
    onTouchedChanged: page.rows.hold(touched)

    PointHandler {
        id: finger
    }

    // The menu of the row at a place of the view.
    function openMenuAt(place) {
        const row = itemAt(place.x + contentX, place.y + contentY) as TableRow
        if (row) {
            const inRow = row.mapFromItem(view, place.x, place.y)
            openMenu(row, inRow.x, inRow.y)
        }
    }

    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: eventPoint => view.openMenuAt(eventPoint.position)
    }

    TapHandler {
        acceptedDevices: PointerDevice.TouchScreen
        enabled: !view.page.rows.editing
        onLongPressed: view.openMenuAt(point.position)
    }

    // ---- the keyboard

    // Rows of a tile line are beside each other: Up and Down go by lines there.
    function step(by) {
        if (count === 0)
            return
        keyboardUsed = true
        closeSwiped()
        currentIndex = Math.max(0, Math.min(count - 1, currentIndex + by))
        // Beside an aside the actions are not drawn here.
        if (currentRow && currentRow.leastHeight === 0 && currentRow.contentHeight === 0)
            currentIndex = Math.max(0, Math.min(count - 1, currentIndex + (by < 0 ? -1 : 1)))
        reveal()
    }

    function lineStep() {
        return currentRow && currentRow.tiled ? tileColumns : 1
    }

    // The heading at the top covers what is below it.
    function reveal() {
        positionViewAtIndex(currentIndex, ListView.Contain)
        if (currentRow && !currentRow.section.first && currentRow.y - contentY < stickyHeight)
            contentY = currentRow.y - stickyHeight
    }

    property double stickyHeight: 0

    Keys.onPressed: event => {
        const screenful = Math.max(1, Math.floor(view.height / 72))
        event.accepted = true
        switch (KeyTable.listAction(event.key, event.modifiers)) {
        case KeyTable.Up:
            if (currentIndex <= 0)
                leftUpwards()
            step(-lineStep())
            break
        case KeyTable.Down:
            step(currentIndex < 0 ? 1 : lineStep())
            break
        case KeyTable.Left:
            if (currentRow && currentRow.tiled)
                step(-1)
            else if (currentRow)
                currentRow.uncover()
            break
        case KeyTable.Right:
            if (currentRow && currentRow.tiled)
                step(1)
            else
                closeSwiped()
            break
        case KeyTable.PageUp:
            step(-screenful)
            break
        case KeyTable.PageDown:
            step(screenful)
            break
        case KeyTable.Home:
            step(-count)
            break
        case KeyTable.End:
            step(count)
            break
        case KeyTable.Activate:
            // A space is part of a name that is being typed.
            if (event.text !== " " || !typeAhead(event))
                activateCurrent()
            break
        case KeyTable.Extend:
            if (currentRow && (currentRow.activatable || currentRow.takesText))
                currentRow.extend()
            break
        case KeyTable.SelectAll:
            event.accepted = view.page.rows.selectAll()
            break
        case KeyTable.Menu:
            if (currentRow)
                openMenu(currentRow, currentRow.width / 2, currentRow.height / 2)
            break
        case KeyTable.Delete:
            if (currentRow && currentRow.row.deletable)
                view.page.rows.remove(currentIndex)
            break
        case KeyTable.MoveUp:
            moveCurrent(-1)
            break
        case KeyTable.MoveDown:
            moveCurrent(1)
            break
        default:
            event.accepted = typeAhead(event)
        }
    }

    // ---- type-ahead

    property string typed: ""

    // Goes to the next row whose name begins with what was typed without a pause. Returns whether the key was used.
    function typeAhead(event) {
        if (event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier) || event.text < " " || event.text === "\u007f" || (typed === "" && event.text === " "))
            return false
        const index = page.rows.rowStartingWith(typed + event.text, typed === "" ? currentIndex + 1 : currentIndex)
        if (index < 0)
            return typed !== ""
        typed += event.text
        pause.restart()
        step(index - currentIndex)
        return true
    }

    Timer {
        id: pause

        interval: 1000
        onTriggered: view.typed = ""
    }

    // The keyboard comes from above.
    function enter() {
        forceActiveFocus(Qt.TabFocusReason)
        step(currentIndex < 0 ? 1 : 0)
    }

    function activateCurrent() {
        if (currentRow && (currentRow.activatable || currentRow.takesText))
            currentRow.activate()
    }

    function moveCurrent(by) {
        if (currentIndex < 0)
            return
        page.rows.moveBefore(currentIndex, by < 0 ? currentIndex - 1 : currentIndex + 2)
        reveal()
    }

    C.ScrollBar.vertical: C.ScrollBar {
        id: scrollBar

        policy: C.ScrollBar.AsNeeded
        Accessible.ignored: true
        contentItem: Rectangle {
            implicitWidth: 4
            radius: 2
            color: Theme.secondaryLabel
            opacity: scrollBar.active ? 0.6 : 0
        }
    }

    // The ring of the keyboard focus.
    Rectangle {
        parent: view.currentRow ? view.currentRow.movingBody : view
        anchors.fill: parent
        anchors.margins: 2
        z: 1
        color: "transparent"
        radius: 8
        border.width: 2
        border.color: Theme.tint
        visible: view.currentRow !== null && view.currentRow.focused
    }

    // Where a dragged row would go.
    Rectangle {
        readonly property Item next: view.dropBefore >= 0 ? view.itemAtIndex(view.dropBefore) : null
        readonly property Item previous: view.dropBefore > 0 ? view.itemAtIndex(view.dropBefore - 1) : null

        parent: view.contentItem
        x: view.sideMargin
        y: (next ? next.y : previous ? previous.y + previous.height : 0) - 1
        z: 3
        width: view.width - 2 * x
        height: 3
        radius: 2
        color: Theme.tint
        visible: view.dropBefore >= 0
    }

    // Most lists never open these: they are made when they are first needed.
    Loader {
        id: menu

        active: false
        sourceComponent: RowMenu {
            parent: view
        }
    }

    Loader {
        id: timePicker

        active: false
        sourceComponent: TimePicker {
            parent: view
        }
    }
}
