#pragma once

#include "screens/kit/Content.h"

#include <QString>
#include <QUrl>

namespace guide {

class WebPageObserver {
  public:
    virtual ~WebPageObserver() = default;
    /// The page before this one is wanted.
    virtual void goBack() = 0;
};

/// A page of the web. Main queue.
class WebPageContent : public Content {
  public:
    ContentKind kind() const final { return ContentKind::WebPage; }

    virtual const QUrl& url() const = 0;
    /// The value of the User-Agent header of its requests.
    virtual QString userAgent() const = 0;
    /// Whether the view may load this URL.
    virtual bool allows(const QUrl& url) const = 0;

    /// One observer at a time. It must outlive the content or be unregistered with nullptr.
    void setObserver(WebPageObserver* observer) { m_observer = observer; }

    // ---- reported by what draws the page

    virtual void loadingStarted() = 0;
    virtual void loadingEnded(bool canGoBack) = 0;
    /// Nothing on this device can draw it.
    virtual void cannotDraw() = 0;

  protected:
    WebPageObserver* observer() const { return m_observer; }

  private:
    WebPageObserver* m_observer = nullptr;
};

} // namespace guide
