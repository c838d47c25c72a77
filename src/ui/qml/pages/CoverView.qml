import QtQuick
import Quellin

// A screen over the whole window.
FocusScope {
    id: cover

    required property Shell shell
    // Whether nothing behind it can be seen.
    readonly property bool opaque: visible && content.opacity === 1

    visible: shell.cover !== null
    onVisibleChanged: if (visible)
        forceActiveFocus()
    onEnabledChanged: if (enabled && visible)
        forceActiveFocus()

    // Nothing below receives events.
    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        onWheel: {}
    }

    Loader {
        id: content

        readonly property Page page: cover.shell.cover

        function load() {
            if (page)
                setSource(page.source, { "page": page, "focus": true })
            else
                source = ""
        }

        anchors.fill: parent
        focus: true
        onPageChanged: load()
        Component.onCompleted: load()

        opacity: status === Loader.Ready ? 1 : 0
        Behavior on opacity {
            enabled: Theme.moves
            NumberAnimation { duration: Theme.motion; easing.type: Easing.OutCubic }
        }
    }
}
