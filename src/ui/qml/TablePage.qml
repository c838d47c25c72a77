import QtQuick
import QtQuick.Controls.Basic as C
import Quellin

// Draws any screen: the bar with its title and buttons, and the rows of its table.
FocusScope {
    id: screen

    required property Page page

    readonly property int columnWidth: Math.min(width, 720)

    Rectangle {
        anchors.fill: parent
        color: screen.width > screen.columnWidth ? Theme.groupedBackground : Theme.background
    }

    Rectangle {
        width: screen.columnWidth
        height: parent.height
        anchors.horizontalCenter: parent.horizontalCenter
        color: Theme.background

        NavigationBar {
            id: bar

            width: parent.width
            page: screen.page
            scrolled: list.contentY > list.originY
        }

        ListView {
            id: list

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
            boundsBehavior: screen.page.canRefresh ? Flickable.DragAndOvershootBounds : Flickable.StopAtBounds
            cacheBuffer: 480
            bottomMargin: 16

            Accessible.role: Accessible.List
            Accessible.name: screen.page.title

            section.property: "sectionTitle"
            section.labelPositioning: ViewSection.InlineLabels | ViewSection.CurrentLabelAtStart
            section.delegate: SectionHeader {
                width: ListView.view.width
            }

            delegate: TableRow {
                width: ListView.view.width
                page: screen.page
                timeColumn: screen.page.rows.timeColumn
            }

            Keys.onReturnPressed: screen.page.rows.tap(currentIndex)
            Keys.onEnterPressed: screen.page.rows.tap(currentIndex)
            Keys.onSpacePressed: screen.page.rows.tap(currentIndex)

            onDragEnded: if (verticalOvershoot < -pull.height)
                screen.page.pull()

            C.ScrollBar.vertical: C.ScrollBar {
                policy: C.ScrollBar.AsNeeded
            }

            PullIndicator {
                id: pull

                width: parent.width
                y: -list.verticalOvershoot - height
                visible: screen.page.canRefresh && list.verticalOvershoot < 0
                turning: screen.page.refreshing
            }
        }

        EmptyNote {
            anchors.fill: list
            visible: list.count === 0 && screen.page.rows.emptyTitle !== ""
            title: screen.page.rows.emptyTitle
            message: screen.page.rows.emptyMessage
        }
    }

    Keys.onEscapePressed: screen.page.goBack()
    Keys.onBackPressed: screen.page.goBack()
}
