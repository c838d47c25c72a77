import QtQuick
import QtQuick.Controls.Basic as C
import Quellin

// Draws any screen: the bar with its title and buttons, and the rows of its table.
FocusScope {
    id: screen

    required property Page page

    focus: true

    readonly property int columnWidth: Math.min(width, 720)

    // Where the column does not fill the window, its bands are rounded.
    readonly property int bandRadius: width > columnWidth ? 12 : 0

    Rectangle {
        anchors.fill: parent
        color: Theme.background
    }

    Item {
        width: screen.columnWidth
        height: parent.height
        anchors.horizontalCenter: parent.horizontalCenter

        NavigationBar {
            id: bar

            width: parent.width
            page: screen.page
            scrolled: list.contentY > list.originY
        }

        ListView {
            id: list

            objectName: "rows"

            anchors {
                top: bar.bottom
                bottom: parent.bottom
                left: parent.left
                right: parent.right
            }
            model: screen.page.rows
            clip: true
            focus: true
            activeFocusOnTab: true
            currentIndex: -1
            keyNavigationEnabled: true
            highlightMoveDuration: Theme.motion
            boundsBehavior: Flickable.StopAtBounds
            transform: Translate { y: pull.reached }
            cacheBuffer: 480
            bottomMargin: 16

            Accessible.role: Accessible.List
            Accessible.name: screen.page.title

            section.property: "sectionTitle"
            section.labelPositioning: ViewSection.InlineLabels | ViewSection.CurrentLabelAtStart
            section.delegate: SectionHeader {
                radius: screen.bandRadius
                width: ListView.view.width
            }

            delegate: TableRow {
                id: row

                width: ListView.view.width
                page: screen.page
                bandRadius: screen.bandRadius
                timeColumn: screen.page.rows.timeColumn
                onSwipedChanged: {
                    if (swiped) {
                        list.closeSwiped()
                        list.swipedRow = row
                    } else if (list.swipedRow === row) {
                        list.swipedRow = null
                    }
                }
            }

            // The one row that is pushed aside.
            property TableRow swipedRow: null

            function closeSwiped() {
                if (swipedRow)
                    swipedRow.cover()
            }

            onMovementStarted: closeSwiped()
            onCurrentIndexChanged: closeSwiped()

            // What is in sight stays where it is, whatever changes above it.
            property double placeOffset: 0

            Connections {
                target: screen.page.rows

                function onAboutToChange() {
                    const atTop = list.indexAt(8, list.contentY + 1)
                    const index = atTop >= 0 ? atTop : list.indexAt(8, list.contentY + list.height / 2)
                    const item = list.itemAtIndex(index)
                    screen.page.rows.keepPlace(item ? index : -1)
                    list.placeOffset = item ? item.y - list.contentY : 0
                }

                function onHasChanged() {
                    list.forceLayout()
                    const item = list.itemAtIndex(screen.page.rows.place())
                    if (item && !list.moving) {
                        list.contentY = item.y - list.placeOffset
                        list.returnToBounds()
                    }
                }
            }

            Keys.onReturnPressed: screen.page.rows.tap(currentIndex)
            Keys.onEnterPressed: screen.page.rows.tap(currentIndex)
            Keys.onSpacePressed: screen.page.rows.tap(currentIndex)

            Keys.onMenuPressed: if (currentItem)
                currentItem.uncover()
            Keys.onLeftPressed: if (currentItem)
                currentItem.uncover()

            C.ScrollBar.vertical: C.ScrollBar {
                policy: C.ScrollBar.AsNeeded
                contentItem: Rectangle {
                    implicitWidth: 4
                    radius: 2
                    color: Theme.secondaryLabel
                    opacity: parent.active ? 0.6 : 0
                }
            }
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
            symbol: screen.page.symbol
        }
    }

    Keys.onEscapePressed: screen.page.goBack()
    Keys.onBackPressed: screen.page.goBack()
}
