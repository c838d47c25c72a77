#pragma once

#include <QUrl>

namespace guide {

/// Whether the URL is http or https and names a host; the guide requests nothing else.
inline bool isWebURL(const QUrl& url) {
    const QString scheme = url.scheme();
    return url.isValid() && !url.host().isEmpty() &&
           (scheme == QLatin1StringView("http") || scheme == QLatin1StringView("https"));
}

} // namespace guide
