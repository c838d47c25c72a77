#pragma once

#include "screens/kit/ViewController.h"
#include "screens/kit/WebPageContent.h"
#include "sources/NetworkActivity.h"

#include <QUrl>

#include <functional>

namespace guide {

/// Shows a page of the web. Only http and https URLs are loaded, also when the page itself leads elsewhere.
class WebViewController final : public ViewController, private WebPageContent {
  public:
    struct Surroundings {
        QString userAgent;
        NetworkActivity& networkActivity;
        /// Opens the URL in the user's browser.
        std::function<void(const QUrl& url)> openExternally;
    };

    WebViewController(const QUrl& url, const QString& title, Surroundings surroundings);
    ~WebViewController() override;

    WebPageContent& content() override { return *this; }

  private:
    const QUrl& url() const override { return m_url; }
    QString userAgent() const override { return m_surroundings.userAgent; }
    bool allows(const QUrl& url) const override;
    void loadingStarted() override;
    void loadingEnded(bool canGoBack) override;
    void cannotDraw() override;
    void setLoading(bool loading);

    const QUrl m_url;
    const Surroundings m_surroundings;
    bool m_loading = false;
};

} // namespace guide
