import QtQuick
import Quellin

// A picture of a row, fitted into its place; it is decoded at the size in which it is drawn.
Image {
    id: picture

    // Missing or not yet loaded; a missing picture arrives as a single pixel.
    readonly property bool empty: status !== Image.Ready || implicitWidth <= 1

    // A channel's icon, which may be replaced while it is shown. Other pictures set `source`.
    property url icon
    property int radius: 0
    // What is behind the picture.
    property color around: Theme.background

    source: Theme.pictureChanges >= 0 ? Theme.currentPicture(icon) : icon
    asynchronous: true
    sourceSize: Qt.size(width, height)
    fillMode: Image.PreserveAspectFit
    opacity: status === Image.Ready ? 1 : 0

    // Rounds the corners by covering them, which costs nothing but this item.
    Rectangle {
        // More than what a circle leaves of a corner.
        readonly property int cover: Math.ceil(picture.radius / 2)

        anchors.fill: parent
        anchors.margins: -cover
        visible: picture.radius > 0
        radius: picture.radius + cover
        color: "transparent"
        border.width: cover
        border.color: picture.around
    }

    Behavior on opacity {
        enabled: Theme.moves
        NumberAnimation { duration: Theme.pictureMotion }
    }
}
