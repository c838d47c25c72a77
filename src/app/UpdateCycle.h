#pragma once

#include "app/UpdatePlan.h"
#include "core/Settings.h"
#include "core/TVChannels.h"
#include "parsers/ListDriver.h"
#include "parsers/URLPlanner.h"
#include "platform/BackgroundTasks.h"
#include "platform/Clock.h"
#include "platform/Device.h"
#include "platform/LifeCycle.h"
#include "platform/queues/DispatchQueue.h"
#include "sources/HTTPUserAgent.h"
#include "sources/PageFetcher.h"
#include "sources/SourceHealthRecords.h"
#include "store/TVListings.h"

#include <QByteArray>

#include <chrono>
#include <functional>
#include <memory>
#include <unordered_set>
#include <vector>

namespace guide {

/// How loads have ended, or begun.
struct LoadResults {
    /// The channels whose load failure has changed; a load that begins clears it.
    std::unordered_set<ObjectId> failureChanged;
    /// The channels whose load stored nothing, and those that got a list.
    std::vector<ObjectId> failed;
    std::vector<ObjectId> stored;
};

/// The dependencies of the cycle. All of them must outlive the last block on its queues.
struct UpdateCycleEnvironment {
    const Clock& clock;
    const Device& device;
    DispatchQueues& queues;
    /// Serial, background class: runs the checks.
    std::shared_ptr<DispatchQueue> checkQueue;
    /// Serial, background class: planning and parsing. The check queue waits for it, never the other way
    /// round. Suspending it delays a load before its lists reach the screens.
    std::shared_ptr<DispatchQueue> loadQueue;
    BackgroundTasks& backgroundTasks;
    const ApplicationStateSource& applicationState;
    const TVChannels& channels;
    const Catalogue& catalogue;
    const Settings& settings;
    const URLPlanner& planner;
    const PageFetcher& fetcher;
    const HTTPUserAgent& userAgent;
    TVListings& listings;
    /// Records the result of each load. Only checks read and write its file.
    SourceHealthRecords& sourceHealth;
    /// Reads pages and merges their shows into the store.
    const ListDriver& listDriver;
    /// How many shows per channel the list of what is on now shows.
    std::function<int()> showCount;
    /// Receives the first shows of each loaded channel, on the main queue. Not called while the application
    /// is in the background.
    std::function<void(const TopLists&)> offerTop;
    /// Called on the main queue, also in the background.
    std::function<void(const LoadResults&)> loadsEnded;
};

/// Loads the selected channels that are due, each from the first of its sources that has shows. Up to four
/// hosts are asked at the same time. There is no timer: events start a check, which is cheap when nothing is
/// due.
class UpdateCycle {
  public:
    explicit UpdateCycle(UpdateCycleEnvironment environment);

    /// Starts a check. If one is running, what is due now joins it: a channel is loaded as soon as its host
    /// is free. Any thread.
    void checkAndUpdateAllChannels();

    /// Whether a check is running. Any thread.
    bool isRunning() const;

    /// Calls the block on the main queue once no check is running, after what the last one has announced
    /// there. Any thread.
    void whenIdle(Block block);

    /// Ends the running check before its next steps, disables later ones, and waits for the end. Returns
    /// false on timeout. Transfers must have been cancelled, and the load queue must not be suspended.
    bool finish(std::chrono::milliseconds atMost);

  private:
    struct State;
    std::shared_ptr<State> m_state;
};

} // namespace guide
