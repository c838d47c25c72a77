#pragma once

#include "platform/Clock.h"
#include "platform/HTTPClient.h"

#include <QByteArray>

#include <cstddef>
#include <functional>
#include <list>
#include <mutex>
#include <optional>
#include <unordered_map>

namespace guide {

/// Responses in memory, by URL, as they came. Only whole answers to GET with a status of success are taken.
/// Bounded in bytes: what was used longest ago goes first. A response older than the maximum age counts as
/// absent. May be used from any thread.
class ResponseCache {
  public:
    /// The capacity is in bytes. The maximum age is asked for at each look-up, on the caller's thread.
    ResponseCache(const Clock& clock, std::size_t memoryCapacity,
                  std::function<std::chrono::milliseconds()> maximumAge);

    /// A response and a body, or nothing.
    std::optional<TransferResult> cachedResponse(const HTTPRequest& request);
    void store(const HTTPRequest& request, const TransferResult& result);
    void remove(const HTTPRequest& request);

    /// Drops what no longer fits: 0 drops everything, and nothing is taken until it is raised again.
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
    /// The one used last in front.
    Entries m_entries;
    std::unordered_map<QByteArray, Entries::iterator> m_byUrl;
};

} // namespace guide
