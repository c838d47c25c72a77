import QtQuick
import Quellin

// A picture of a row, fitted into its place; it is decoded at the size in which it is drawn.
Image {
    id: picture

    // There is none, or not yet; a picture that does not exist is one pixel large.
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
