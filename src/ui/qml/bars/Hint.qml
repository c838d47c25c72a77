import QtQuick
import QtQuick.Templates as T
import Quellin

// The name of a button that shows only a symbol, while the pointer rests on it. Made when the pointer enters the button.
T.ToolTip {
    id: hint

    required property T.AbstractButton owner
    property bool rested: false

    parent: owner
    text: owner.text
    visible: rested && !owner.pressed && text !== ""
    x: Math.max(0, (parent.width - width) / 2)
    y: parent.height + 4
    margins: 4
    padding: 8
    delay: 0
    timeout: 6000
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent | T.Popup.CloseOnReleaseOutsideParent

    // Not the delay of the popup, which opens without asking whether the page has left the window meanwhile.
    Timer {
        interval: 600
        running: true
        onTriggered: hint.rested = hint.owner.Window.window !== null
    }

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
