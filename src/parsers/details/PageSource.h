#pragma once

#include "sources/HTTPUserAgent.h"
#include "sources/PageFetcher.h"

#include <QByteArray>
#include <QUrl>

#include <chrono>
#include <functional>
#include <optional>

namespace guide {

/// Where the pages behind links come from: the page of a URL as UTF-8, or nothing when it does not come. May
/// block.
using PageSource = std::function<std::optional<QByteArray>(const QUrl& url)>;

/// Pages of the network; both arguments outlive the source. Nobody waits for its pages.
PageSource networkPageSource(const PageFetcher& fetcher, const HTTPUserAgent& userAgent,
                             std::chrono::milliseconds timeout);

} // namespace guide
