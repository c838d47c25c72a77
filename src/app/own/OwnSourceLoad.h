#pragma once

#include "app/own/OwnSourceUpdates.h"
#include "parsers/own/OwnFeedReader.h"

#include <atomic>
#include <memory>
#include <optional>
#include <vector>

namespace guide {

/// One attempt to bring a source and its channels up to date, off the main queue.
class OwnSourceLoad {
  public:
    struct Plan {
        OwnSource source;
        /// The selected channels that get their schedules from the source, with its shift.
        std::vector<OwnFeedItem> items;
        /// Of these channels when the load was planned.
        std::vector<std::shared_ptr<const TVChannel>> records;
        /// False to read only what is there.
        bool fetch = true;
        /// Some of the channels have no list, so that what is there is read even if it is unchanged.
        bool isWanting = false;
    };

    /// All of it must outlive the load.
    OwnSourceLoad(const OwnSourceUpdatesEnvironment& environment, const std::atomic<bool>& cancelled,
                  Plan plan);

    /// Fetches, reads, merges and records. Blocks.
    void run();
    /// How the channels have fared. Empty when the load was cancelled.
    const LoadResults& results() const { return m_results; }

  private:
    FetchedSource fetch() const;
    FetchedSource keptContent() const;
    void readFeed(const FetchedSource& fetched);
    void readPlaylist(const FetchedSource& fetched);
    void merge(OwnFeed feed, bool broken);
    void renew();
    void takeResult(const FetchedSource& fetched, SourceResult result);
    void setFailure(const ObjectId& channel, std::optional<LoadFailure> failure);
    LoadFailure failureOf(SourceResult result, const QString& detail) const;

    const OwnSourceUpdatesEnvironment& m_environment;
    const std::atomic<bool>& m_cancelled;
    const Plan m_plan;
    const SourceFolder m_folder;
    /// Also when what was kept is gone.
    const bool m_isFetching;
    SourceRecord m_record;
    LoadResults m_results;
};

/// The selected channels that get their schedules from a source.
std::vector<OwnFeedItem> ownFeedItems(const OwnSourceList& sources, const OwnSourceId& feed,
                                      const TVChannels& channels);

} // namespace guide
