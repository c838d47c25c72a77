#pragma once

#include "platform/BackgroundTasks.h"

#include <atomic>
#include <memory>

namespace guide {

/// A background task that lasts as long as the object, or until the device stops waiting for it. It is ended
/// on the main queue.
class BackgroundWork {
  public:
    /// Both must outlive the last block on the main queue.
    BackgroundWork(BackgroundTasks& tasks, DispatchQueue& mainQueue)
        : m_end([&tasks, &mainQueue, task = m_task] {
            mainQueue.async(
                [&tasks, task] { tasks.endBackgroundTask(task->exchange(kBackgroundTaskInvalid)); });
        }) {
        *m_task = tasks.beginBackgroundTask(m_end);
    }
    BackgroundWork(const BackgroundWork&) = delete;
    BackgroundWork& operator=(const BackgroundWork&) = delete;
    ~BackgroundWork() { m_end(); }

  private:
    using Id = std::atomic<BackgroundTaskId>;
    const std::shared_ptr<Id> m_task = std::make_shared<Id>(kBackgroundTaskInvalid);
    const Block m_end;
};

} // namespace guide
