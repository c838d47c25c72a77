import QtQuick
import Quellin

// Draws a table: its rows, the heading that stays at the top, the index strip, pull to refresh, and the note of an
// empty table.
ContentPage {
    id: screen

    // Without its section's header and footer.
    function rowItem(index): Item {
        const row = list.itemAtIndex(index) as TableRow
        return row ? row.body : null
    }

    // A wide page has the picture and the actions of a show on the left.
    readonly property bool hasAside: width >= 700 && page.rows.head !== undefined

    function enter() {
        list.enter()
    }

    function opened() {
        list.fieldWanted = true
    }

    function searchEdited() {
        list.currentIndex = -1
        list.positionViewAtBeginning()
    }

    scrolled: list.contentY > list.originY

    TableList {
        id: list

        anchors.fill: parent
        anchors.leftMargin: screen.hasAside ? 352 : 0
        besideAside: screen.hasAside
        trailingInset: strip.visible ? strip.width - 8 : 0
        page: screen.page
        onLeftUpwards: screen.leftUpwards()
        bandRadius: screen.inset ? 12 : 0
        stickyHeight: sticky.visible ? sticky.height : 0
        transform: Translate { y: pull.reached }
    }

    Loader {
        x: list.sideMargin
        y: 12
        width: 320
        height: parent.height - y
        active: screen.hasAside
        sourceComponent: PageAside {
            rows: screen.page.rows
            onEnded: list.forceActiveFocus()
        }
    }

    SectionHeader {
        id: sticky

        // The row at the top edge, and the one below the heading, which may push it up.
        property TableRow topRow: null
        property TableRow nextRow: null

        function update() {
            topRow = list.itemAt(list.width / 2, list.contentY + 1)
            nextRow = list.itemAt(list.width / 2, list.contentY + implicitHeight)
        }

        x: list.x
        width: list.width
        y: nextRow && nextRow !== topRow && nextRow.section.first ? Math.min(0, nextRow.y - list.contentY - height) : 0
        visible: text !== "" && list.contentY > list.originY
        text: topRow ? topRow.section.header : ""
        sideMargin: list.sideMargin
        radius: list.bandRadius
        Accessible.ignored: true

        Connections {
            target: list

            function onContentYChanged() { sticky.update() }
            function onContentHeightChanged() { sticky.update() }
            function onCountChanged() { sticky.update() }
        }
    }

    IndexStrip {
        id: strip

        anchors {
            top: parent.top
            bottom: parent.bottom
            right: parent.right
        }
        list: list
    }

    PullIndicator {
        id: pull

        anchors.fill: list
        visible: screen.page.canRefresh
        atTop: list.atYBeginning
        turning: screen.page.refreshing
        onPulled: screen.page.pull()
    }

    EmptyNote {
        anchors.fill: list
        visible: list.count === 0 && screen.page.rows.emptyTitle !== ""
        title: screen.page.rows.emptyTitle
        message: screen.page.rows.emptyMessage
        button: screen.page.rows.emptyButton
        symbol: screen.page.symbol
        onPressed: screen.page.rows.pressEmptyButton()
    }
}
