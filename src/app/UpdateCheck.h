#pragma once

#include "app/BackgroundTask.h"
#include "app/ChannelLoad.h"
#include "app/StepSchedule.h"
#include "app/UpdateCycle.h"

#include <atomic>
#include <memory>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace guide {

/// What the blocks of a check share with the update cycle.
struct UpdateWork {
    explicit UpdateWork(UpdateCycleEnvironment ownEnvironment);

    const UpdateCycleEnvironment environment;
    /// Concurrent: runs the transfers.
    const std::shared_ptr<DispatchQueue> fetchQueue;
    /// The blocks that the end of the program waits for.
    DispatchGroup blocks;
    std::atomic<bool> cancelled = false;
};

/// One run over the selected channels. Runs on the check queue, which it never blocks for a transfer: a step
/// is fetched on the fetch queue, and its pages come back as a block on the check queue.
class UpdateCheck : public std::enable_shared_from_this<UpdateCheck> {
  public:
    /// `ended` is called on the check queue.
    UpdateCheck(std::shared_ptr<UpdateWork> work, Block ended);

    void begin(const ShowCounts& counts);
    /// Another check was requested: loads, ahead of what has not started, the channels that have become due
    /// since, and once more those whose loads have failed.
    void join(const ShowCounts& counts);

  private:
    using PlannedChannels = std::vector<std::pair<ObjectId, std::vector<PlannedSource>>>;

    /// The pages of one step up to the first that could not be fetched.
    struct Fetched {
        std::vector<QByteArray> pages;
        /// A page was cut off or damaged.
        bool incomplete = false;
        /// The answer in place of the page that is missing.
        NetPage missing;
    };

    unsigned showCount() const;
    bool reloadNeeded(const TVChannel& channel) const;
    bool isDue(const ObjectId& id) const;
    Moment dayBegan() const;

    bool isWanted(const ObjectId& id, const ShowCounts& counts) const;
    PlannedChannels plannedChannels(const std::vector<ObjectId>& wanted);
    void planAndLoad();
    void addSteps(const std::vector<ObjectId>& wanted);
    bool isWithoutResult(const ObjectId& id) const;
    void loadAgain(const std::vector<ObjectId>& channels);
    void startSteps();
    bool startStep(std::size_t index);
    void finishStep(std::size_t index, DueItems due, const Fetched& fetched);

    HTTPRequest requestFor(const QUrl& url) const { return pageRequest(url, m_environment.userAgent); }
    Fetched fetch(const QList<QUrl>& urls, Moment cachedSince) const;
    ReadOutcome parse(std::vector<LoadItem>& items, ListingsType type, const Fetched& fetched);
    void recordSources(const std::vector<LoadItem>& items, std::size_t pages, const MergeResult& result);
    void announce(const std::vector<ObjectId>& ids) const;
    void recordHealth();
    void end();

    const std::shared_ptr<UpdateWork> m_work;
    const UpdateCycleEnvironment& m_environment;
    const Block m_ended;
    const SharedCatalogueSnapshot m_catalogue;
    const std::shared_ptr<BackgroundTask> m_task;
    std::vector<ObjectId> m_wanted;
    std::unordered_map<ObjectId, ChannelLoad> m_loads;
    /// Channels that were requested again while they were being loaded.
    std::unordered_set<ObjectId> m_requested;
    StepSchedule m_schedule;
    /// When the day of the plan began.
    Moment m_day = Moment::min();
    /// A new day has begun, and a step depends on the day.
    bool m_planIsOld = false;
    bool m_anythingParsed = false;
};

} // namespace guide
