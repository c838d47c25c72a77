#pragma once

#include "store/AllShows.h"
#include "store/ChannelList.h"
#include "store/SaveSchedule.h"
#include "store/TVListings.h"

namespace guide {

/// Read and written on the access queue.
struct RemovedListings {
    ChannelLists lists;
};

/// What the blocks of one store share. The access queue guards the members declared after it: blocks read
/// them, barriers write them.
struct TVListings::State : std::enable_shared_from_this<State> {
    explicit State(TVListingsEnvironment environment);

    // ---- any thread

    /// Reads the listing files of the selected channels, in one barrier that waits for all of them.
    void startFirstRead();
    /// Submits a change as a barrier.
    void change(std::function<void(State&)> block);
    /// Runs the block on the access queue, concurrently with other queries.
    void query(std::function<void(State&)> block);
    /// Runs the block on the global queue of the priority, with the list of all shows that a query on the
    /// access queue has read.
    void queryAllShows(QueuePriority priority, std::function<void(State&, const AllShows&)> block);
    /// Schedules the lists, and writes them if the application is in the background.
    void scheduleSaving(std::vector<ObjectId> channels);
    void commitFiles();
    void writeScheduledLists();
    /// Answers with the shows that `find` returns. `find` runs on the global queue.
    void answerShows(QueuePriority priority, MainBlock<ShowSpan> mainBlock,
                     std::function<ShowItems(const TVListingsEnvironment&, const AllShows&)> find);
    DispatchQueue& mainQueue() const { return environment.queues.mainQueue(); }
    void setTimeLoaded(const ObjectId& channel) const;
    /// What a channel's file holds.
    struct ReadList {
        /// Without ended shows; null when none is left.
        std::shared_ptr<const ChannelList> list;
        /// When the last show ends, ended or not; nothing without a readable file.
        std::optional<Moment> lastEnd;
    };
    ReadList readList(const ObjectId& channel) const;

    // ---- on the access queue

    void saveAllShows(bool updatePopular);
    void replaceList(const ObjectId& channel, ShowItems shows);
    /// The latest load time of the selected channels' files that is not after the time of the clock.
    Moment latestLoad() const;
    /// Makes channels due whose files hold no show to come, and deletes the files that are long over.
    void unload(const std::vector<std::pair<ObjectId, std::optional<Moment>>>& lastEnds) const;
    std::vector<ShowSpan> onAirShows(const std::vector<ObjectId>& channels, int limit) const;

    TVListingsEnvironment environment;
    const std::shared_ptr<DispatchQueue> access;
    const std::shared_ptr<SaveSchedule> saveSchedule;
    /// All pending work except changes.
    DispatchGroup underway;

    ChannelLists lists;
    std::shared_ptr<const AllShows> allShows =
        std::make_shared<const AllShows>(AllShows::Lists(), Moment::min());
};

} // namespace guide
