#pragma once

#include "platform/BackgroundTasks.h"
#include "platform/queues/DispatchQueue.h"

#include <memory>
#include <mutex>

namespace guide {

/// Asks the device to let the program work on in the background, until the work ends or the device wants it
/// to.
class BackgroundTask : public std::enable_shared_from_this<BackgroundTask> {
  public:
    BackgroundTask(DispatchQueues& queues, BackgroundTasks& tasks)
        : m_queues(queues)
        , m_tasks(tasks) {}

    void begin();
    /// Any thread.
    void endOnMainQueue();

  private:
    DispatchQueues& m_queues;
    BackgroundTasks& m_tasks;
    std::mutex m_mutex;
    BackgroundTaskId m_task = kBackgroundTaskInvalid;
};

} // namespace guide
