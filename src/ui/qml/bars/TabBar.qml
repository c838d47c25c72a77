import QtQuick
import Quellin

// The tabs of a phone, at the bottom.
Rectangle {
    id: bar

    required property Shell shell

    implicitHeight: row.implicitHeight
    color: Theme.groupedBackground

    Accessible.role: Accessible.PageTabList

    Row {
        id: row

        readonly property double tabWidth: width / Math.max(1, tabs.count)
        readonly property font tabFont: bar.shell.tabFont(tabWidth - 4, Theme.textScale)

        width: Math.min(parent.width - 8, 720)
        anchors.horizontalCenter: parent.horizontalCenter

        Repeater {
            id: tabs

            model: bar.shell

            TabButton {
                required property int index
                required property string title
                required property bool tabEnabled

                width: row.tabWidth
                font: row.tabFont
                text: title
                available: tabEnabled
                current: index === bar.shell.selectedIndex
                onClicked: bar.shell.tapTab(index)
            }
        }
    }

    Rectangle {
        width: parent.width
        height: 1
        color: Theme.separator
    }
}
