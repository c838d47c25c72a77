import QtQuick
import Quellin

// The alert, which blocks everything else: a sheet from below on a narrow window, a card in the middle otherwise.
FocusScope {
    id: alert

    required property Shell shell

    readonly property bool narrow: width < 600

    visible: shell.alertShown
    onVisibleChanged: if (visible)
        panel.forceActiveFocus()
    z: 10

    Keys.onEscapePressed: shell.escapeAlert()
    Keys.onTabPressed: event => event.accepted = false

    Rectangle {
        anchors.fill: parent
        color: Theme.dim

        // Keeps presses from what is behind the alert.
        MouseArea {
            anchors.fill: parent
            hoverEnabled: true
            onWheel: wheel => wheel.accepted = true
        }
    }

    Rectangle {
        id: panel

        width: alert.narrow ? parent.width : Math.min(parent.width - 64, 420)
        height: Math.min(parent.height - 32, content.implicitHeight + 40)
        x: (parent.width - width) / 2
        y: alert.narrow ? parent.height - height + radius : (parent.height - height) / 2
        radius: 20
        color: Theme.raised
        focus: true

        Accessible.role: Accessible.AlertMessage
        Accessible.name: alert.shell.alertTitle + ". " + alert.shell.alertMessage

        Flickable {
            anchors {
                fill: parent
                margins: 20
                bottomMargin: alert.narrow ? 20 + panel.radius / 2 : 20
            }
            contentHeight: content.implicitHeight
            boundsBehavior: Flickable.StopAtBounds
            clip: contentHeight > height

            Column {
                id: content

                width: parent.width
                spacing: 12

                Text {
                    width: parent.width
                    text: alert.shell.alertTitle
                    textFormat: Text.PlainText
                    color: Theme.label
                    font: Theme.titleFont
                    wrapMode: Text.Wrap
                }

                Text {
                    width: parent.width
                    visible: text !== ""
                    text: alert.shell.alertMessage
                    textFormat: Text.PlainText
                    color: Theme.secondaryLabel
                    font: Theme.bodyFont
                    wrapMode: Text.Wrap
                    lineHeight: 1.15
                }

                Flow {
                    width: parent.width
                    spacing: 4
                    layoutDirection: Qt.RightToLeft

                    Repeater {
                        model: alert.shell.alertActions

                        TextButton {
                            required property int index
                            required property alertAction modelData

                            width: Math.min(implicitWidth, parent.width)
                            text: modelData.title
                            color: modelData.destructive ? Theme.alarm : Theme.tint
                            onClicked: alert.shell.answerAlert(index)
                        }
                    }
                }
            }
        }
    }
}
