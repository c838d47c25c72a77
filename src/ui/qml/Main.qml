import QtQuick
import Quellin

// The whole window: the tabs at the bottom of a phone or at the side of a tablet, the screens of the selected one, and
// notices and alerts over them.
FocusScope {
    id: main

    required property Shell shell

    readonly property StackPages screens: {
        const tab = tabs.count > shell.selectedIndex ? tabs.itemAt(shell.selectedIndex) as Loader : null
        return tab ? tab.item as StackPages : null
    }

    function perform(action, number) {
        switch (action) {
        case KeyTable.SelectTab:
            shell.tapTab(number)
            break
        case KeyTable.Find:
            find()
            break
        case KeyTable.Refresh:
            if (screens)
                screens.refresh()
            break
        case KeyTable.Back:
            if (screens)
                screens.goBack()
            break
        case KeyTable.ShowKeys:
            keysPanel.open()
            break
        case KeyTable.Quit:
            Window.window.close()
            break
        }
    }

    // In the screen's own search field, or else in that of the search tab.
    function find() {
        if (screens && screens.focusSearch())
            return
        shell.openSearch()
        if (screens)
            screens.focusSearch()
    }

    focus: true

    // Later, when the tab is visible.
    onScreensChanged: Qt.callLater(opened)

    function opened() {
        if (screens && !shell.touching)
            screens.tabOpened()
    }

    Repeater {
        model: KeyTable.windowKeys

        Item {
            id: shortcut

            required property windowKey modelData

            Shortcut {
                sequence: shortcut.modelData.sequence
                autoRepeat: false
                enabled: !main.shell.alertShown && !cover.visible
                         || shortcut.modelData.action === KeyTable.Quit
                onActivated: main.perform(shortcut.modelData.action, shortcut.modelData.number)
            }
        }
    }

    TapHandler {
        acceptedButtons: Qt.BackButton
        enabled: !cover.visible
        onTapped: main.perform(KeyTable.Back, 0)
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.background
    }

    DropArea {
        anchors.fill: parent
        onEntered: drag => drag.accepted = drag.hasUrls || drag.hasText
        onDropped: drop => {
            main.shell.drop(drop.urls, drop.text)
            drop.accept(Qt.CopyAction)
        }
    }

    FocusScope {
        id: content

        anchors.fill: parent
        focus: true
        // What is covered is neither drawn nor read aloud.
        visible: !cover.opaque
        // Nothing behind an alert receives events.
        enabled: !main.shell.alertShown && !cover.visible
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
                id: tabs

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
                        shell: main.shell
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

    CoverView {
        id: cover

        anchors.fill: parent
        shell: main.shell
        enabled: !main.shell.alertShown
    }

    NoticeBar {
        x: pages.x
        y: pages.y + pages.height - height
        width: pages.width
        shell: main.shell
        onKeyboardLeft: content.forceActiveFocus()
    }

    Loader {
        readonly property bool shown: main.shell.fileChooserShown

        onShownChanged: {
            if (shown)
                setSource(main.shell.fileChooserForFolders ? "panels/SystemFolderChooser.qml"
                                                           : "panels/SystemFileChooser.qml", { "shell": main.shell })
            else
                source = ""
        }
        onStatusChanged: if (status === Loader.Error)
            Qt.callLater(main.shell.cannotChooseFiles)
    }

    KeysPanel {
        id: keysPanel

        parent: content
    }

    AlertPanel {
        anchors.fill: parent
        shell: main.shell
    }
}
