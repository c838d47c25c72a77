import QtQuick
import QtQuick.Templates as T
import Quellin

// One tab: a symbol above its title, with a badge. Screen readers get the role of the control's type: Accessible.role has no
// effect on a control.
T.TabButton {
    id: button

    required property int symbol
    required property string badge
    required property bool current
    required property bool available

    // Of the symbol, which grows with the title where there is room.
    readonly property double scaling: Math.max(1, Math.min(1.5, font.pixelSize / 11, (width - 8) / 56))

    focusPolicy: Qt.TabFocus
    opacity: available ? 1 : 0.38
    enabled: available
    topPadding: 8
    bottomPadding: 8
    implicitHeight: implicitContentHeight + topPadding + bottomPadding

    Accessible.onPressAction: if (enabled)
        clicked()
    Accessible.name: badge === "" ? text : text + ", " + badge
    Accessible.selected: current

    background: Item {
        Rectangle {
            anchors.fill: parent
            anchors.margins: 2
            radius: 12
            color: "transparent"
            border.width: button.visualFocus ? 2 : 0
            border.color: Theme.tint
        }
    }

    contentItem: Item {
        implicitHeight: content.implicitHeight

        Column {
            id: content

            width: parent.width
            anchors.top: parent.top
            spacing: 4

            Rectangle {
                width: Math.round(56 * button.scaling)
                height: Math.round(30 * button.scaling)
                radius: height / 2
                anchors.horizontalCenter: parent.horizontalCenter
                color: button.pressed ? Theme.pressed : button.current ? Theme.tintedFill : "transparent"

                Glyph {
                    anchors.centerIn: parent
                    width: Math.round(24 * button.scaling)
                    height: width
                    symbol: button.symbol
                    color: label.color
                }

                Rectangle {
                    anchors {
                        left: parent.horizontalCenter
                        leftMargin: Math.round(5 * button.scaling)
                        top: parent.top
                        topMargin: 1
                    }
                    width: Math.max(height, count.implicitWidth + 8)
                    height: count.implicitHeight + 1
                    radius: height / 2
                    visible: button.badge !== ""
                    color: Theme.alarm

                    Text {
                        id: count

                        anchors.centerIn: parent
                        text: button.badge
                        textFormat: Text.PlainText
                        color: Theme.onAlarm
                        font: button.font
                    }
                }
            }

            Text {
                id: label

                width: parent.width
                text: button.text
                textFormat: Text.PlainText
                color: button.current ? Theme.tint : Theme.secondaryLabel
                font: button.font
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.WordWrap
                maximumLineCount: 2
                elide: Text.ElideRight
                lineHeight: 0.95
            }
        }
    }
}
