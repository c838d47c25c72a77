#pragma once

#include "platform/BackgroundTasks.h"

#include <chrono>

namespace guide {

/// Linux does not suspend programs in the background, so a task simply runs until it ends or expires.
class LinuxBackgroundTasks final : public BackgroundTasks {
  public:
    /// Expires a task after this time: its handler is called on the global default queue.
    explicit LinuxBackgroundTasks(DispatchQueues& queues,
                                  std::chrono::milliseconds expireAfter = std::chrono::minutes(10));

    BackgroundTaskId beginBackgroundTask(Block expirationHandler) override;
    void endBackgroundTask(BackgroundTaskId task) override;

  private:
    struct State;

    DispatchQueues& m_queues;
    const std::chrono::milliseconds m_expireAfter;
    const std::shared_ptr<State> m_state;
};

} // namespace guide
