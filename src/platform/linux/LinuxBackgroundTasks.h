#pragma once

#include "platform/BackgroundTasks.h"

#include <chrono>

namespace guide {

/// Nothing suspends a program here, so a background task is what the end of the program waits for, within
/// bounds.
class LinuxBackgroundTasks final : public BackgroundTasks {
  public:
    /// A task that has run for so long is expired: its handler is called on the global default queue.
    explicit LinuxBackgroundTasks(DispatchQueues& queues,
                                  std::chrono::milliseconds expireAfter = std::chrono::minutes(10));

    BackgroundTaskId beginBackgroundTask(Block expirationHandler) override;
    void endBackgroundTask(BackgroundTaskId task) override;

    /// Blocks until no task runs; false when the time was up first. Tasks are ended on the main queue as a
    /// rule, so the main thread gives a function that empties it, which is called again and again meanwhile.
    bool waitUntilIdle(std::chrono::milliseconds atMost, const Block& meanwhile = nullptr);

  private:
    struct State;

    DispatchQueues& m_queues;
    const std::chrono::milliseconds m_expireAfter;
    const std::shared_ptr<State> m_state;
};

} // namespace guide
