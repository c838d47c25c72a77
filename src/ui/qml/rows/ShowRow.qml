import QtQuick
import Quellin

// One show: channel icon, times, title with its marks, details, and progress.
TableRow {
    id: cell

    readonly property double timeColumn: list ? rows.timeColumn : 0
    readonly property bool hasIcon: row.channelIcon.toString() !== ""
    readonly property bool hasPicture: row.picture.toString() !== ""
    // The name is drawn where the channel has no icon.
    readonly property bool hasName: !hasIcon && row.channelName !== ""
    readonly property double iconEnd: sideMargin + (hasIcon || hasName ? 62 : 0)
    readonly property bool hasLead: row.alarmLead !== ""
    readonly property double textRight: surfaceWidth - edge.width - (hasLead ? lead.width + 8 : 0) - (hasPicture ? 76 : 0) - sideMargin
    // Where the times would leave the title too little room, as with large text, they go above it, and the name above
    // them.
    readonly property bool stacked: textRight - iconEnd - timeColumn - 12 < 150 * Theme.textScale
    readonly property bool nameAbove: hasName && stacked
    readonly property double textStart: nameAbove ? sideMargin : iconEnd
    readonly property double textTop: nameAbove ? nameLoader.y + nameLoader.height : 10
    readonly property double textLeft: textStart + (stacked || timeColumn === 0 ? 0 : timeColumn + 12)

    contentHeight: Math.max(56, cell.row.day === "" ? 0 : day.y + day.height + 10, hasName ? nameLoader.y + nameLoader.height + 10 : 0, progress.y + progress.height + 10, hasPicture ? 60 : 0)
    separatorInset: textLeft

    Loader {
        x: cell.sideMargin
        y: 10
        active: cell.hasIcon
        sourceComponent: RowPicture {
            width: 50
            height: 36
            icon: cell.row.channelIcon
        }
    }

    Loader {
        id: nameLoader

        x: cell.sideMargin
        y: 10
        active: cell.hasName
        sourceComponent: Text {
            width: cell.nameAbove ? cell.surfaceWidth - 2 * cell.sideMargin : 50
            text: cell.row.channelName
            textFormat: Text.PlainText
            color: Theme.secondaryLabel
            font: Theme.endTimeFont
            wrapMode: Text.Wrap
            maximumLineCount: 3
            elide: Text.ElideRight
        }
    }

    Text {
        id: start

        x: cell.textStart
        y: cell.stacked ? cell.textTop : title.y + title.baselineOffset - baselineOffset
        text: cell.row.startTime
        textFormat: Text.PlainText
        color: Theme.roles[cell.row.timeColor]
        font: Theme.timeFont
    }

    Text {
        id: end

        x: start.x + start.width + 4
        anchors.baseline: start.baseline
        anchors.baselineOffset: -Math.round(6 * Theme.textScale)
        text: cell.row.endTime
        textFormat: Text.PlainText
        color: Theme.secondaryLabel
        font: Theme.endTimeFont
    }

    // Below the times, or behind them where they are above the title.
    Text {
        id: day

        x: cell.stacked ? end.x + end.width + 8 : cell.textStart
        y: cell.stacked ? start.y + start.baselineOffset - baselineOffset : start.y + start.height
        text: cell.row.day
        textFormat: Text.PlainText
        color: Theme.secondaryLabel
        font: Theme.endTimeFont
    }

    // Heights are bindings rather than a positioner's: a reused row must have its new height at once.
    Text {
        id: title

        x: cell.textLeft
        y: cell.stacked && cell.row.startTime !== "" ? cell.textTop + start.height : cell.textTop + 2
        width: cell.textRight - x - (marks.width > 0 ? marks.width + 6 : 0)
        text: cell.row.titleMarked ? cell.row.markedTitle(Theme.tint) : cell.row.title
        textFormat: cell.row.titleMarked ? Text.StyledText : Text.PlainText
        color: Theme.label
        font: Theme.titleFont
        wrapMode: Text.Wrap
        maximumLineCount: Theme.textScale > 1.5 ? 8 : 4
        elide: Text.ElideRight
    }

    // The marks follow the last word.
    Connections {
        enabled: marks.width > 0
        target: title

        function onLineLaidOut(line) {
            marks.lineEnd = line.implicitWidth
            marks.lineMiddle = line.y + line.height / 2
        }
    }

    ShowMarks {
        id: marks

        // Of the title's last line.
        property double lineEnd: 0
        property double lineMiddle: 0

        // The title may have been laid out before they appear.
        onWidthChanged: if (width > 0) Qt.callLater(title.forceLayout)

        x: title.x + Math.min(lineEnd, title.width) + 6
        y: title.y + lineMiddle - height / 2
        popular: cell.row.popular
        favourite: cell.row.favourite
        alarmed: cell.row.alarmed && !cell.hasLead
    }

    Text {
        id: details
        objectName: "excerpt"

        readonly property double used: text === "" ? 0 : implicitHeight

        x: cell.textLeft
        y: title.y + title.height + 2
        width: cell.textRight - x
        text: cell.row.detailsMarked ? cell.row.markedDetails(Theme.tint) : cell.row.details
        textFormat: cell.row.detailsMarked ? Text.StyledText : Text.PlainText
        color: Theme.secondaryLabel
        font: Theme.detailsFont
        wrapMode: Text.Wrap
        maximumLineCount: cell.row.allDetails ? 1000 : 2
        elide: Text.ElideRight
    }

    Loader {
        id: progress

        x: cell.textLeft
        y: details.y + details.used + 2
        width: cell.textRight - x
        height: active ? 10 : 0
        active: cell.row.progress >= 0
        sourceComponent: ProgressLine {
            value: cell.row.progress
            topPadding: 6
        }
    }

    Loader {
        x: cell.textRight + 12
        y: 12
        active: cell.hasPicture
        sourceComponent: RowPicture {
            width: 64
            height: 36
            radius: 6
            around: cell.shownColor
            source: cell.row.picture
            fillMode: Image.PreserveAspectCrop
        }
    }

    // How long before the show its alarm rings.
    Loader {
        id: lead

        x: cell.surfaceWidth - edge.width - cell.sideMargin - width
        y: start.y + (start.height - height) / 2
        width: item ? (item as Item).implicitWidth : 0
        height: item ? (item as Item).implicitHeight : 0
        active: cell.hasLead
        sourceComponent: Row {
            spacing: 4

            Glyph {
                width: Math.round(14 * Theme.textScale)
                height: width
                anchors.verticalCenter: leadText.verticalCenter
                symbol: Glyph.Bell
                color: Theme.alarm
            }

            Text {
                id: leadText

                text: cell.row.alarmLead
                textFormat: Text.PlainText
                color: Theme.alarm
                font: Theme.detailsFont
            }
        }
    }

    Accessory {
        id: edge

        x: parent.width - width - cell.sideMargin + 8
        width: implicitWidth
        height: parent.height
        kind: cell.row.accessory
        onTapped: cell.rows.tapAccessory(cell.index)
    }
}
