import QtQuick
import Quellin

// The picture and the actions of a show's page, beside its texts.
Flickable {
    id: aside

    required property TableModel rows
    readonly property var head: rows.head
    readonly property var actions: rows.headActions

    signal ended()

    readonly property bool hasPicture: head !== undefined && head.picture.toString() !== ""

    contentHeight: buttons.y + buttons.height + 16
    boundsBehavior: Flickable.StopAtBounds
    interactive: contentHeight > height

    HeadPicture {
        id: picture

        width: parent.width
        height: visible ? Math.round(width * 9 / 16) : 0
        visible: aside.hasPicture
        radius: 12
        source: aside.hasPicture ? aside.head.picture : ""
        whole: aside.hasPicture && aside.head.wholePicture
    }

    ActionButtons {
        id: buttons

        y: picture.height + (picture.visible ? 12 : 0)
        width: parent.width
        actions: aside.actions !== undefined ? aside.actions.buttons : []
        onChosen: action => aside.rows.choose(1, action)
        onEnded: aside.ended()
    }
}
