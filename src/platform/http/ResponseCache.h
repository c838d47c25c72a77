#pragma once

#include "platform/Clock.h"
#include "platform/http/HTTPClient.h"

#include <QByteArray>

#include <cstddef>
#include <functional>
#include <list>
#include <mutex>
#include <optional>
#include <unordered_map>

namespace guide {

/// Responses in memory, by URL. Stores only complete responses to GET with a success status. Bounded in
/// bytes; the least recently used response is evicted first. Responses older than the maximum age are
/// ignored. May be used from any thread.
class ResponseCache {
  public:
    /// `memoryCapacity` is in bytes. `maximumAge` is called at each look-up, on the calling thread.
    ResponseCache(const Clock& clock, std::size_t memoryCapacity,
                  std::function<std::chrono::milliseconds()> maximumAge);

    std::optional<TransferResult> cachedResponse(const HTTPRequest& request);
    void store(const HTTPRequest& request, const TransferResult& result);
    void remove(const HTTPRequest& request);

    /// Evicts what no longer fits. With 0 nothing is stored until the capacity is raised again.
    void setMemoryCapacity(std::size_t memoryCapacity);

  private:
    struct Entry {
        QByteArray url;
        HTTPResponse response;
        QByteArray body;
        Moment stored;
        std::size_t cost;
    };
    using Entries = std::list<Entry>;

    void erase(Entries::iterator entry);
    void shrink();

    const Clock& m_clock;
    const std::function<std::chrono::milliseconds()> m_maximumAge;
    std::mutex m_mutex;
    std::size_t m_capacity;
    std::size_t m_used = 0;
    /// Most recently used first.
    Entries m_entries;
    std::unordered_map<QByteArray, Entries::iterator> m_byUrl;
};

} // namespace guide
