import QtQuick
import QtQuick.Templates as T
import Quellin

// The hours or the minutes of a time, as a wheel.
T.Tumbler {
    id: wheel

    required property string name

    signal accepted()

    width: Math.round(72 * Theme.textScale)
    height: Math.round(132 * Theme.textScale)
    visibleItemCount: 3
    wrap: true

    Accessible.role: Accessible.SpinBox
    Accessible.name: name + " " + currentIndex
    Accessible.onIncreaseAction: currentIndex = (currentIndex + 1) % count
    Accessible.onDecreaseAction: currentIndex = (currentIndex + count - 1) % count

    Keys.onReturnPressed: accepted()
    Keys.onEnterPressed: accepted()

    background: Item {
        Rectangle {
            anchors.centerIn: parent
            width: parent.width
            height: Math.round(parent.height / 3)
            radius: 8
            color: Theme.tintedFill
            border.width: wheel.activeFocus ? 2 : 0
            border.color: Theme.tint
        }
    }

    contentItem: PathView {
        model: wheel.model
        delegate: wheel.delegate
        clip: true
        pathItemCount: wheel.visibleItemCount + 1
        preferredHighlightBegin: 0.5
        preferredHighlightEnd: 0.5
        dragMargin: width / 2
        highlightMoveDuration: Theme.rowMotion
        path: Path {
            startX: wheel.width / 2
            startY: -Math.round(wheel.height / 6)
            PathLine {
                x: wheel.width / 2
                y: wheel.height + Math.round(wheel.height / 6)
            }
        }
    }

    delegate: Component {
        Text {
            required property int index

            readonly property double off: Math.abs(T.Tumbler.displacement)

            width: wheel.width
            height: Math.round(wheel.height / 3)
            text: index < 10 ? "0" + index : index
            color: off < 0.5 ? Theme.label : Theme.secondaryLabel
            font: Theme.timeFont
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
        }
    }
}
