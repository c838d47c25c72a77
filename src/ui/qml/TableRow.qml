import QtQuick
import Quellin

// One row of a table, of whatever kind. Pushed aside, it uncovers what can be done with it.
Item {
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

    // Whether the row stays aside; what it uncovers is asked for when it is pushed.
    property bool swiped: false
    property var actions: []
    readonly property double actionWidth: Math.round(72 * Math.min(Theme.textScale, 1.5))
    readonly property double aside: swiped ? -actions.length * actionWidth : 0

    function uncover() {
        actions = page.rows.swipeActions(index)
        swiped = actions.length > 0
        if (swiped)
            panel.forceActiveFocus(Qt.TabFocusReason)
    }

    function cover() {
        if (panel.activeFocus)
            ListView.view.forceActiveFocus()
        swiped = false
    }

    // What lies below a row that is back in its place must not be found there.
    function forgetActions() {
        if (content.x === 0 && !push.held && !swiped)
            actions = []
    }

    implicitHeight: content.height

    Component.onCompleted: page.rows.shown(index)
    onRevisionChanged: {
        cover()
        page.rows.shown(index)
    }

    Loader {
        id: panel

        anchors {
            top: parent.top
            bottom: parent.bottom
            right: parent.right
        }
        active: cell.actions.length > 0
        sourceComponent: SwipeActions {
            actions: cell.actions
            actionWidth: cell.actionWidth
            onGivenUp: cell.cover()
            onChosen: action => {
                cell.cover()
                cell.page.rows.performSwipeAction(action)
            }
        }
    }

    Loader {
        id: content

        x: push.held ? push.reached : cell.aside
        width: parent.width
        sourceComponent: cell.kind === TableModel.ChannelKind ? channelRow : showRow
        onXChanged: cell.forgetActions()

        Behavior on x {
            enabled: Theme.moves && !push.held
            NumberAnimation { duration: Theme.motion; easing.type: Easing.OutCubic }
        }
    }

    DragHandler {
        id: push

        property bool held: false
        property double begin: 0
        property double reached: 0

        target: null
        yAxis.enabled: false
        // A list that could take the finger over would do so at the first step up or down.
        grabPermissions: PointerHandler.CanTakeOverFromAnything
        onActiveChanged: {
            if (active) {
                if (!cell.swiped)
                    cell.actions = cell.page.rows.swipeActions(cell.index)
                begin = cell.aside
                reached = begin
                held = true
            } else {
                cell.swiped = reached < -cell.actions.length * cell.actionWidth / 2
                held = false
                cell.forgetActions()
            }
        }
        onActiveTranslationChanged: if (held)
            reached = Math.max(-cell.actions.length * cell.actionWidth, Math.min(0, begin + activeTranslation.x))
    }

    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: cell.uncover()
    }

    TapHandler {
        enabled: cell.swiped
        onTapped: cell.cover()
    }

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
            selectable: (cell.selectable || cell.accessory === TableModel.PlayAccessory) && !cell.swiped
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
            selectable: cell.selectable && !cell.swiped
            selected: cell.selected
            focused: cell.focused
            lastInSection: cell.lastInSection
            spoken: cell.spoken
            onTapped: cell.page.rows.tap(cell.index)
        }
    }
}
