import QtQuick
import Quellin

// A section's heading.
Rectangle {
    id: header

    required property string text
    property double sideMargin: 16

    implicitHeight: Math.max(36, label.implicitHeight + 12)
    color: Qt.alpha(Theme.groupedBackground, 0.96)

    Accessible.role: Accessible.Heading
    Accessible.name: text

    Text {
        id: label

        // Its own height: one that follows the header's would lay the text out a second time.
        anchors {
            left: parent.left
            right: parent.right
            verticalCenter: parent.verticalCenter
            leftMargin: header.sideMargin
            rightMargin: header.sideMargin
        }
        text: header.text
        textFormat: Text.PlainText
        color: Theme.heading
        font: Theme.headingFont
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 14
        elide: Text.ElideRight
    }
}
