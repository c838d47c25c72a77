import QtQuick
import Quellin

// One show: its times at the left edge, its title and details beside them, how far it is below.
RowSurface {
    id: row

    required property double timeColumn
    required property string startTime
    required property color startTimeColor
    required property string endTime
    required property string title
    required property string mark
    required property string details
    required property bool allDetails
    required property var picture
    required property bool hasPicture
    required property double progress
    required property bool disclosure
    required property bool lastInSection

    // With very large text the times stand above the title rather than beside it.
    readonly property bool stacked: timeColumn > width / 3
    readonly property double textLeft: stacked ? 16 : 16 + timeColumn + 12

    implicitHeight: Math.max(56, texts.y + texts.height + (lastInSection ? 20 : 14))

    Text {
        id: start

        anchors.left: parent.left
        anchors.leftMargin: 16
        y: row.stacked ? 12 : texts.y + titleText.baselineOffset - baselineOffset
        text: row.startTime
        textFormat: Text.PlainText
        color: row.startTimeColor
        font: Theme.timeFont
    }

    Text {
        anchors.left: start.right
        anchors.leftMargin: 4
        anchors.baseline: start.baseline
        anchors.baselineOffset: -Math.round(8.5 * Theme.textScale)
        text: row.endTime
        textFormat: Text.PlainText
        color: Theme.secondaryLabel
        font: Theme.raisedTimeFont
    }

    Column {
        id: texts

        x: row.textLeft
        y: row.stacked ? 12 + start.height : 14
        width: row.width - x - (row.hasPicture ? thumbnail.width + 12 : 0) - (row.disclosure ? 28 : 0) - 16
        spacing: 2

        Item {
            width: parent.width
            height: titleText.height
            readonly property double baselineOffset: titleText.baselineOffset

            Text {
                id: titleText

                width: parent.width - (heart.visible ? heart.width + 4 : 0)
                text: row.title
                textFormat: Text.PlainText
                color: Theme.label
                font: Theme.titleFont
                wrapMode: Text.Wrap
                maximumLineCount: row.allDetails ? 4 : 2
                elide: Text.ElideRight
            }

            // The mark stands behind the last word.
            Connections {
                enabled: row.mark !== ""
                target: titleText

                function onLineLaidOut(line) {
                    heart.x = Math.min(line.implicitWidth, titleText.width) + 4
                    heart.y = line.y
                }
            }

            Text {
                id: heart

                visible: text !== ""
                text: row.mark
                font: Theme.raisedTimeFont
            }
        }

        Text {
            width: parent.width
            visible: text !== ""
            text: row.details
            textFormat: Text.PlainText
            color: Theme.secondaryLabel
            font: Theme.detailsFont
            lineHeight: 1.1
            wrapMode: Text.Wrap
            maximumLineCount: row.allDetails ? 1000 : 2
            elide: Text.ElideRight
        }

        ProgressLine {
            width: parent.width
            visible: row.progress >= 0 && !row.hasPicture
            value: row.progress
            topPadding: 6
        }
    }

    Rectangle {
        id: thumbnail

        width: 72
        height: 72
        anchors {
            right: parent.right
            rightMargin: 16 + (row.disclosure ? 28 : 0)
            top: parent.top
            topMargin: 12
        }
        visible: row.hasPicture
        radius: 10
        color: "transparent"
        border.width: 1
        border.color: Theme.separator
        clip: true

        Picture {
            anchors.fill: parent
            anchors.margins: 1
            image: row.picture
        }

        ProgressLine {
            anchors {
                left: parent.left
                right: parent.right
                bottom: parent.bottom
                margins: 6
            }
            visible: row.progress >= 0
            value: row.progress
        }
    }

    Glyph {
        width: 18
        height: 18
        anchors {
            right: parent.right
            rightMargin: 16
            verticalCenter: parent.verticalCenter
        }
        visible: row.disclosure
        symbol: Glyph.Disclosure
        color: Theme.secondaryLabel
    }

    Rectangle {
        x: row.textLeft
        width: row.width - x
        height: 1
        anchors.bottom: parent.bottom
        color: Theme.separator
        visible: !row.lastInSection
    }
}
