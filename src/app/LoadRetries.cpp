#include "app/LoadRetries.h"

#include <algorithm>
#include <array>
#include <utility>

namespace guide {

using namespace std::chrono_literals;

namespace {

constexpr std::array kDelays{1min, 5min, 15min, 30min};
/// A retry that is overdue when the application becomes active leaves the check of the activation this head
/// start.
constexpr std::chrono::milliseconds kLeastWait = 5s;

} // namespace

std::chrono::minutes retryDelay(unsigned failedRetries) {
    return kDelays[std::min<std::size_t>(failedRetries, kDelays.size() - 1)];
}

LoadRetries::LoadRetries(const Clock& clock, DispatchQueue& mainQueue, const TVChannels& channels,
                         Block check)
    : m_clock(clock)
    , m_mainQueue(mainQueue)
    , m_channels(channels)
    , m_check(std::move(check)) {}

void LoadRetries::loadsEnded(const LoadResults& results) {
    for (const ObjectId& channel : results.stored) {
        m_failing.erase(channel);
    }
    for (const ObjectId& channel : results.failed) {
        const auto known = m_failing.find(channel);
        if (known == m_failing.end()) {
            m_failing.emplace(channel, Failing{0, m_clock.now() + retryDelay(0)});
        } else if (timeLeft(known->second) <= 0ms) {
            const unsigned failed = ++known->second.failedRetries;
            known->second.retryAt = m_clock.now() + retryDelay(failed);
        }
    }
    arm();
}

void LoadRetries::setActive(bool active) {
    m_isActive = active;
    m_timer.reset();
    arm();
}

void LoadRetries::networkAppeared() {
    if (m_isActive && timeToNext()) {
        m_check();
    }
}

/// Whether the last load has failed, another one has not begun since, and another one could succeed.
bool LoadRetries::hasFailed(const ObjectId& channel) const {
    const std::shared_ptr<TVChannel> record = m_channels.channelWithChannelId(channel);
    const std::optional<LoadFailure> failure = record ? record->loadFailure() : std::nullopt;
    return failure && failure->reason != LoadFailureReason::NoSource;
}

std::chrono::milliseconds LoadRetries::timeLeft(const Failing& failing) const {
    const std::chrono::milliseconds left = failing.retryAt - m_clock.now();
    // The clock was set back.
    return left > retryDelay(failing.failedRetries) ? 0ms : left;
}

std::optional<std::chrono::milliseconds> LoadRetries::timeToNext() {
    std::optional<std::chrono::milliseconds> least;
    for (auto entry = m_failing.begin(); entry != m_failing.end();) {
        if (!m_channels.channelWithChannelId(entry->first)) {
            entry = m_failing.erase(entry); // deselected
            continue;
        }
        if (hasFailed(entry->first)) {
            least = std::min(least.value_or(std::chrono::milliseconds::max()), timeLeft(entry->second));
        }
        ++entry;
    }
    return least;
}

void LoadRetries::arm() {
    const auto left = m_isActive ? timeToNext() : std::nullopt;
    if (!left) {
        m_timer.reset();
        return;
    }
    const std::chrono::milliseconds wait = std::max(*left, kLeastWait);
    const Moment at = m_clock.now() + wait;
    if (m_timer && *m_timer <= at && *m_timer > m_clock.now()) {
        return;
    }
    m_timer = std::make_shared<const Moment>(at);
    m_mainQueue.asyncAfter(wait, [this, timer = std::weak_ptr(m_timer)] {
        if (!timer.expired()) {
            fire();
        }
    });
}

void LoadRetries::fire() {
    m_timer.reset();
    if (const auto left = timeToNext(); left && *left <= 0ms) {
        // The loads that it begins arm the timer again.
        m_check();
    } else {
        arm();
    }
}

} // namespace guide
