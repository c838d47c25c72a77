#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>

namespace guide {

/// How a thread waits for others. A worker thread tells its pool, which puts another in its place; the one
/// thread of a hand-cranked set of queues runs what it would wait for. Any other thread just sleeps.
class ThreadWaiting {
  public:
    virtual ~ThreadWaiting() = default;

    /// Returns true once `done` answers true, false when the time was up first. Called with the guard held,
    /// which is also held whenever `done` is asked; `changed` is notified when `done` may have changed its
    /// answer.
    virtual bool wait(std::unique_lock<std::mutex>& guard, std::condition_variable& changed,
                      std::optional<std::chrono::milliseconds> atMost, const std::function<bool()>& done);

    /// Waits as the calling thread does.
    static bool waitHere(std::unique_lock<std::mutex>& guard, std::condition_variable& changed,
                         std::optional<std::chrono::milliseconds> atMost, const std::function<bool()>& done);

    /// Says how the calling thread waits from now on; null for plain sleep. Answers what held before.
    static ThreadWaiting* exchangeForThisThread(ThreadWaiting* waiting);
};

} // namespace guide
