import QtQuick
import QtQuick.Templates as T
import Quellin

// The name of a button that shows only a symbol, while the pointer rests on it.
T.ToolTip {
    id: hint

    x: Math.max(0, (parent.width - width) / 2)
    y: parent.height + 4
    margins: 4
    padding: 8
    delay: 600
    timeout: 6000
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent | T.Popup.CloseOnReleaseOutsideParent

    contentItem: Text {
        text: hint.text
        textFormat: Text.PlainText
        color: Theme.background
        font: Theme.detailsFont
    }

    background: Rectangle {
        radius: 6
        color: Theme.label
    }
}
