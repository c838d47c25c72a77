import QtQuick
import QtQuick.Templates as T
import Quellin

// The alert that wants an answer first.
FocusScope {
    id: alert

    required property Shell shell

    visible: shell.alertShown
    onVisibleChanged: if (visible)
        panel.forceActiveFocus()
    z: 10

    Keys.onEscapePressed: shell.escapeAlert()
    Keys.onTabPressed: event => event.accepted = false

    Rectangle {
        anchors.fill: parent
        color: Theme.dim

        // Nothing behind the alert answers.
        MouseArea {
            anchors.fill: parent
            hoverEnabled: true
            onWheel: wheel => wheel.accepted = true
        }
    }

    Rectangle {
        id: panel

        anchors.centerIn: parent
        width: Math.min(parent.width - 64, 360)
        height: content.implicitHeight + 40
        radius: 20
        color: Theme.dark ? Theme.groupedBackground : Theme.background
        focus: true

        Accessible.role: Accessible.AlertMessage
        Accessible.name: alert.shell.alertTitle + ". " + alert.shell.alertMessage

        Column {
            id: content

            anchors {
                left: parent.left
                right: parent.right
                top: parent.top
                margins: 20
            }
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

            Row {
                anchors.right: parent.right
                spacing: 4

                Repeater {
                    model: alert.shell.alertActions

                    T.AbstractButton {
                        id: action

                        required property int index
                        required property var modelData

                        readonly property bool destructive: modelData.style === Shell.DestructiveAction

                        implicitWidth: Math.max(64, label.implicitWidth + 32)
                        implicitHeight: Math.max(44, label.implicitHeight + 16)
                        text: modelData.title
                        onClicked: alert.shell.answerAlert(index)
                        Keys.onReturnPressed: alert.shell.answerAlert(index)
                        Keys.onEnterPressed: alert.shell.answerAlert(index)

                        Accessible.name: text

                        background: Rectangle {
                            radius: height / 2
                            color: action.pressed ? Theme.pressed : "transparent"
                            border.width: action.visualFocus ? 2 : 0
                            border.color: Theme.tint
                        }

                        contentItem: Text {
                            id: label

                            text: action.text
                            textFormat: Text.PlainText
                            color: action.destructive ? Theme.alarm : Theme.tint
                            font: Theme.buttonFont
                            horizontalAlignment: Text.AlignHCenter
                            verticalAlignment: Text.AlignVCenter
                        }
                    }
                }
            }
        }
    }
}
