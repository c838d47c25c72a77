#include "platform/http/ResponseCache.h"

#include <utility>

namespace guide {

namespace {

// Approximate overhead of an entry.
constexpr std::size_t kEntryOverhead = 512;
constexpr int kPartialContent = 206;

QByteArray keyOf(const HTTPRequest& request) {
    return request.url.toEncoded(QUrl::RemoveFragment);
}

std::size_t costOf(const QByteArray& url, const TransferResult& result) {
    auto cost = kEntryOverhead + static_cast<std::size_t>(url.size()) +
                static_cast<std::size_t>(result.body.capacity());
    for (const auto& [name, value] : result.response->headers) {
        cost += static_cast<std::size_t>(name.size() + value.size());
    }
    return cost;
}

bool isStorable(const HTTPRequest& request, const TransferResult& result) {
    return request.method == "GET" && !result.error && result.response &&
           result.response->statusCode >= 200 && result.response->statusCode < 300 &&
           result.response->statusCode != kPartialContent;
}

} // namespace

ResponseCache::ResponseCache(const Clock& clock, std::size_t memoryCapacity,
                             std::function<std::chrono::milliseconds()> maximumAge)
    : m_clock(clock)
    , m_maximumAge(std::move(maximumAge))
    , m_capacity(memoryCapacity) {}

std::optional<TransferResult> ResponseCache::cachedResponse(const HTTPRequest& request) {
    if (request.method != "GET") {
        return std::nullopt;
    }
    const std::chrono::milliseconds maximumAge = m_maximumAge();
    const Moment now = m_clock.now();
    const std::lock_guard lock(m_mutex);
    const auto found = m_byUrl.find(keyOf(request));
    if (found == m_byUrl.end()) {
        return std::nullopt;
    }
    const Entries::iterator entry = found->second;
    // The difference is absolute: otherwise a clock that was set back would keep the entry alive.
    if (std::chrono::abs(now - entry->stored) > maximumAge || entry->stored < request.cachedSince) {
        erase(entry);
        return std::nullopt;
    }
    m_entries.splice(m_entries.begin(), m_entries, entry);
    return TransferResult{entry->response, entry->body, std::nullopt};
}

void ResponseCache::store(const HTTPRequest& request, const TransferResult& result) {
    if (!isStorable(request, result)) {
        return;
    }
    const QByteArray url = keyOf(request);
    const std::size_t cost = costOf(url, result);
    const Moment now = m_clock.now();
    const std::lock_guard lock(m_mutex);
    if (const auto found = m_byUrl.find(url); found != m_byUrl.end()) {
        erase(found->second);
    }
    if (cost > m_capacity) {
        return;
    }
    m_entries.push_front({url, *result.response, result.body, now, cost});
    m_byUrl[url] = m_entries.begin();
    m_used += cost;
    shrink();
}

void ResponseCache::remove(const HTTPRequest& request) {
    const std::lock_guard lock(m_mutex);
    if (const auto found = m_byUrl.find(keyOf(request)); found != m_byUrl.end()) {
        erase(found->second);
    }
}

void ResponseCache::setMemoryCapacity(std::size_t memoryCapacity) {
    const std::lock_guard lock(m_mutex);
    m_capacity = memoryCapacity;
    shrink();
}

void ResponseCache::erase(Entries::iterator entry) {
    m_used -= entry->cost;
    m_byUrl.erase(entry->url);
    m_entries.erase(entry);
}

void ResponseCache::shrink() {
    while (m_used > m_capacity) {
        erase(std::prev(m_entries.end()));
    }
}

} // namespace guide
