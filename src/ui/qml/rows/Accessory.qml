import QtQuick
import Quellin

// What a row has at its trailing edge.
Item {
    id: edge

    required property int kind

    signal tapped()

    implicitWidth: kind === Kit.Accessory.None ? 0 : kind === Kit.Accessory.Play ? 44 : Math.round(24 * Theme.symbolScale)
    implicitHeight: 44

    Glyph {
        anchors.centerIn: parent
        width: Math.round(18 * Theme.symbolScale)
        height: width
        visible: edge.kind === Kit.Accessory.Disclosure
        symbol: Glyph.Disclosure
        color: Theme.secondaryLabel
    }

    Loader {
        anchors.centerIn: parent
        active: edge.kind === Kit.Accessory.Spinner
        sourceComponent: Spinner {}
    }

    Loader {
        anchors.centerIn: parent
        active: edge.kind === Kit.Accessory.Play
        sourceComponent: IconButton {
            symbol: Glyph.Play
            text: qsTranslate("Guide", "Play")
            onClicked: edge.tapped()
        }
    }
}
