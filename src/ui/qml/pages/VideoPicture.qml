import QtQuick
import QtMultimedia
import Quellin

// The picture of a stream.
VideoOutput {
    id: picture

    required property PlayerModel player

    fillMode: VideoOutput.PreserveAspectFit
    Component.onCompleted: player.setVideoOutput(videoSink)
    Component.onDestruction: player.setVideoOutput(null)
    Accessible.ignored: true
}
