import QtQuick
import Quellin

// Pictures on black, one a page, with dots, zoom by pinch and wheel, and arrows.
ContentPage {
    id: screen

    readonly property PicturePagesModel pictures: page.pictures
    readonly property double mostZoom: 6

    function turn(by) {
        const wanted = pictures.currentPage + by
        if (wanted >= 0 && wanted < pictures.count)
            pictures.showPage(wanted)
    }

    function tellRoom() {
        if (pictures && width > 0 && height > 0)
            pictures.setRoom(Qt.size(width, height))
    }

    onWidthChanged: tellRoom()
    onHeightChanged: tellRoom()
    Component.onCompleted: tellRoom()

    Rectangle {
        anchors.fill: parent
        color: "black"
    }

    ListView {
        id: list

        readonly property PicturePage shown: currentItem as PicturePage

        anchors.fill: parent
        model: screen.pictures
        orientation: ListView.Horizontal
        snapMode: ListView.SnapOneItem
        highlightRangeMode: ListView.StrictlyEnforceRange
        preferredHighlightBegin: 0
        preferredHighlightEnd: 0
        highlightMoveDuration: Theme.motion
        boundsBehavior: Flickable.StopAtBounds
        cacheBuffer: 0
        // A picture that is zoomed moves under the finger itself.
        interactive: !shown || shown.zoom <= 1
        currentIndex: screen.pictures.currentPage
        onCurrentIndexChanged: screen.pictures.showPage(currentIndex)
        onWidthChanged: positionViewAtIndex(screen.pictures.currentPage, ListView.Beginning)

        delegate: PicturePage {
            required property int index

            width: list.width
            height: list.height
            mostZoom: screen.mostZoom
            name: qsTranslate("Guide", "Picture %1 of %2").arg(index + 1).arg(screen.pictures.count)
        }
    }

    Row {
        id: dots

        anchors {
            horizontalCenter: parent.horizontalCenter
            bottom: parent.bottom
            bottomMargin: 16
        }
        spacing: 8
        // More would not fit; the number says where one is.
        visible: screen.pictures.count > 1 && screen.pictures.count <= 12

        Repeater {
            model: dots.visible ? screen.pictures.count : 0

            Rectangle {
                required property int index

                width: 8
                height: 8
                radius: 4
                color: "white"
                opacity: index === screen.pictures.currentPage ? 1 : 0.4
            }
        }
    }

    Text {
        anchors {
            horizontalCenter: parent.horizontalCenter
            bottom: parent.bottom
            bottomMargin: 16
        }
        visible: screen.pictures.count > 12
        text: qsTranslate("Guide", "%1 of %2").arg(screen.pictures.currentPage + 1).arg(screen.pictures.count)
        textFormat: Text.PlainText
        color: "white"
        font: Theme.detailsFont
    }

    IconButton {
        x: 4
        y: 8
        symbol: Glyph.Back
        color: "white"
        text: qsTranslate("Guide", "Back")
        onClicked: screen.pictures.leave()
    }

    IconButton {
        x: 4
        anchors.verticalCenter: parent.verticalCenter
        visible: screen.pictures.currentPage > 0
        symbol: Glyph.Back
        color: "white"
        text: qsTranslate("Guide", "Previous picture")
        onClicked: screen.turn(-1)
    }

    IconButton {
        anchors {
            right: parent.right
            rightMargin: 4
            verticalCenter: parent.verticalCenter
        }
        visible: screen.pictures.currentPage < screen.pictures.count - 1
        symbol: Glyph.Disclosure
        color: "white"
        text: qsTranslate("Guide", "Next picture")
        onClicked: screen.turn(1)
    }

    Keys.onPressed: event => {
        event.accepted = true
        switch (event.key) {
        case Qt.Key_Escape:
        case Qt.Key_Back:
            pictures.leave()
            break
        case Qt.Key_Left:
        case Qt.Key_PageUp:
            turn(-1)
            break
        case Qt.Key_Right:
        case Qt.Key_PageDown:
        case Qt.Key_Space:
            turn(1)
            break
        case Qt.Key_Home:
            turn(-pictures.currentPage)
            break
        case Qt.Key_End:
            turn(pictures.count - 1 - pictures.currentPage)
            break
        case Qt.Key_Plus:
            list.shown.zoomBy(1.25)
            break
        case Qt.Key_Minus:
            list.shown.zoomBy(0.8)
            break
        case Qt.Key_0:
            list.shown.zoomBy(0)
            break
        default:
            event.accepted = false
        }
    }
}
