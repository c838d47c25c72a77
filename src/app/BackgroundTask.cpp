#include "app/BackgroundTask.h"

#include <utility>

namespace guide {

void BackgroundTask::begin() {
    // Held until the id is stored, because the device may expire the task at once.
    const std::lock_guard guard(m_mutex);
    m_task = m_tasks.beginBackgroundTask([self = shared_from_this()] { self->endOnMainQueue(); });
}

void BackgroundTask::endOnMainQueue() {
    m_queues.mainQueue().async([self = shared_from_this()] {
        BackgroundTaskId task = kBackgroundTaskInvalid;
        {
            const std::lock_guard guard(self->m_mutex);
            task = std::exchange(self->m_task, kBackgroundTaskInvalid);
        }
        if (task != kBackgroundTaskInvalid) {
            self->m_tasks.endBackgroundTask(task);
        }
    });
}

} // namespace guide
