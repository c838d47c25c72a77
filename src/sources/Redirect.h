#pragma once

#include "platform/http/HTTPClient.h"

#include <QUrl>

#include <optional>

namespace guide {

/// Where the answer redirects to, of any scheme; nothing when it is no redirect.
inline std::optional<QUrl> redirectOf(const TransferResult& result, const QUrl& from) {
    constexpr int kNotModified = 304;
    const int status = result.response && !result.error ? result.response->statusCode : 0;
    if (status < 300 || status >= 400 || status == kNotModified) {
        return std::nullopt;
    }
    const std::optional<QByteArray> location = result.response->header("Location");
    return location ? std::optional(from.resolved(QUrl::fromEncoded(location->trimmed(), QUrl::TolerantMode)))
                    : std::nullopt;
}

} // namespace guide
