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
#include <vector>

namespace guide {

/// What the cycle works with; all of it outlives the last block on its queues.
struct UpdateCycleEnvironment {
    const Clock& clock;
    const Device& device;
    DispatchQueues& queues;
    /// Serial, background class: checks, one after the other, and their transfers.
    std::shared_ptr<DispatchQueue> checkQueue;
    /// Serial, background class: planning and parsing. Waited for by the check queue, never the other way
    /// round; whoever suspends it holds a load back before its lists reach the screens.
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
    /// Told what each load did; read and written by checks.
    SourceHealthRecords& sourceHealth;
    /// Reads pages and merges what they hold into the store.
    const ListDriver& listDriver;
    /// How many shows a channel the now-on-air list wants.
    std::function<int()> showCount;
    /// Takes the first shows of each channel that a load has brought, on the main queue. Not called while the
    /// program is in the background.
    std::function<void(const TopLists&)> offerTop;
};

/// Loads the selected channels that are due, from the first of their sources that has anything. There is no
/// timer: a check is run when something makes one worth while, and is cheap when nothing is due.
class UpdateCycle {
  public:
    explicit UpdateCycle(UpdateCycleEnvironment environment);

    /// Starts a check, which waits for the running one; one that is still waiting serves every caller. Any
    /// thread.
    void checkAndUpdateAllChannels();

    /// Ends the running check before its next step, and makes every later one do nothing; then waits until it
    /// has ended. False when the time was up first. For the end of the program, when transfers are already
    /// cancelled and nobody holds the load queue back.
    bool finish(std::chrono::milliseconds atMost);

  private:
    class Check;
    struct State;
    std::shared_ptr<State> m_state;
};

} // namespace guide
