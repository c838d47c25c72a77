#pragma once

#include "app/UpdateCycle.h"
#include "core/TVChannels.h"
#include "platform/Clock.h"
#include "platform/queues/DispatchQueue.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <unordered_map>

namespace guide {

/// How long to wait before a channel is loaded again after this many failed retries: 1, 5, 15 and then always
/// 30 minutes.
std::chrono::minutes retryDelay(unsigned failedRetries);

/// Starts a check while the application is active and a channel whose load failed is due for a retry, or the
/// device has got a network. Each channel has its own sequence of retries, which a stored list ends; loads
/// for other reasons do not advance it. Main queue.
class LoadRetries {
  public:
    /// Everything referred to must outlive this object. `check` must be asynchronous.
    LoadRetries(const Clock& clock, DispatchQueue& mainQueue, const TVChannels& channels, Block check);

    void loadsEnded(const LoadResults& results);
    void setActive(bool active);
    void networkAppeared();

  private:
    struct Failing {
        unsigned failedRetries = 0;
        Moment retryAt;
    };

    bool hasFailed(const ObjectId& channel) const;
    std::chrono::milliseconds timeLeft(const Failing& failing) const;
    /// The time until the first retry of a channel that is not being loaded.
    std::optional<std::chrono::milliseconds> timeToNext();
    void arm();
    void fire();

    const Clock& m_clock;
    DispatchQueue& m_mainQueue;
    const TVChannels& m_channels;
    const Block m_check;
    std::unordered_map<ObjectId, Failing> m_failing;
    bool m_isActive = false;
    /// The block of the timer holds it weakly; replacing it stops the timer.
    std::shared_ptr<const Moment> m_timer;
};

} // namespace guide
