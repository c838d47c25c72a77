#include "platform/linux/CurlHTTPClient.h"

#include <algorithm>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t kIdleLanes = 6;
constexpr long kConnectionsOfLane = 4;

TransferResult failed(const QString& description, bool cancelled = false) {
    TransferResult result;
    result.error = TransferError{description, {}, {}, cancelled};
    return result;
}

} // namespace

// A multi handle for the length of one transfer, known to whoever cancels. Null where none may be had.
class CurlHTTPClient::Lane {
  public:
    explicit Lane(CurlHTTPClient& client)
        : m_client(client) {
        const std::lock_guard lock(client.m_mutex);
        if (client.m_cancelled.load()) {
            return;
        }
        // The one used last has the freshest connections.
        if (!client.m_idle.empty()) {
            m_multi = std::move(client.m_idle.back());
            client.m_idle.pop_back();
        } else {
            m_multi.reset(curl_multi_init());
            curl_multi_setopt(m_multi.get(), CURLMOPT_MAXCONNECTS, kConnectionsOfLane);
        }
        client.m_running.push_back(m_multi.get());
    }
    Lane(const Lane&) = delete;
    Lane& operator=(const Lane&) = delete;
    ~Lane() {
        const std::lock_guard lock(m_client.m_mutex);
        std::erase(m_client.m_running, m_multi.get());
        if (m_multi && m_client.m_idle.size() < kIdleLanes) {
            m_client.m_idle.push_back(std::move(m_multi));
        }
    }

    CURLM* multi() const { return m_multi.get(); }

  private:
    CurlHTTPClient& m_client;
    CurlMulti m_multi;
};

CurlHTTPClient::CurlHTTPClient(ResponseCache& cache, const CurlHTTPClientOptions& options)
    : m_cache(cache)
    , m_settings{m_share.handle(), options.maximumBodySize, options.connectTo} {}

CurlHTTPClient::~CurlHTTPClient() = default;

TransferResult CurlHTTPClient::perform(const HTTPRequest& request) {
    if (m_cancelled.load()) {
        return failed(u"the transfer was cancelled"_s, true);
    }
    if (request.cachePolicy != CachePolicy::ReloadIgnoringCache) {
        if (std::optional<TransferResult> cached = m_cache.cachedResponse(request)) {
            return *std::move(cached);
        }
        if (request.cachePolicy == CachePolicy::ReturnCacheDataDontLoad) {
            return failed(u"the response is not in the cache"_s);
        }
    }
    if (const QString scheme = request.url.scheme(); scheme != "http"_L1 && scheme != "https"_L1) {
        return failed(u"only http and https are opened"_s);
    }
    TransferResult result = transfer(request);
    m_cache.store(request, result);
    return result;
}

TransferResult CurlHTTPClient::transfer(const HTTPRequest& request) {
    const Lane lane(*this);
    if (lane.multi() == nullptr) {
        return failed(u"the transfer was cancelled"_s, m_cancelled.load());
    }
    return CurlTransfer(request, m_settings).run(lane.multi(), m_cancelled);
}

void CurlHTTPClient::removeCachedResponse(const HTTPRequest& request) {
    m_cache.remove(request);
}

void CurlHTTPClient::cancelAll() {
    const std::lock_guard lock(m_mutex);
    m_cancelled.store(true);
    for (CURLM* multi : m_running) {
        curl_multi_wakeup(multi);
    }
}

} // namespace guide
