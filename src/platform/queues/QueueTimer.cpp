#include "platform/queues/QueueTimer.h"

#include <algorithm>
#include <utility>

namespace guide {

namespace {

// Longer than any sensible delay, short enough not to overflow the clock.
constexpr std::chrono::milliseconds kLongestDelay = std::chrono::hours(24 * 365);

} // namespace

QueueTimer::~QueueTimer() {
    stop();
}

void QueueTimer::submitAfter(std::chrono::milliseconds delay, std::shared_ptr<DispatchQueue> queue,
                             Block block) {
    const auto due = std::chrono::steady_clock::now() + std::min(delay, kLongestDelay);
    const std::lock_guard guard(m_mutex);
    if (m_stopping) {
        return;
    }
    const auto added = m_entries.emplace(due, Entry{std::move(queue), std::move(block)});
    if (!m_thread.joinable()) {
        m_thread = std::thread([this] { run(); });
    } else if (added == m_entries.begin()) {
        m_changed.notify_one();
    }
}

void QueueTimer::stop() {
    decltype(m_entries) dropped;
    {
        const std::lock_guard guard(m_mutex);
        m_stopping = true;
        dropped.swap(m_entries);
        m_changed.notify_one();
    }
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

void QueueTimer::run() {
    std::unique_lock guard(m_mutex);
    while (!m_stopping) {
        if (m_entries.empty()) {
            m_changed.wait(guard);
            continue;
        }
        const auto due = m_entries.begin()->first;
        if (std::chrono::steady_clock::now() < due) {
            m_changed.wait_until(guard, due);
            continue;
        }
        auto entry = m_entries.extract(m_entries.begin());
        guard.unlock();
        entry.mapped().queue->async(std::move(entry.mapped().block));
        entry = {};
        guard.lock();
    }
}

} // namespace guide
