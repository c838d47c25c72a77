#pragma once

#include "app/UpdatePlan.h"
#include "sources/SourceHealth.h"
#include "store/ListMerge.h"

#include <optional>
#include <vector>

namespace guide {

/// What a check finds out about the sources of one channel, one after the other.
class ChannelLoad {
  public:
    /// Sources without URLs count as passed over.
    explicit ChannelLoad(const std::vector<PlannedSource>& sources);

    /// The first page of the source did not come.
    void noPage(const QString& sourceId, const NetPage& answer);
    /// The pages of the source were read. `list` is what was stored, null unless the outcome says so.
    void read(const QString& sourceId, std::size_t pages, MergeOutcome outcome, const ShowList& list,
              Moment at);

    /// Once a source was used, or all were passed over: what the load did. Nothing while one is still to be
    /// asked, and for a channel without sources.
    std::optional<SourceHealth> health(Moment now) const;

  private:
    struct Source {
        PassedOverSource passedOver;
        bool isAsked = false;
    };
    void passOver(const PassedOverSource& passedOver);

    /// In the order of the channel's own numbers.
    std::vector<Source> m_sources;
    std::optional<UsedSource> m_used;
};

} // namespace guide
