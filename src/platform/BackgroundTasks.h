#pragma once

#include "platform/queues/DispatchQueue.h"

#include <QString>

#include <cstdint>

namespace guide {

using BackgroundTaskId = std::uint64_t;
inline constexpr BackgroundTaskId kBackgroundTaskInvalid = 0;

/// Work that the device lets finish after the program has left the foreground. May be called from any thread.
class BackgroundTasks {
  public:
    virtual ~BackgroundTasks() = default;
    /// Calls the handler once, on any thread, when the device stops waiting. The handler must end the task.
    virtual BackgroundTaskId beginBackgroundTask(Block expirationHandler) = 0;
    /// Ending an invalid or ended task does nothing.
    virtual void endBackgroundTask(BackgroundTaskId task) = 0;
};

} // namespace guide
