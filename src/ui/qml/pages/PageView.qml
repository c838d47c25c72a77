import QtQuick
import Quellin

// One screen: its bar, and below it what draws its content.
FocusScope {
    id: view

    required property Page page
    property bool canGoBack: page.canGoBack
    property bool closable: false

    readonly property int columnWidth: Math.min(width, 720)

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
            scrolled: content.item !== null && content.item.scrolled
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
            Component.onCompleted: setSource(view.page.source, { "page": view.page, "focus": true })
        }
    }

    Keys.onBackPressed: page.goBack()
    Keys.onEscapePressed: event => {
        event.accepted = page.canGoBack || closable
        page.goBack()
    }
    Keys.onPressed: event => {
        if (event.matches(StandardKey.Refresh) && page.canRefresh) {
            page.pull()
            event.accepted = true
        }
    }
}
