#pragma once

#include "platform/BackgroundTasks.h"

#include <chrono>

namespace guide {

/// Linux does not suspend programs in the background: a background task is work that the program waits for at
/// its end, within a limit.
class LinuxBackgroundTasks final : public BackgroundTasks {
  public:
    /// Expires a task after this time: its handler is called on the global default queue.
    explicit LinuxBackgroundTasks(DispatchQueues& queues,
                                  std::chrono::milliseconds expireAfter = std::chrono::minutes(10));

    BackgroundTaskId beginBackgroundTask(Block expirationHandler) override;
    void endBackgroundTask(BackgroundTaskId task) override;

    /// Blocks until no task runs; false when the time is up first. Tasks usually end on the main queue, so
    /// the main thread passes a function that drains it, which is called repeatedly.
    bool waitUntilIdle(std::chrono::milliseconds atMost, const Block& meanwhile = nullptr);

  private:
    struct State;

    DispatchQueues& m_queues;
    const std::chrono::milliseconds m_expireAfter;
    const std::shared_ptr<State> m_state;
};

} // namespace guide
