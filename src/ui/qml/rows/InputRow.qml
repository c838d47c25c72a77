import QtQuick
import QtQuick.Templates as T
import Quellin

// A field to type in, with its title above and the error below.
TableRow {
    id: cell

    readonly property bool wrong: row.error !== ""
    readonly property bool secret: row.kind === Kit.InputKind.Password
    // Whether a password can be read; not that of another row.
    property bool revealed: false
    // Of the text that the field has.
    property int revision: 0

    // Until the user goes elsewhere.
    readonly property bool focusWanted: row.focusOnOpening && list !== null && list.fieldWanted && list.currentIndex < 0

    activatable: false
    takesText: row.enabled
    accessibleRole: Accessible.Grouping
    contentHeight: fault.y + fault.height + 24
    separatorInset: -1

    function activate() {
        field.forceActiveFocus(Qt.TabFocusReason)
    }

    // Later, because the focus makes this row the current one.
    onFocusWantedChanged: if (focusWanted)
        Qt.callLater(field.forceActiveFocus)

    // An update does not replace what the user is typing, unless the screen has changed it.
    onRowChanged: {
        if (!field.activeFocus || revision !== row.revision)
            field.show(row.text)
        if (revision !== row.revision)
            revealed = false
        revision = row.revision
    }
    onSecretChanged: revealed = false
    ListView.onPooled: revealed = false

    Item {
        x: cell.sideMargin
        y: 12
        width: parent.width - 2 * x
        height: parent.height - 24
        opacity: cell.row.enabled ? 1 : 0.5

        Text {
            id: title

            readonly property double used: text === "" ? 0 : implicitHeight + 4

            width: parent.width
            text: cell.row.title
            textFormat: Text.PlainText
            color: Theme.secondaryLabel
            font: Theme.detailsFont
            wrapMode: Text.Wrap
        }

        T.TextField {
            id: field

            y: title.used
            width: parent.width
            height: Math.max(44, implicitHeight)
            implicitHeight: contentHeight + 20
            leftPadding: 12
            rightPadding: cell.secret ? 44 : 12
            enabled: cell.row.enabled
            text: ""
            color: Theme.label
            font: Theme.bodyFont
            selectionColor: Theme.tint
            selectedTextColor: Theme.onTint
            placeholderTextColor: Theme.secondaryLabel
            verticalAlignment: TextInput.AlignVCenter
            selectByMouse: true
            echoMode: cell.secret && !cell.revealed ? TextInput.Password : TextInput.Normal
            inputMethodHints: cell.row.kind === Kit.InputKind.URL ? Qt.ImhUrlCharactersOnly | Qt.ImhNoAutoUppercase
                              : cell.row.kind === Kit.InputKind.Number ? Qt.ImhDigitsOnly
                              : cell.secret ? Qt.ImhHiddenText | Qt.ImhSensitiveData | Qt.ImhNoAutoUppercase
                              : Qt.ImhNone
            validator: cell.row.kind === Kit.InputKind.Number ? digits : null

            // Of a long text, its beginning.
            function show(shown) {
                text = shown
                if (!activeFocus)
                    ensureVisible(0)
            }

            Component.onCompleted: {
                show(cell.row.text)
                cell.revision = cell.row.revision
            }
            onTextEdited: cell.rows.edit(cell.index, text, false)
            onAccepted: cell.rows.enter(cell.index, text)
            onActiveFocusChanged: {
                if (activeFocus)
                    cell.list.holdCurrent(cell)
                else
                    cell.rows.edit(cell.index, text, true)
            }
            Keys.onEscapePressed: {
                focus = false
                cell.list.forceActiveFocus()
            }

            Accessible.role: Accessible.EditableText
            Accessible.name: cell.row.accessibleName
            Accessible.passwordEdit: cell.secret && !cell.revealed

            RegularExpressionValidator {
                id: digits

                regularExpression: /[0-9]*/
            }

            Text {
                x: field.leftPadding
                width: parent.width - 2 * x
                height: parent.height
                visible: field.text === "" && field.preeditText === ""
                text: cell.row.placeholder
                textFormat: Text.PlainText
                color: Theme.secondaryLabel
                font: Theme.bodyFont
                fontSizeMode: Text.HorizontalFit
                minimumPixelSize: 13
                verticalAlignment: Text.AlignVCenter
                elide: Text.ElideRight
            }

            IconButton {
                anchors {
                    right: parent.right
                    verticalCenter: parent.verticalCenter
                }
                visible: cell.secret
                symbol: cell.revealed ? Glyph.EyeCrossed : Glyph.Eye
                color: Theme.secondaryLabel
                text: cell.revealed ? qsTranslate("Guide", "Hide the password") : qsTranslate("Guide", "Show the password")
                onClicked: cell.revealed = !cell.revealed
            }

            background: Rectangle {
                radius: 6
                color: Theme.groupedBackground
                border.width: field.activeFocus ? 2 : 1
                border.color: cell.wrong ? Theme.alarm : field.activeFocus ? Theme.tint : Theme.fieldBorder
            }
        }

        Item {
            id: fault

            y: field.y + field.height + (cell.wrong ? 4 : 0)
            width: parent.width
            height: cell.wrong ? faultText.implicitHeight : 0
            visible: cell.wrong

            Glyph {
                id: sign

                width: Math.round(16 * Theme.textScale)
                height: width
                symbol: Glyph.Warning
                color: Theme.alarm
            }

            Text {
                id: faultText

                x: sign.width + 6
                width: parent.width - x
                text: cell.row.error
                textFormat: Text.PlainText
                color: Theme.alarm
                font: Theme.detailsFont
                wrapMode: Text.Wrap
            }
        }
    }
}
