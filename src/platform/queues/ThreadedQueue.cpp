#include "platform/queues/ThreadedQueue.h"

#include "platform/queues/QueueFrame.h"
#include "platform/queues/ThreadWaiting.h"

namespace guide {

void QueueHost::add(const std::shared_ptr<ThreadedQueue>& queue) {
    bool stopped = false;
    {
        const std::lock_guard guard(m_mutex);
        m_queues.insert(queue.get());
        stopped = m_stopped;
    }
    if (stopped) {
        queue->stop();
    }
}

void QueueHost::remove(ThreadedQueue* queue) {
    const std::lock_guard guard(m_mutex);
    m_queues.erase(queue);
}

void QueueHost::stop() {
    timer.stop();
    std::vector<std::shared_ptr<ThreadedQueue>> queues;
    {
        const std::lock_guard guard(m_mutex);
        m_stopped = true;
        queues.reserve(m_queues.size());
        for (ThreadedQueue* queue : m_queues) {
            // A queue that is being destroyed blocks on this mutex in remove().
            if (auto alive = queue->weak_from_this().lock()) {
                queues.push_back(std::move(alive));
            }
        }
    }
    for (const auto& queue : queues) {
        queue->stop();
    }
    pool.stop();
}

ThreadedQueue::ThreadedQueue(std::shared_ptr<QueueHost> host, std::string label, QueueKind kind,
                             QueuePriority priority)
    : m_host(std::move(host))
    , m_label(std::move(label))
    , m_kind(kind)
    , m_priority(priority) {}

ThreadedQueue::~ThreadedQueue() {
    m_host->remove(this);
}

void ThreadedQueue::async(Block block) {
    submit(std::move(block), m_kind == QueueKind::Serial);
}

void ThreadedQueue::asyncBarrier(Block block) {
    submit(std::move(block), true);
}

void ThreadedQueue::asyncAfter(std::chrono::milliseconds delay, Block block) {
    m_host->timer.submitAfter(delay, shared_from_this(), std::move(block));
}

SuspensionToken ThreadedQueue::suspend() {
    {
        const std::lock_guard guard(m_mutex);
        ++m_suspensions;
    }
    return SuspensionToken([self = shared_from_this()] { self->resume(); });
}

void ThreadedQueue::resume() {
    const std::lock_guard guard(m_mutex);
    --m_suspensions;
    advance();
}

void ThreadedQueue::submit(Block block, bool alone) {
    const std::lock_guard guard(m_mutex);
    if (!m_stopped) {
        m_pending.push_back({std::move(block), nullptr, alone});
        advance();
    }
    // A block that was not queued is destroyed with the parameter, without the mutex.
}

void ThreadedQueue::sync(const Block& block) {
    const bool alone = m_kind == QueueKind::Serial;
    switch (QueueFrame::accessTo(*this)) {
    case QueueFrame::Access::None:
        break;
    case QueueFrame::Access::Shared:
        // Runs as part of the enclosing reader: queued after a barrier that waits for that reader, it would
        // deadlock.
        block();
        return;
    case QueueFrame::Access::Alone:
        queueFault(*this, "sync from a block of the same queue");
    }
    {
        std::unique_lock guard(m_mutex);
        if (!m_pending.empty() || !mayBegin(alone)) {
            Waiter waiter;
            m_pending.push_back({nullptr, &waiter, alone});
            ThreadWaiting::waitHere(guard, waiter.changed, std::nullopt, [this, &waiter, alone] {
                return m_pending.front().waiter == &waiter && mayBegin(alone);
            });
            m_pending.pop_front();
        }
        begin(alone);
        advance();
    }
    {
        const QueueFrame frame(*this, alone);
        block();
    }
    const std::lock_guard guard(m_mutex);
    end(alone);
    advance();
}

void ThreadedQueue::runOnWorker() {
    Item item;
    {
        const std::lock_guard guard(m_mutex);
        m_workerCalled = false;
        if (m_pending.empty() || m_pending.front().waiter != nullptr || !mayBegin(m_pending.front().alone)) {
            return;
        }
        item = std::move(m_pending.front());
        m_pending.pop_front();
        begin(item.alone);
        advance();
    }
    {
        const QueueFrame frame(*this, item.alone);
        item.block();
        // Releases the captures before the next block begins.
        item.block = nullptr;
    }
    const std::lock_guard guard(m_mutex);
    end(item.alone);
    advance();
}

void ThreadedQueue::stop() {
    std::deque<Item> dropped;
    const std::lock_guard guard(m_mutex);
    m_stopped = true;
    std::deque<Item> waiters;
    for (Item& item : m_pending) {
        (item.waiter != nullptr ? waiters : dropped).push_back(std::move(item));
    }
    m_pending.swap(waiters);
    advance();
}

bool ThreadedQueue::mayBegin(bool alone) const {
    return (m_suspensions == 0 || m_stopped) && !m_runningAlone && (!alone || m_runningShared == 0);
}

void ThreadedQueue::begin(bool alone) {
    if (alone) {
        m_runningAlone = true;
    } else {
        ++m_runningShared;
    }
}

void ThreadedQueue::end(bool alone) {
    if (alone) {
        m_runningAlone = false;
    } else {
        --m_runningShared;
    }
}

void ThreadedQueue::advance() {
    if (m_pending.empty() || !mayBegin(m_pending.front().alone)) {
        return;
    }
    if (Waiter* const waiter = m_pending.front().waiter) {
        waiter->changed.notify_one();
    } else if (!m_workerCalled) {
        m_workerCalled = true;
        m_host->pool.submit(m_priority, shared_from_this());
    }
}

} // namespace guide
