#include "platform/queues/MainInbox.h"

#include "platform/queues/QueueFrame.h"

namespace guide {

MainInbox::MainInbox(Block wakeUp, Later later)
    : m_wakeUp(std::move(wakeUp))
    , m_later(std::move(later))
    , m_thread(std::this_thread::get_id()) {}

void MainInbox::runPending() {
    requireMainThread();
    std::unique_lock guard(m_mutex);
    if (m_running) {
        // The outer call requests another wake-up when it ends.
        return;
    }
    m_running = true;
    for (std::size_t there = m_pending.size(); there > 0 && !m_pending.empty() && m_suspensions == 0;
         --there) {
        Block block = std::move(m_pending.front());
        m_pending.pop_front();
        guard.unlock();
        {
            const QueueFrame frame(*this, true);
            block();
            block = nullptr;
        }
        guard.lock();
    }
    m_running = false;
    m_awake = false;
    const bool wake = claimWakeUp();
    guard.unlock();
    if (wake) {
        m_wakeUp();
    }
}

void MainInbox::discardAll() {
    requireMainThread();
    std::deque<Block> dropped;
    const std::lock_guard guard(m_mutex);
    m_discarding = true;
    dropped.swap(m_pending);
}

void MainInbox::async(Block block) {
    std::unique_lock guard(m_mutex);
    if (m_discarding) {
        return;
    }
    m_pending.push_back(std::move(block));
    const bool wake = claimWakeUp();
    guard.unlock();
    if (wake) {
        m_wakeUp();
    }
}

void MainInbox::asyncAfter(std::chrono::milliseconds delay, Block block) {
    m_later(delay, shared_from_this(), std::move(block));
}

void MainInbox::sync(const Block&) {
    queueFault(*this, "sync on the main queue");
}

SuspensionToken MainInbox::suspend() {
    {
        const std::lock_guard guard(m_mutex);
        ++m_suspensions;
    }
    return SuspensionToken([self = shared_from_this()] { self->resume(); });
}

void MainInbox::resume() {
    std::unique_lock guard(m_mutex);
    --m_suspensions;
    const bool wake = claimWakeUp();
    guard.unlock();
    if (wake) {
        m_wakeUp();
    }
}

void MainInbox::requireMainThread() const {
    if (std::this_thread::get_id() != m_thread) {
        queueFault(*this, "not on the main thread");
    }
}

bool MainInbox::claimWakeUp() {
    if (m_awake || m_running || m_pending.empty() || m_suspensions > 0) {
        return false;
    }
    m_awake = true;
    return true;
}

} // namespace guide
