import QtQuick
import QtQuick.Templates as T
import Quellin

// The search field below a screen's title; Escape empties it.
T.TextField {
    id: field

    required property Page page

    implicitHeight: Math.max(44, contentHeight + 20)
    leftPadding: sign.x + sign.width + 12
    rightPadding: 44
    color: Theme.label
    font: Theme.bodyFont
    selectionColor: Theme.tint
    selectedTextColor: Theme.onTint
    verticalAlignment: TextInput.AlignVCenter
    selectByMouse: true
    inputMethodHints: Qt.ImhNoPredictiveText

    // The user wants to go on with the rows.
    signal passedOn()

    function clear() {
        text = ""
        page.cancelSearch()
    }

    function enter(selecting) {
        forceActiveFocus(Qt.ShortcutFocusReason)
        if (selecting)
            selectAll()
        else
            cursorPosition = length
    }

    Component.onCompleted: text = page.searchText
    onTextEdited: page.search(text)
    onAccepted: passedOn()
    onEditingFinished: page.finishSearch()
    Keys.onDownPressed: passedOn()
    Keys.onEscapePressed: event => {
        event.accepted = text !== ""
        if (event.accepted)
            clear()
    }

    Accessible.role: Accessible.EditableText
    Accessible.name: page.searchPlaceholder
    Accessible.searchEdit: true

    // The screen sets the text.
    Connections {
        target: field.page

        function onSearchUpdated() {
            if (field.text !== field.page.searchText)
                field.text = field.page.searchText
        }
    }

    Text {
        x: field.leftPadding
        width: parent.width - field.leftPadding - 12
        height: parent.height
        visible: field.text === "" && field.preeditText === ""
        text: field.page.searchPlaceholder
        textFormat: Text.PlainText
        color: Theme.secondaryLabel
        font: Theme.bodyFont
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 13
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }

    Glyph {
        id: sign

        x: 12
        anchors.verticalCenter: parent.verticalCenter
        width: Math.round(20 * Theme.symbolScale)
        height: width
        symbol: Glyph.Search
        color: Theme.secondaryLabel
    }

    IconButton {
        anchors {
            right: parent.right
            verticalCenter: parent.verticalCenter
        }
        visible: field.text !== ""
        symbol: Glyph.Close
        color: Theme.secondaryLabel
        text: qsTranslate("Guide", "Clear")
        onClicked: field.clear()
    }

    background: Rectangle {
        radius: 12
        color: Theme.groupedBackground
        border.width: field.activeFocus ? 2 : 1
        border.color: field.activeFocus ? Theme.tint : Theme.fieldBorder
    }
}
