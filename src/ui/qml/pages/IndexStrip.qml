import QtQuick
import Quellin

// The marks of a table's sections at its edge; a tap or a slide along them goes to a section.
Item {
    id: strip

    required property TableList list

    readonly property var marks: list.page.rows.indexTitles
    readonly property double markHeight: Math.min(20 * Theme.textScale, height / Math.max(1, marks.length))

    function goTo(y) {
        const mark = Math.max(0, Math.min(marks.length - 1, Math.floor((y - column.y) / markHeight)))
        list.goTo(list.page.rows.rowOfIndexTitle(mark))
    }

    width: 28
    visible: marks.length > 1

    Column {
        id: column

        width: parent.width
        anchors.verticalCenter: parent.verticalCenter

        Repeater {
            model: strip.marks

            Text {
                required property int index
                required property string modelData

                width: strip.width
                height: strip.markHeight
                text: modelData
                textFormat: Text.PlainText
                color: Theme.tint
                font.family: Theme.detailsFont.family
                font.weight: Font.DemiBold
                // A line is about a third higher than its font.
                font.pixelSize: Math.max(8, Math.min(12 * Theme.textScale, Math.floor(strip.markHeight * 0.72)))
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter

                Accessible.role: Accessible.Button
                Accessible.name: modelData
                Accessible.onPressAction: strip.list.goTo(strip.list.page.rows.rowOfIndexTitle(index))
            }
        }
    }

    MouseArea {
        anchors.fill: parent
        preventStealing: true
        onPressed: mouse => strip.goTo(mouse.y)
        onPositionChanged: mouse => strip.goTo(mouse.y)
    }
}
