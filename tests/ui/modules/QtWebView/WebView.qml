import QtQuick

// A web view that loads nothing, with the interface of the system's.
Item {
    enum LoadStatus { LoadStartedStatus, LoadStoppedStatus, LoadSucceededStatus, LoadFailedStatus }

    property url url
    property string httpUserAgent
    property bool canGoBack: false
    property int stops: 0
    property int backs: 0

    signal loadingChanged(var loadRequest)

    function stop() { stops += 1 }
    function goBack() { backs += 1 }
    function follow(link) { loadingChanged({ "url": link, "status": WebView.LoadStartedStatus }) }
    function finish() { loadingChanged({ "url": url, "status": WebView.LoadSucceededStatus }) }
}
