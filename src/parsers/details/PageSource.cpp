#include "parsers/details/PageSource.h"

namespace guide {

PageSource networkPageSource(const PageFetcher& fetcher, const HTTPUserAgent& userAgent,
                             std::chrono::milliseconds timeout) {
    return [&fetcher, &userAgent, timeout](const QUrl& url) {
        return fetcher.netPageForRequest(pageRequest(url, userAgent, timeout), false).page;
    };
}

} // namespace guide
