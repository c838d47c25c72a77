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
    /// There is one.
    None,
    /// The transfer ended in an error, without a usable body.
    Transfer,
    /// The program is shutting down.
    Cancelled,
    /// The server answered with a status outside 200 to 299.
    Status,
    /// The server answered well, with nothing.
    Empty,
    /// The body could not be unpacked.
    Compression,
    /// The body is no text in the encoding that it is said to be in.
    Encoding,
};

struct NetPage {
    /// The page as valid UTF-8, which may be empty; nothing when there is none.
    std::optional<QByteArray> page;
    /// The status of the last answer; 0 when there was none.
    int status = 0;
    PageReason reason = PageReason::None;
};

/// The request of a schedule page, as every caller of the fetcher makes it.
HTTPRequest pageRequest(const QUrl& url, const HTTPUserAgent& userAgent,
                        std::chrono::milliseconds timeout = std::chrono::seconds(20));

/// What the fetcher works with; all of it outlives the fetcher.
struct PageFetcherEnvironment {
    HTTPClient& client;
    NetworkActivity& networkActivity;
    /// Bytes; bounds what a packed page may grow to.
    std::uint64_t physicalMemory = 0;
    /// Waits between two attempts; false, at once, when the program is shutting down.
    std::function<bool(std::chrono::milliseconds)> wait;
    /// Told, on the fetching thread, of each transfer that failed without any body. May be empty.
    std::function<void(const TransferError&)> noRemoteHostAlert;
};

/// Brings one page at a time down as text. Has no state of its own and may be used from several threads.
class PageFetcher {
  public:
    explicit PageFetcher(PageFetcherEnvironment environment);

    /// Blocks until the page is in or two attempts are spent; never to be called on the main thread. One
    /// redirect is followed, in the place of the second attempt.
    NetPage netPageForRequest(HTTPRequest request, bool userIsWaitingFor) const;

  private:
    PageFetcherEnvironment m_environment;
};

} // namespace guide
