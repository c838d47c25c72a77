import QtQuick
import Quellin

// A stream over the whole window. The controls appear on movement, on a tap and for the keyboard, and fade after a while.
ContentPage {
    id: screen

    readonly property PlayerModel player: page.player
    // Without something to look at, the controls stay; a screen reader finds only what is shown.
    readonly property bool busy: player.waiting || player.paused || slider.pressed || Theme.readAloud
    property bool controlsShown: true

    function wake() {
        controlsShown = true
        fade.restart()
    }

    onBusyChanged: wake()
    Component.onCompleted: wake()

    Timer {
        id: fade

        interval: 3000
        onTriggered: screen.controlsShown = screen.busy
    }

    Rectangle {
        anchors.fill: parent
        color: "black"
    }

    Loader {
        id: picture

        anchors.fill: parent
        Component.onCompleted: setSource("VideoPicture.qml", { "player": screen.player })
    }

    Text {
        anchors.centerIn: parent
        width: parent.width - 48
        visible: picture.status === Loader.Error
        text: qsTranslate("Guide", "Pictures cannot be drawn: the package %1 is missing.").arg("qml6-module-qtmultimedia")
        textFormat: Text.PlainText
        color: "white"
        font: Theme.bodyFont
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
    }

    Spinner {
        anchors.centerIn: parent
        width: 44
        height: 44
        visible: screen.player.waiting
        color: "white"
    }

    HoverHandler {
        onPointChanged: screen.wake()
        cursorShape: screen.controlsShown ? Qt.ArrowCursor : Qt.BlankCursor
    }

    TapHandler {
        acceptedButtons: Qt.LeftButton
        onSingleTapped: eventPoint => {
            // A finger has nothing to point with: it also takes the controls away.
            if (screen.controlsShown && eventPoint.device.type === PointerDevice.TouchScreen && !screen.busy)
                screen.controlsShown = false
            else
                screen.wake()
        }
        onDoubleTapped: screen.player.setFullScreen(!screen.player.fullScreen)
    }

    WheelHandler {
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        onWheel: event => {
            screen.player.setVolume(screen.player.volume + event.angleDelta.y / 2400)
            screen.wake()
        }
    }

    Item {
        id: controls

        anchors.fill: parent
        opacity: screen.controlsShown ? 1 : 0
        visible: opacity > 0

        Behavior on opacity {
            enabled: Theme.moves
            NumberAnimation { duration: Theme.motion }
        }

        Rectangle {
            width: parent.width
            height: top.height + 40
            gradient: Gradient {
                GradientStop { position: 0; color: Qt.rgba(0, 0, 0, 0.75) }
                GradientStop { position: 1; color: "transparent" }
            }
        }

        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: bottom.height + 56
            gradient: Gradient {
                GradientStop { position: 0; color: "transparent" }
                GradientStop { position: 1; color: Qt.rgba(0, 0, 0, 0.75) }
            }
        }

        Item {
            id: top

            width: parent.width
            height: Math.max(60, texts.implicitHeight + 24)

            IconButton {
                id: back

                x: 4
                anchors.verticalCenter: parent.verticalCenter
                symbol: Glyph.Back
                color: "white"
                text: qsTranslate("Guide", "Back")
                onClicked: screen.player.leave()
            }

            Image {
                id: icon

                anchors {
                    left: back.right
                    leftMargin: 8
                    verticalCenter: parent.verticalCenter
                }
                width: visible ? 50 : 0
                height: 36
                visible: source.toString() !== ""
                source: Theme.pictureChanges >= 0 ? Theme.currentPicture(screen.player.icon) : ""
                fillMode: Image.PreserveAspectFit
            }

            Column {
                id: texts

                anchors {
                    left: icon.right
                    leftMargin: 12
                    right: parent.right
                    rightMargin: 16
                    verticalCenter: parent.verticalCenter
                }
                spacing: 2

                Text {
                    width: parent.width
                    text: screen.player.title !== "" ? screen.player.title : screen.player.channel
                    textFormat: Text.PlainText
                    color: "white"
                    font: Theme.titleFont
                    wrapMode: Text.Wrap
                    maximumLineCount: Theme.textScale > 1.5 ? 4 : 2
                    elide: Text.ElideRight

                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                }

                Text {
                    width: parent.width
                    visible: screen.player.title !== ""
                    text: screen.player.channel + " · " + screen.player.times
                    textFormat: Text.PlainText
                    color: Qt.rgba(1, 1, 1, 0.8)
                    font: Theme.detailsFont
                    wrapMode: Text.Wrap

                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                }
            }
        }

        Column {
            id: bottom

            anchors {
                left: parent.left
                right: parent.right
                bottom: parent.bottom
                margins: 16
            }
            spacing: 8

            ProgressLine {
                width: parent.width
                visible: screen.player.progress >= 0
                value: screen.player.progress
                color: "white"
                trackColor: Qt.rgba(1, 1, 1, 0.3)

                Accessible.role: Accessible.ProgressBar
                Accessible.name: screen.player.title
            }

            Item {
                width: parent.width
                height: 44

                Row {
                    IconButton {
                        symbol: screen.player.paused ? Glyph.Play : Glyph.Pause
                        color: "white"
                        text: screen.player.paused ? qsTranslate("Guide", "Play") : qsTranslate("Guide", "Pause")
                        onClicked: screen.player.togglePaused()
                    }

                    IconButton {
                        visible: screen.player.hasOtherChannels
                        symbol: Glyph.Previous
                        color: "white"
                        text: qsTranslate("Guide", "Previous channel")
                        onClicked: screen.player.changeChannel(-1)
                    }

                    IconButton {
                        visible: screen.player.hasOtherChannels
                        symbol: Glyph.Next
                        color: "white"
                        text: qsTranslate("Guide", "Next channel")
                        onClicked: screen.player.changeChannel(1)
                    }
                }

                Row {
                    anchors.right: parent.right

                    IconButton {
                        symbol: screen.player.muted ? Glyph.NoSound : Glyph.Sound
                        color: "white"
                        text: screen.player.muted ? qsTranslate("Guide", "Sound on") : qsTranslate("Guide", "Sound off")
                        onClicked: screen.player.toggleMuted()
                    }

                    VolumeSlider {
                        id: slider

                        width: Math.min(120, screen.width - 5 * 44 - 40)
                        value: screen.player.muted ? 0 : screen.player.volume
                        onMoved: screen.player.setVolume(value)
                    }

                    IconButton {
                        symbol: screen.player.fullScreen ? Glyph.Window : Glyph.FullScreen
                        color: "white"
                        text: screen.player.fullScreen ? qsTranslate("Guide", "Leave full screen")
                                                       : qsTranslate("Guide", "Full screen")
                        onClicked: screen.player.setFullScreen(!screen.player.fullScreen)
                    }
                }
            }
        }
    }

    Keys.onPressed: event => {
        event.accepted = true
        switch (event.key) {
        case Qt.Key_Escape:
        case Qt.Key_Back:
            if (player.fullScreen && event.key === Qt.Key_Escape)
                player.setFullScreen(false)
            else
                player.leave()
            return
        case Qt.Key_F:
        case Qt.Key_F11:
            player.setFullScreen(!player.fullScreen)
            break
        case Qt.Key_Space:
        case Qt.Key_K:
        case Qt.Key_MediaTogglePlayPause:
        case Qt.Key_MediaPlay:
            player.togglePaused()
            break
        case Qt.Key_M:
        case Qt.Key_VolumeMute:
            player.toggleMuted()
            break
        case Qt.Key_Up:
        case Qt.Key_PageUp:
        case Qt.Key_ChannelUp:
        case Qt.Key_MediaPrevious:
            player.changeChannel(-1)
            break
        case Qt.Key_Down:
        case Qt.Key_PageDown:
        case Qt.Key_ChannelDown:
        case Qt.Key_MediaNext:
            player.changeChannel(1)
            break
        case Qt.Key_Left:
        case Qt.Key_Minus:
            player.setVolume(player.volume - 0.05)
            break
        case Qt.Key_Right:
        case Qt.Key_Plus:
            player.setVolume(player.volume + 0.05)
            break
        default:
            event.accepted = false
        }
        wake()
    }
}
