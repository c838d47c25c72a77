import QtQuick
import Quellin

// The explanation below a section's rows.
Item {
    id: footer

    required property string text
    property double sideMargin: 16

    implicitHeight: label.implicitHeight + 24

    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Text {
        id: label

        anchors {
            fill: parent
            leftMargin: footer.sideMargin
            rightMargin: footer.sideMargin
            topMargin: 8
            bottomMargin: 16
        }
        text: footer.text
        textFormat: Text.PlainText
        color: Theme.secondaryLabel
        font: Theme.detailsFont
        wrapMode: Text.Wrap
    }
}
