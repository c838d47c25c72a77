import QtQuick
import Quellin

// Lets the user pick a time of day: two wheels, and a button that confirms the time.
FloatingPanel {
    id: picker

    property TableRow row: null

    function openFor(opener) {
        row = opener
        hours.currentIndex = opener.row.hour
        minutes.currentIndex = opener.row.minute
        open()
        hours.forceActiveFocus(Qt.TabFocusReason)
    }

    function done() {
        const chosen = row
        close()
        chosen.rows.pickTime(chosen.index, hours.currentIndex, minutes.currentIndex)
    }

    x: Math.round((parent.width - width) / 2)
    y: Math.round((parent.height - height) / 2)
    padding: 16

    contentItem: Column {
        spacing: 12

        Accessible.role: Accessible.Dialog
        Accessible.name: picker.row ? picker.row.row.title : ""

        Text {
            width: wheels.width
            text: picker.row ? picker.row.row.title : ""
            textFormat: Text.PlainText
            color: Theme.label
            font: Theme.titleFont
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }

        Row {
            id: wheels

            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 4

            TimeWheel {
                id: hours

                name: qsTranslate("Guide", "Hours")
                model: 24
                onAccepted: picker.done()
                KeyNavigation.right: minutes
                KeyNavigation.tab: minutes
            }

            Text {
                anchors.verticalCenter: parent.verticalCenter
                text: ":"
                color: Theme.label
                font: Theme.timeFont
            }

            TimeWheel {
                id: minutes

                name: qsTranslate("Guide", "Minutes")
                model: 60
                onAccepted: picker.done()
                KeyNavigation.left: hours
                KeyNavigation.tab: accept
            }
        }

        TextButton {
            id: accept

            width: parent.width
            primary: true
            text: qsTranslate("Guide", "OK")
            onClicked: picker.done()
        }
    }
}
