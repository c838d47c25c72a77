#pragma once

#include "platform/http/HTTPClient.h"
#include "platform/http/ResponseCache.h"
#include "platform/linux/CurlTransfer.h"
#include "platform/linux/NetworkRoutes.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <vector>

namespace guide {

struct CurlHTTPClientOptions {
    /// In bytes, before and after content decoding. A longer body is an error.
    qint64 maximumBodySize = qint64{512} << 20;
    /// Redirects connections: "HOST:PORT:CONNECT-HOST:CONNECT-PORT"; an empty host or port matches any.
    std::vector<QByteArray> connectTo;
    /// Whether the device has a network. Called on the threads of transfers that could not connect.
    std::function<bool()> hasNetwork = guide::hasNetwork;
    /// A transfer below this many bytes a second for this time fails.
    long leastSpeed = 100;
    std::chrono::seconds leastSpeedTime{20};
};

/// Transfers with libcurl. Proxies come from the environment, certificates are checked against the system's
/// authorities, and connections are reused. GlobalLibraries and the cache must outlive the client.
class CurlHTTPClient final : public HTTPClient {
  public:
    explicit CurlHTTPClient(ResponseCache& cache, const CurlHTTPClientOptions& options = {});
    ~CurlHTTPClient() override;

    using HTTPClient::perform;
    TransferResult perform(const HTTPRequest& request, const TakePiece& takePiece) override;
    void removeCachedResponse(const HTTPRequest& request) override;
    void cancelAll() override;

  private:
    class BorrowedMulti;

    TransferResult transfer(const HTTPRequest& request, const TakePiece& takePiece);
    bool awaitNetwork(std::chrono::steady_clock::time_point until, const std::function<bool()>& stopped);

    ResponseCache& m_cache;
    CurlShare m_share;
    const CurlTransferSettings m_settings;
    const std::function<bool()> m_hasNetwork;
    std::atomic<bool> m_cancelled{false};

    std::mutex m_mutex;
    std::condition_variable m_cancelling;
    /// Each runs one transfer at a time and keeps its connections for the next one.
    std::vector<CurlMulti> m_idle;
    std::vector<CURLM*> m_running;
};

} // namespace guide
