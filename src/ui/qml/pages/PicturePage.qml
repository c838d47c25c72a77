import QtQuick
import Quellin

// One picture, or that it is loading. Pinch, wheel and double click zoom it; a zoomed picture is dragged.
Item {
    id: view

    required property var picture
    required property string name
    property double mostZoom: 6
    property double zoom: 1

    // Around the middle; 0 goes back to the whole picture.
    function zoomBy(factor) {
        zoomAt(factor, width / 2, height / 2)
    }

    // Keeps the point of the picture that is at (x, y) there.
    function zoomAt(factor, x, y) {
        const wanted = Math.min(mostZoom, Math.max(1, zoom * factor))
        const grown = wanted / zoom
        item.x = bounded(x - (x - item.x) * grown, width, wanted)
        item.y = bounded(y - (y - item.y) * grown, height, wanted)
        zoom = wanted
    }

    function bounded(position, room, scale) {
        return Math.min(0, Math.max(room - room * scale, position))
    }

    clip: true
    // The whole picture, when the page is turned to again.
    ListView.onIsCurrentItemChanged: zoomBy(0)
    onWidthChanged: zoomBy(0)

    PictureItem {
        id: item

        width: view.width * view.zoom
        height: view.height * view.zoom
        picture: view.picture
        opacity: empty ? 0 : 1

        Behavior on opacity {
            enabled: Theme.moves
            NumberAnimation { duration: Theme.pictureMotion }
        }

        Accessible.role: Accessible.Graphic
        Accessible.name: view.name
    }

    Spinner {
        anchors.centerIn: parent
        width: 32
        height: 32
        visible: item.empty
        color: "white"
    }

    PinchHandler {
        property double before: 1

        target: null
        enabled: !item.empty
        onActiveChanged: before = 1
        onActiveScaleChanged: {
            view.zoomAt(activeScale / before, centroid.position.x, centroid.position.y)
            before = activeScale
        }
    }

    DragHandler {
        property point before

        target: null
        enabled: view.zoom > 1
        onActiveChanged: before = Qt.point(0, 0)
        onTranslationChanged: {
            item.x = view.bounded(item.x + translation.x - before.x, view.width, view.zoom)
            item.y = view.bounded(item.y + translation.y - before.y, view.height, view.zoom)
            before = Qt.point(translation.x, translation.y)
        }
    }

    WheelHandler {
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        enabled: !item.empty
        onWheel: event => view.zoomAt(Math.pow(1.25, event.angleDelta.y / 120), event.x, event.y)
    }

    TapHandler {
        enabled: !item.empty
        onDoubleTapped: eventPoint => view.zoomAt(view.zoom > 1 ? 0 : 2.5, eventPoint.position.x, eventPoint.position.y)
    }
}
