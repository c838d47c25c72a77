import QtQuick
import Quellin

// A picture across the row, or a square one in its middle.
TableRow {
    id: cell

    readonly property double side: Math.min(240, surfaceWidth - 2 * sideMargin)

    accessibleRole: Accessible.Graphic
    contentHeight: row.square ? side + 32 : Math.round(surfaceWidth * 9 / 16)
    separatorInset: -1

    // A square picture is a QR code, which needs a white background.
    Rectangle {
        anchors.centerIn: parent
        width: cell.side
        height: cell.side
        radius: 12
        visible: cell.row.square
        color: "white"
    }

    Rectangle {
        anchors.fill: parent
        visible: !cell.row.square
        color: Theme.groupedBackground
    }

    Glyph {
        anchors.centerIn: parent
        width: 48
        height: 48
        visible: picture.empty && !cell.row.square
        symbol: Glyph.Picture
        color: Theme.fieldBorder
    }

    RowPicture {
        id: picture

        anchors.centerIn: parent
        width: cell.row.square ? cell.side - 32 : parent.width
        height: cell.row.square ? cell.side - 32 : parent.height
        source: cell.row.picture
        fillMode: cell.row.square ? Image.PreserveAspectFit : Image.PreserveAspectCrop
        smooth: !cell.row.square
    }
}
