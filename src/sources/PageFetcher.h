#pragma once

#include "platform/http/HTTPClient.h"
#include "sources/HTTPUserAgent.h"
#include "sources/NetworkActivity.h"

#include <QByteArray>
#include <QUrl>

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>

namespace guide {

/// Why there is no page.
enum class PageReason {
    /// There is a page.
    None,
    /// The transfer ended in an error, without a usable body.
    Transfer,
    /// The program is shutting down.
    Cancelled,
    /// The server answered with a status outside 200 to 299.
    Status,
    /// The server answered successfully with an empty body.
    Empty,
    /// The body could not be unpacked.
    Compression,
    /// The body is not valid text in its declared encoding.
    Encoding,
};

struct NetPage {
    /// The page as valid UTF-8, which may be empty; nothing when there is none.
    std::optional<QByteArray> page;
    /// The status of the last answer; 0 when there was none.
    int status = 0;
    PageReason reason = PageReason::None;
    /// The page is the beginning of one that was cut off or damaged.
    bool incomplete = false;
};

/// The request for a schedule page, as every caller of the fetcher makes it.
HTTPRequest pageRequest(const QUrl& url, const HTTPUserAgent& userAgent,
                        std::chrono::milliseconds timeout = std::chrono::seconds(20));

/// What the fetcher works with; all of it must outlive the fetcher.
struct PageFetcherEnvironment {
    HTTPClient& client;
    NetworkActivity& networkActivity;
    /// In bytes; limits the unpacked size of a page.
    std::uint64_t physicalMemory = 0;
    /// Waits between two attempts. Returns false immediately when the program is shutting down.
    std::function<bool(std::chrono::milliseconds)> wait;
    /// Called on the fetching thread for each transfer that failed without a body. May be empty.
    std::function<void(const TransferError&)> noRemoteHostAlert;
};

/// Fetches one page at a time as text. Stateless; any thread.
class PageFetcher {
  public:
    explicit PageFetcher(PageFetcherEnvironment environment);

    /// Blocks until the page arrives or two attempts have failed; must not be called on the main thread.
    /// Follows one redirect, in place of the second attempt.
    NetPage netPageForRequest(HTTPRequest request, bool userIsWaitingFor) const;

    /// Removes the cached answer, so that the next request asks the server.
    void forget(const HTTPRequest& request) const { m_environment.client.removeCachedResponse(request); }

  private:
    PageFetcherEnvironment m_environment;
};

} // namespace guide
