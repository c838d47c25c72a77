import QtQuick
import Quellin

// One row of a table, of whatever kind.
Loader {
    id: cell

    required property Page page
    required property double timeColumn
    required property int bandRadius

    required property int index
    required property int kind
    required property string title
    required property int titleColor
    required property string mark
    required property string startTime
    required property int startTimeColor
    required property string endTime
    required property string details
    required property bool allDetails
    required property var icon
    required property var picture
    required property bool hasPicture
    required property double progress
    required property int accessory
    required property string accessoryName
    required property bool selectable
    required property bool selected
    required property bool lastInSection
    required property string spoken
    required property int revision

    readonly property bool focused: ListView.isCurrentItem && ListView.view.activeFocus

    sourceComponent: kind === TableModel.ChannelKind ? channelRow : showRow

    Component.onCompleted: page.rows.shown(index)
    onRevisionChanged: page.rows.shown(index)

    Component {
        id: channelRow

        ChannelRow {
            radius: cell.bandRadius
            title: cell.title
            titleColor: Theme.roles[cell.titleColor]
            details: cell.details
            icon: cell.icon
            accessory: cell.accessory
            accessoryName: cell.accessoryName
            enabled: cell.selectable || cell.accessory === TableModel.PlayAccessory
            selectable: cell.selectable
            selected: cell.selected
            focused: cell.focused
            spoken: cell.spoken
            onTapped: cell.page.rows.tap(cell.index)
            onAccessoryTapped: cell.page.rows.tapAccessory(cell.index)
        }
    }

    Component {
        id: showRow

        ShowRow {
            timeColumn: cell.timeColumn
            startTime: cell.startTime
            startTimeColor: Theme.roles[cell.startTimeColor]
            endTime: cell.endTime
            title: cell.title
            mark: cell.mark
            details: cell.details
            allDetails: cell.allDetails
            picture: cell.picture
            hasPicture: cell.hasPicture
            progress: cell.progress
            disclosure: cell.accessory === TableModel.DisclosureAccessory
            selectable: cell.selectable
            selected: cell.selected
            focused: cell.focused
            lastInSection: cell.lastInSection
            spoken: cell.spoken
            onTapped: cell.page.rows.tap(cell.index)
        }
    }
}
