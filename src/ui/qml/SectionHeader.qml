import QtQuick
import Quellin

// The day above its shows; it stays at the top while they pass.
Rectangle {
    id: header

    required property string section

    implicitHeight: Math.max(36, label.implicitHeight + 12)
    color: Qt.alpha(Theme.groupedBackground, 0.96)

    Accessible.role: Accessible.Heading
    Accessible.name: section

    Text {
        id: label

        anchors {
            fill: parent
            leftMargin: 16
            rightMargin: 16
        }
        verticalAlignment: Text.AlignVCenter
        text: header.section
        textFormat: Text.PlainText
        color: Theme.heading
        font: Theme.headingFont
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 15
        elide: Text.ElideRight
    }
}
