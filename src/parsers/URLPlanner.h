#pragma once

#include "parsers/SourceFormats.h"
#include "sources/URLPlan.h"

#include <array>
#include <mutex>

namespace guide {

struct SourcePlan {
    /// How the pages are read.
    ListingsType type = ListingsType::XMLTV;
    PlannedURLs urls;
};

/// Turns a source id into the URLs whose pages, read together, are its schedule. Any thread, as far as the
/// random source allows it.
class URLPlanner {
  public:
    URLPlanner(SourceHostTable hosts, RandomIndex random);

    const SourceHostTable& hosts() const { return m_hosts; }

    /// The position of a day's page in the list is its day. Channels with equal lists share one fetch.
    /// `deviceZone` dates the pages of a server whose zone is unknown.
    SourcePlan plan(const QString& sourceId, Moment now, const QTimeZone& deviceZone) const;

    /// The URLs of the plan alone.
    PlannedURLs urlsForSourceId(const QString& sourceId, Moment now, const QTimeZone& deviceZone) const;

  private:
    SourceHostTable m_hosts;
    RandomIndex m_random;
    mutable std::mutex m_guard;
    /// The lists that depend on the host table alone, by family; made on first use.
    mutable std::array<PlannedURLs, kSourceFamilies> m_fixed;
};

} // namespace guide
