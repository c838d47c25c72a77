import QtQuick
import Quellin

// A picture of a row, fitted into its place; it is decoded at the size in which it is drawn.
Image {
    id: picture

    // Missing or not yet loaded; a missing picture arrives as a single pixel.
    readonly property bool empty: status !== Image.Ready || implicitWidth <= 1

    asynchronous: true
    sourceSize: Qt.size(width, height)
    fillMode: Image.PreserveAspectFit
    opacity: status === Image.Ready ? 1 : 0

    Behavior on opacity {
        enabled: Theme.moves
        NumberAnimation { duration: Theme.pictureMotion }
    }
}
