import QtQuick
import Quellin

// A page of the web, drawn by the web view of the system; without one it opens in the browser.
ContentPage {
    id: screen

    readonly property WebPageModel webPage: page.webPage

    Loader {
        anchors.fill: parent
        focus: true
        Component.onCompleted: setSource("SystemWebView.qml", { "webPage": screen.webPage })
        onStatusChanged: if (status === Loader.Error)
            Qt.callLater(screen.webPage.cannotDraw)
    }
}
