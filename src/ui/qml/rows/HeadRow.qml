import QtQuick
import Quellin

// The head of a show's page: picture, title, facts, and progress. Beside an aside, which has the picture, only the
// texts.
TableRow {
    id: cell

    readonly property bool hasPicture: row.picture.toString() !== "" && !besideAside
    readonly property bool hasIcon: row.channelIcon.toString() !== ""
    readonly property bool besideAside: list !== null && list.besideAside
    readonly property double textRight: surfaceWidth - sideMargin - (row.selectable ? edge.width : 0)

    contentHeight: progress.y + progress.height + 12
    separatorInset: -1

    Loader {
        id: picture

        width: cell.surfaceWidth
        height: active ? Math.round(width * 9 / 16) : 0
        active: cell.hasPicture
        sourceComponent: HeadPicture {
            source: cell.row.picture
            whole: cell.row.wholePicture
        }
    }

    Text {
        id: title

        x: cell.sideMargin
        y: picture.height + 12
        width: cell.textRight - x
        text: cell.row.title
        textFormat: Text.PlainText
        color: Theme.label
        font: Theme.barTitleFont
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }

    Accessory {
        id: edge

        x: parent.width - width - cell.sideMargin + 8
        y: title.y
        visible: cell.row.selectable
        height: title.height
        kind: Kit.Accessory.Disclosure
    }

    RowPicture {
        id: icon

        x: cell.sideMargin
        y: facts.y + (facts.firstLine - height) / 2
        width: 33
        height: 24
        visible: cell.hasIcon
        icon: cell.row.channelIcon
    }

    Text {
        id: facts

        readonly property double firstLine: implicitHeight / Math.max(1, lineCount)

        x: cell.sideMargin + (cell.hasIcon ? icon.width + 8 : 0)
        y: title.y + title.height + 8
        width: parent.width - cell.sideMargin - x
        text: cell.row.facts
        textFormat: Text.PlainText
        color: Theme.secondaryLabel
        font: Theme.bodyFont
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }

    Text {
        id: status

        readonly property double used: text === "" ? 0 : implicitHeight + 6

        x: cell.sideMargin
        y: facts.y + facts.height + 6
        width: parent.width - 2 * x
        text: cell.row.status
        textFormat: Text.PlainText
        color: cell.row.running ? Theme.running : Theme.secondaryLabel
        font: Theme.headingFont
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }

    Loader {
        id: progress

        x: cell.sideMargin
        y: facts.y + facts.height + status.used
        width: parent.width - 2 * x
        height: active ? 10 : 0
        active: cell.row.progress >= 0
        sourceComponent: ProgressLine {
            value: cell.row.progress
            topPadding: 6
        }
    }
}
