import QtQuick
import Quellin

// The whole window: the tabs at the bottom of a phone or at the side of a tablet, the screens of the selected one, and
// notices and alerts over them.
FocusScope {
    id: main

    required property Shell shell

    focus: true

    Rectangle {
        anchors.fill: parent
        color: Theme.background
    }

    FocusScope {
        id: content

        anchors.fill: parent
        focus: true
        // Nothing behind an alert receives events.
        enabled: !main.shell.alertShown
        onEnabledChanged: if (enabled)
            forceActiveFocus()

        Item {
            id: pages

            anchors {
                left: main.shell.tablet ? rail.right : parent.left
                right: parent.right
                top: parent.top
                bottom: main.shell.tablet ? parent.bottom : bar.top
            }

            Repeater {
                model: main.shell

                Loader {
                    id: tab

                    required property int index
                    required property PageStack stack
                    readonly property bool current: index === main.shell.selectedIndex

                    anchors.fill: parent
                    active: current || item !== null
                    visible: current
                    focus: current

                    sourceComponent: StackPages {
                        stack: tab.stack
                        sideBySide: main.width >= 1100
                        focus: true
                    }
                }
            }
        }

        TabBar {
            id: bar

            anchors {
                left: parent.left
                right: parent.right
                bottom: parent.bottom
            }
            visible: !main.shell.tablet
            shell: main.shell
        }

        TabRail {
            id: rail

            anchors {
                left: parent.left
                top: parent.top
                bottom: parent.bottom
            }
            visible: main.shell.tablet
            shell: main.shell
        }
    }

    NoticeBar {
        x: pages.x
        y: pages.y + pages.height - height
        width: pages.width
        shell: main.shell
    }

    AlertPanel {
        anchors.fill: parent
        shell: main.shell
    }
}
