import QtQuick
import Quellin

// A show's picture in a place of 16 to 9: a landscape fills it, any other shape is shown whole, and a small picture is
// not made larger.
Item {
    id: place

    property alias source: picture.source
    property alias radius: picture.radius
    // Whether a landscape of another shape is shown whole, too.
    property bool whole: false
    // Of the picture as it arrived; a binding would follow the way in which it is drawn.
    property size own: Qt.size(0, 0)
    readonly property double shape: own.height > 0 ? own.width / own.height : 0
    readonly property bool small: own.width < 0.6 * width && own.height < height

    clip: true

    Rectangle {
        anchors.fill: parent
        radius: place.radius
        color: Theme.groupedBackground
    }

    RowPicture {
        id: picture

        anchors.centerIn: parent
        width: parent.width
        height: parent.height
        onStatusChanged: if (status === Image.Ready)
            place.own = Qt.size(implicitWidth, implicitHeight)
        fillMode: place.small ? Image.Pad : place.whole || place.shape < 1.2 ? Image.PreserveAspectFit : Image.PreserveAspectCrop
    }
}
