import QtQuick
import Quellin

// A screen's title between its buttons, the search field below it, and a thin progress bar.
Item {
    id: bar

    required property Page page
    // Whether rows have gone below the bar.
    property bool scrolled: false
    property bool canGoBack: page.canGoBack
    // Closes a popover or sheet.
    property bool closable: false

    signal searchEdited()
    // The keyboard moves from the search field into the rows.
    signal searchLeft()

    // Where the buttons do not fit beside each other, as with large text, those at the right go below the others.
    readonly property bool folded: leftButtons.width > 0 && leftButtons.width + rightButtons.width + 16 > width
    // The title gets a line to itself where the buttons leave it too little room.
    readonly property double between: width - titleLeft - 8 - rightButtons.width - 4
    readonly property double margin: width >= 600 ? 24 : 16
    readonly property double titleLeft: leftButtons.width > 0 ? leftButtons.width + 8 : margin
    readonly property bool titleBelow: title.implicitWidth > between
                                       && (between < width * 0.6 || Theme.textScale >= 1.5)
    readonly property double lineHeight: Math.max(60, titleBelow ? 0 : title.contentHeight + 24)
    readonly property double rowHeight: lineHeight + (folded ? 48 : 0)

    implicitHeight: rowHeight + (titleBelow ? title.contentHeight + 8 : 0) + (search.active ? search.height + 8 : 0)
    z: 1

    // The item of a bar button, in its place; null when there is none.
    function leftButton(index) {
        leftButtons.ensurePolished()
        return leftRepeater.itemAt(index)
    }

    function rightButton(index) {
        rightButtons.ensurePolished()
        return rightRepeater.itemAt(index)
    }

    // Whether there is a search field.
    function focusSearch(selecting) {
        const field = search.item as SearchBar
        if (field)
            field.enter(selecting)
        return field !== null
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.background
    }

    Row {
        id: leftButtons

        x: 4
        y: (bar.lineHeight - height) / 2
        width: implicitWidth

        IconButton {
            visible: bar.canGoBack
            symbol: Glyph.Back
            text: bar.page.backTitle !== "" ? bar.page.backTitle : qsTranslate("Guide", "Back")
            onClicked: bar.page.goBack()

            Accessible.name: bar.page.backTitle !== "" ? qsTranslate("Guide", "Back") + ", " + bar.page.backTitle : text
        }

        Repeater {
            id: leftRepeater

            model: bar.page.leftButtons

            BarButton {
                required property int index
                required property barButton modelData

                kind: modelData.kind
                text: modelData.title
                enabled: modelData.enabled && !busy
                onClicked: bar.page.pressLeft(index)
            }
        }
    }

    Text {
        id: title

        x: bar.titleBelow ? bar.margin : bar.titleLeft
        y: bar.titleBelow ? bar.rowHeight - 4 : (bar.rowHeight - contentHeight) / 2
        width: bar.titleBelow ? parent.width - 2 * bar.margin : bar.between
        text: bar.page.title
        textFormat: Text.PlainText
        color: Theme.label
        font: Theme.barTitleFont
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: Math.round(22 * Math.min(Theme.textScale, 1.25))
        wrapMode: Text.Wrap
        maximumLineCount: 5
        elide: Text.ElideRight

        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    Row {
        id: rightButtons

        layoutDirection: Qt.RightToLeft
        x: parent.width - width - 4
        y: (bar.lineHeight - height) / 2 + bar.rowHeight - bar.lineHeight
        width: implicitWidth

        IconButton {
            visible: bar.closable
            symbol: Glyph.Close
            text: qsTranslate("Guide", "Close")
            onClicked: bar.page.goBack()
        }

        Repeater {
            id: rightRepeater

            model: bar.page.rightButtons

            BarButton {
                required property int index
                required property barButton modelData

                kind: modelData.kind
                text: modelData.title
                enabled: modelData.enabled && !busy
                onClicked: bar.page.pressRight(index)
            }
        }
    }

    Loader {
        id: search

        x: bar.margin
        y: parent.height - height - 8
        width: parent.width - 2 * x
        active: bar.page.searchable
        sourceComponent: SearchBar {
            page: bar.page
            onTextEdited: bar.searchEdited()
            onPassedOn: bar.searchLeft()
        }
    }

    Rectangle {
        width: parent.width
        height: 1
        anchors.bottom: parent.bottom
        color: Theme.separator
        visible: bar.scrolled
    }

    Loader {
        width: parent.width
        anchors.bottom: parent.bottom
        active: bar.page.busy
        sourceComponent: ProgressLine {
            value: bar.page.progress
            color: Theme.tint

            Accessible.role: Accessible.ProgressBar
            Accessible.name: bar.page.title
        }
    }
}
