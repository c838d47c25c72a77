#pragma once

#include "sources/HTTPUserAgent.h"
#include "sources/PageFetcher.h"

#include <QByteArray>
#include <QUrl>

#include <chrono>
#include <functional>
#include <optional>

namespace guide {

/// Fetches the page of a URL as UTF-8; nothing when that fails. May block.
using PageSource = std::function<std::optional<QByteArray>(const QUrl& url)>;

/// Fetches from the network, without a user waiting. Both arguments must outlive the source.
PageSource networkPageSource(const PageFetcher& fetcher, const HTTPUserAgent& userAgent,
                             std::chrono::milliseconds timeout);

} // namespace guide
