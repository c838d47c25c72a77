#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>

namespace guide {

/// How a thread waits for others. A worker thread reports the wait to its pool, which adds another worker;
/// the thread of manually run queues runs blocks meanwhile. Any other thread sleeps.
class ThreadWaiting {
  public:
    virtual ~ThreadWaiting() = default;

    /// Returns true once `done` returns true, false if the time is up first. The guard is held on entry, on
    /// return and while `done` is called. `changed` is notified when the result of `done` may have changed.
    virtual bool wait(std::unique_lock<std::mutex>& guard, std::condition_variable& changed,
                      std::optional<std::chrono::milliseconds> atMost, const std::function<bool()>& done);

    /// Waits in the way that is set for the calling thread.
    static bool waitHere(std::unique_lock<std::mutex>& guard, std::condition_variable& changed,
                         std::optional<std::chrono::milliseconds> atMost, const std::function<bool()>& done);

    /// Sets how the calling thread waits; null for plain sleep. Returns the previous setting.
    static ThreadWaiting* exchangeForThisThread(ThreadWaiting* waiting);
};

} // namespace guide
