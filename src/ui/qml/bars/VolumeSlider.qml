import QtQuick
import QtQuick.Templates as T
import Quellin

// A slider from silent to full volume, on black.
T.Slider {
    id: slider

    implicitWidth: 120
    implicitHeight: 44
    focusPolicy: Qt.TabFocus
    stepSize: 0.05
    snapMode: T.Slider.NoSnap

    Accessible.name: qsTranslate("Guide", "Volume")

    background: Rectangle {
        x: slider.leftPadding
        y: (slider.height - height) / 2
        width: slider.availableWidth
        height: 4
        radius: 2
        color: Qt.rgba(1, 1, 1, 0.35)

        Rectangle {
            width: slider.visualPosition * parent.width
            height: parent.height
            radius: 2
            color: "white"
        }
    }

    handle: Rectangle {
        x: slider.leftPadding + slider.visualPosition * (slider.availableWidth - width)
        y: (slider.height - height) / 2
        width: 16
        height: 16
        radius: 8
        color: "white"

        Rectangle {
            anchors.centerIn: parent
            width: parent.width + 8
            height: width
            radius: width / 2
            color: "transparent"
            border.width: slider.visualFocus ? 2 : 0
            border.color: "white"
        }
    }
}
