#pragma once

#include <QUrl>

namespace guide {

/// Whether the address names a host of the web: the only ones that the guide asks for anything.
inline bool isWebURL(const QUrl& url) {
    const QString scheme = url.scheme();
    return url.isValid() && !url.host().isEmpty() &&
           (scheme == QLatin1StringView("http") || scheme == QLatin1StringView("https"));
}

} // namespace guide
