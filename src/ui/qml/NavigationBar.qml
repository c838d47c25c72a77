import QtQuick
import Quellin

// The title of a screen, the way back, and its buttons.
Item {
    id: bar

    required property Page page
    // Whether rows have gone below the bar.
    property bool scrolled: false

    implicitHeight: Math.max(60, title.implicitHeight + 24)
    z: 1

    Rectangle {
        anchors.fill: parent
        color: Theme.background
    }

    IconButton {
        id: back

        anchors {
            left: parent.left
            leftMargin: 4
            verticalCenter: parent.verticalCenter
        }
        visible: bar.page.canGoBack
        symbol: Glyph.Back
        text: bar.page.backTitle
        onClicked: bar.page.goBack()
    }

    Text {
        id: title

        anchors {
            left: back.visible ? back.right : parent.left
            leftMargin: back.visible ? 4 : 16
            right: buttons.left
            rightMargin: 8
            verticalCenter: parent.verticalCenter
        }
        text: bar.page.title
        textFormat: Text.PlainText
        color: Theme.label
        font: Theme.barTitleFont
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 22
        elide: Text.ElideRight

        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    Row {
        id: buttons

        layoutDirection: Qt.RightToLeft
        anchors {
            right: parent.right
            rightMargin: 4
            verticalCenter: parent.verticalCenter
        }

        Repeater {
            model: bar.page.buttons

            BarButton {
                required property int index
                required property var modelData

                kind: modelData.kind
                text: modelData.title
                onClicked: bar.page.press(index)
            }
        }
    }

    Rectangle {
        width: parent.width
        height: 1
        anchors.bottom: parent.bottom
        color: Theme.separator
        visible: bar.scrolled
    }
}
