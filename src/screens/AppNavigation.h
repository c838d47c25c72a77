#pragma once

#include <QUrl>

namespace guide {

/// What screens open outside themselves. Main queue.
class AppNavigation {
  public:
    virtual ~AppNavigation() = default;
    /// Opens a live stream.
    virtual void playURL(const QUrl& url) = 0;
};

} // namespace guide
