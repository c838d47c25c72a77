#include "platform/linux/CurlHTTPClient.h"

#include <algorithm>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t kIdleMultis = 6;
constexpr long kConnectionsPerMulti = 4;
constexpr std::chrono::milliseconds kLookForNetworkEvery{500};

TransferResult failed(const QString& description, bool cancelled = false) {
    TransferResult result;
    result.error = TransferError{description, {}, {}, cancelled};
    return result;
}

TransferResult cancelledTransfer() {
    return failed(u"the transfer was cancelled"_s, true);
}

// Whether the URL can be reached without a network.
bool isThisMachine(const QUrl& url) {
    const QString host = url.host();
    return host == "localhost"_L1 || host.startsWith("127."_L1) || host == "::1"_L1;
}

} // namespace

// Borrows a multi handle for one transfer and registers it for cancelAll. Null when the client is cancelled.
class CurlHTTPClient::BorrowedMulti {
  public:
    explicit BorrowedMulti(CurlHTTPClient& client)
        : m_client(client) {
        const std::lock_guard lock(client.m_mutex);
        if (client.m_cancelled.load()) {
            return;
        }
        // The most recently used handle is the most likely to have open connections.
        if (!client.m_idle.empty()) {
            m_multi = std::move(client.m_idle.back());
            client.m_idle.pop_back();
        } else {
            m_multi.reset(curl_multi_init());
            curl_multi_setopt(m_multi.get(), CURLMOPT_MAXCONNECTS, kConnectionsPerMulti);
        }
        client.m_running.push_back(m_multi.get());
    }
    BorrowedMulti(const BorrowedMulti&) = delete;
    BorrowedMulti& operator=(const BorrowedMulti&) = delete;
    ~BorrowedMulti() {
        const std::lock_guard lock(m_client.m_mutex);
        std::erase(m_client.m_running, m_multi.get());
        if (m_multi && m_client.m_idle.size() < kIdleMultis) {
            m_client.m_idle.push_back(std::move(m_multi));
        }
    }

    CURLM* handle() const { return m_multi.get(); }

  private:
    CurlHTTPClient& m_client;
    CurlMulti m_multi;
};

CurlHTTPClient::CurlHTTPClient(ResponseCache& cache, const CurlHTTPClientOptions& options)
    : m_cache(cache)
    , m_settings{m_share.handle(), options.maximumBodySize, options.leastSpeed, options.leastSpeedTime,
                 options.connectTo}
    , m_hasNetwork(options.hasNetwork) {}

CurlHTTPClient::~CurlHTTPClient() = default;

TransferResult CurlHTTPClient::perform(const HTTPRequest& request, const TakePiece& takePiece) {
    if (m_cancelled.load()) {
        return cancelledTransfer();
    }
    if (request.cachePolicy != CachePolicy::ReloadIgnoringCache) {
        if (std::optional<TransferResult> cached = m_cache.cachedResponse(request)) {
            if (takePiece) {
                const QByteArray body = std::exchange(cached->body, {});
                if (!body.isEmpty() && !takePiece(body)) {
                    cached->error = refusedPiece();
                }
            }
            return *std::move(cached);
        }
        if (request.cachePolicy == CachePolicy::ReturnCacheDataDontLoad) {
            return failed(u"the response is not in the cache"_s);
        }
    }
    if (const QString scheme = request.url.scheme(); scheme != "http"_L1 && scheme != "https"_L1) {
        return failed(u"only http and https are supported"_s);
    }
    TransferResult result = transfer(request, takePiece);
    if (!takePiece) {
        m_cache.store(request, result);
    } else if (result.response && isSuccess(result.response->statusCode)) {
        m_cache.remove(request);
    }
    return result;
}

TransferResult CurlHTTPClient::transfer(const HTTPRequest& request, const TakePiece& takePiece) {
    const BorrowedMulti multi(*this);
    if (multi.handle() == nullptr) {
        return failed(u"the transfer was cancelled"_s, m_cancelled.load());
    }
    const auto until = std::chrono::steady_clock::now() + request.resourceTimeout;
    HTTPRequest httpRequest = request;
    for (;;) {
        CurlTransfer transfer(httpRequest, takePiece, m_settings);
        TransferResult result = transfer.run(multi.handle(), m_cancelled);
        if (!request.waitsForConnectivity || !transfer.couldNotConnect() || isThisMachine(request.url) ||
            m_hasNetwork()) {
            return result;
        }
        if (!awaitNetwork(until, request.stopped)) {
            const bool cancelled = m_cancelled.load() || (request.stopped && request.stopped());
            return cancelled ? cancelledTransfer() : result;
        }
        httpRequest.resourceTimeout =
            std::chrono::ceil<std::chrono::milliseconds>(until - std::chrono::steady_clock::now());
    }
}

// False when the time is up or the transfer is cancelled first.
bool CurlHTTPClient::awaitNetwork(std::chrono::steady_clock::time_point until,
                                  const std::function<bool()>& stopped) {
    qInfo("waiting for a network");
    std::unique_lock lock(m_mutex);
    for (;;) {
        const auto now = std::chrono::steady_clock::now();
        if (now >= until || m_cancelling.wait_until(lock, std::min(until, now + kLookForNetworkEvery),
                                                    [this] { return m_cancelled.load(); })) {
            return false;
        }
        lock.unlock();
        if (stopped && stopped()) {
            return false;
        }
        if (m_hasNetwork()) {
            return true;
        }
        lock.lock();
    }
}

void CurlHTTPClient::removeCachedResponse(const HTTPRequest& request) {
    m_cache.remove(request);
}

void CurlHTTPClient::cancelAll() {
    const std::lock_guard lock(m_mutex);
    m_cancelled.store(true);
    m_cancelling.notify_all();
    for (CURLM* multi : m_running) {
        curl_multi_wakeup(multi);
    }
}

} // namespace guide
