import QtQuick
import Quellin

// One screen: its bar, and below it what draws its content.
FocusScope {
    id: view

    required property Page page
    property bool canGoBack: page.canGoBack
    property bool closable: false

    // A show's page has two columns where there is room.
    readonly property int columnWidth: Math.min(width, page.rows && page.rows.head !== undefined ? 1080 : 720)
    readonly property ContentPage drawn: content.item as ContentPage

    // What a popover points at; null when it is not drawn.
    function anchorItem(kind, index) {
        switch (kind) {
        case PageStack.LeftButton:
            return bar.leftButton(index)
        case PageStack.RightButton:
            return bar.rightButton(index)
        case PageStack.RowAnchor:
            return drawn ? drawn.rowItem(index) : null
        default:
            return null
        }
    }

    // Whether the screen has a search field.
    function focusSearch(selecting) {
        return bar.focusSearch(selecting)
    }

    // By a keyboard or a pointer.
    function opened() {
        if (drawn)
            drawn.opened()
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.background
    }

    Item {
        width: view.columnWidth
        height: parent.height
        anchors.horizontalCenter: parent.horizontalCenter

        NavigationBar {
            id: bar

            width: parent.width
            page: view.page
            canGoBack: view.canGoBack
            closable: view.closable
            scrolled: view.drawn !== null && view.drawn.scrolled
            onSearchEdited: if (view.drawn)
                view.drawn.searchEdited()
            onSearchLeft: if (view.drawn)
                view.drawn.enter()
        }

        Loader {
            id: content

            anchors {
                top: bar.bottom
                bottom: parent.bottom
                left: parent.left
                right: parent.right
            }
            focus: true
            onLoaded: {
                view.drawn.inset = Qt.binding(() => view.width >= view.columnWidth + 32)
                view.drawn.leftUpwards.connect(() => view.focusSearch(false))
            }
            Component.onCompleted: setSource(view.page.source, { "page": view.page, "focus": true })
        }
    }

    Keys.onBackPressed: page.goBack()
    Keys.onEscapePressed: event => {
        event.accepted = page.canGoBack || closable
        page.goBack()
    }
}
