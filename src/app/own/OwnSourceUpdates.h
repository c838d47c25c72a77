#pragma once

#include "app/UpdateCycle.h"
#include "app/own/SourceFetcher.h"
#include "app/own/SourceRecords.h"
#include "core/own/OwnSources.h"
#include "text/display/Alphabet.h"

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

namespace guide {

/// All of it must outlive the last block on its queues.
struct OwnSourceUpdatesEnvironment {
    const Clock& clock;
    const Device& device;
    DispatchQueues& queues;
    /// Merges lists; suspended while the first screen rebuilds.
    std::shared_ptr<DispatchQueue> loadQueue;
    BackgroundTasks& backgroundTasks;
    const ApplicationStateSource& applicationState;
    const TVChannels& channels;
    OwnSources& sources;
    SourceRecords& records;
    const SourceFetcher& fetcher;
    TVListings& listings;
    const Alphabet& alphabet;
    RandomIndex random;
    /// The caches folder.
    QString caches;
    /// As in UpdateCycleEnvironment.
    std::function<int()> showCount;
    std::function<void(const TopLists&)> offerTop;
    std::function<void(const LoadResults&)> loadsEnded;
    /// Called on the main queue when the status of a source has changed.
    std::function<void()> statusChanged = [] {};
};

/// Keeps the schedules of the user's own sources up to date. A source is fetched once for all its channels,
/// when its own next try has come; sources of one host wait for each other. Good lists are never replaced by
/// far poorer ones, and a content that is poor or broke off does not replace the one that is kept.
class OwnSourceUpdates {
  public:
    explicit OwnSourceUpdates(OwnSourceUpdatesEnvironment environment);
    ~OwnSourceUpdates();

    /// Fetches the sources that are due, and reads what is there for channels without a list. Cheap when
    /// there is nothing to do. Any thread.
    void check();
    /// The user asks for these sources now.
    void askNow(const std::vector<OwnSourceId>& sources);
    /// The user asks for these channels now.
    void askNowFor(const std::vector<ObjectId>& channels);
    /// Reads the lists of these channels again from what is there, because their shift or language changed.
    void readAgain(std::vector<ObjectId> channels);

    /// While active, a timer starts a check when the next source is due. Main queue.
    void setActive(bool active);
    bool isRunning() const;
    /// As UpdateCycle::whenIdle.
    void whenIdle(Block block);
    /// As UpdateCycle::finish.
    bool finish(std::chrono::milliseconds atMost);

  private:
    struct State;
    const std::shared_ptr<State> m_state;
};

} // namespace guide
