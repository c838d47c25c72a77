import QtQuick
import Quellin

// The tabs of a tablet, at the side.
Rectangle {
    id: rail

    required property Shell shell

    readonly property font tabFont: shell.tabFont(implicitWidth - 8, Theme.textScale)

    implicitWidth: Math.round(96 * Math.min(Theme.textScale, 1.5))
    color: Theme.groupedBackground

    Accessible.role: Accessible.PageTabList

    Column {
        width: parent.width
        y: 12
        spacing: 8

        Repeater {
            model: rail.shell

            TabButton {
                required property int index
                required property string title
                required property bool tabEnabled

                width: rail.width
                font: rail.tabFont
                text: title
                available: tabEnabled
                current: index === rail.shell.selectedIndex
                onClicked: rail.shell.tapTab(index)
            }
        }
    }

    Rectangle {
        width: 1
        height: parent.height
        anchors.right: parent.right
        color: Theme.separator
    }
}
