#include "screens/web/WebViewController.h"

#include "screens/Localized.h"
#include "screens/kit/NavigationController.h"
#include "sources/WebURL.h"

#include <utility>

namespace guide {

WebViewController::WebViewController(const QUrl& url, const QString& title, Surroundings surroundings)
    : m_url(url)
    , m_surroundings(std::move(surroundings)) {
    setTitle(title);
}

WebViewController::~WebViewController() {
    setLoading(false);
}

bool WebViewController::allows(const QUrl& url) const {
    return isWebURL(url);
}

void WebViewController::setLoading(bool loading) {
    if (std::exchange(m_loading, loading) == loading) {
        return;
    }
    if (loading) {
        m_surroundings.networkActivity.startNetworkActivity();
    } else {
        m_surroundings.networkActivity.stopNetworkActivity();
    }
}

void WebViewController::loadingStarted() {
    setLoading(true);
    setProgress(Progress{});
}

void WebViewController::loadingEnded(bool canGoBack) {
    setLoading(false);
    setProgress(std::nullopt);
    if (!canGoBack) {
        setLeftBarButtons({});
        return;
    }
    setLeftBarButtons({{BarButton::Kind::Title, Localized::tr("Back"), [this] {
                            if (observer()) {
                                observer()->goBack();
                            }
                        }}});
}

void WebViewController::cannotDraw() {
    m_surroundings.openExternally(m_url);
    if (NavigationController* navigation = navigationController();
        navigation && navigation->topViewController().get() == this) {
        navigation->pop();
    }
}

} // namespace guide
