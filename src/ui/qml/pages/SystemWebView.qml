import QtQuick
import QtWebView
import Quellin

// The web view of the system, whose module may be missing.
WebView {
    id: view

    required property WebPageModel webPage

    function show(url) {
        if (webPage.allows(url))
            view.url = url
    }

    Component.onCompleted: {
        httpUserAgent = webPage.userAgent
        show(webPage.url)
    }
    onLoadingChanged: request => {
        if (request.status === WebView.LoadStartedStatus) {
            if (webPage.allows(request.url))
                webPage.loadingStarted()
            else
                stop()
        } else {
            webPage.loadingEnded(canGoBack)
        }
    }

    Connections {
        target: view.webPage

        function onBackWanted() { view.goBack() }
    }
}
