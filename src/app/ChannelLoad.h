#pragma once

#include "app/UpdatePlan.h"
#include "core/LoadFailure.h"
#include "sources/SourceHealth.h"
#include "store/ListMerge.h"

#include <optional>
#include <vector>

namespace guide {

/// Collects what a check learns about the sources of one channel.
class ChannelLoad {
  public:
    /// Sources without URLs count as passed over.
    explicit ChannelLoad(const std::vector<PlannedSource>& sources);

    /// The first page of the source could not be fetched.
    void recordMissingPage(const QString& sourceId, const NetPage& answer);
    /// The pages of the item's source were read and merged.
    void recordPages(const LoadItem& item, std::size_t pages, const MergeResult& result, Moment at);

    /// The result of the load, once a source was used or all were passed over. Unset before that, and for a
    /// channel without sources.
    std::optional<SourceHealth> health(Moment now) const;

    bool hasStored() const { return m_used.has_value(); }
    /// Why the load stored nothing, once all sources were passed over.
    std::optional<LoadFailure> failure() const;

  private:
    struct Source {
        PassedOverSource passedOver;
        /// Empty when the source cannot be asked.
        QString host;
        bool isAsked = false;
    };
    void passOver(const PassedOverSource& passedOver);

    /// In the channel's order.
    std::vector<Source> m_sources;
    std::optional<UsedSource> m_used;
};

} // namespace guide
