#include "screens/MinuteTick.h"

#include <chrono>
#include <utility>

namespace guide {

namespace {

// A show that ends at the full minute still counts as running at that very moment.
constexpr std::chrono::milliseconds kAfterMinute{1};

std::chrono::milliseconds untilNextMinute(Moment now) {
    return std::chrono::floor<std::chrono::minutes>(now - kAfterMinute) + std::chrono::minutes(1) +
           kAfterMinute - now;
}

} // namespace

void MinuteTick::start(const std::weak_ptr<const void>& owner, std::function<void()> minuteBegan) {
    m_owner = owner;
    m_minuteBegan = std::move(minuteBegan);
    setTimer();
}

void MinuteTick::stop() {
    m_minuteBegan = nullptr;
    ++m_timer;
}

void MinuteTick::resume() {
    if (m_minuteBegan) {
        setTimer();
    }
}

void MinuteTick::setTimer() {
    ++m_timer;
    if (m_applicationState.applicationState() != ApplicationState::Active) {
        return;
    }
    m_mainQueue.asyncAfter(untilNextMinute(m_clock.now()), [this, owner = m_owner, timer = m_timer] {
        const auto alive = owner.lock();
        if (!alive || timer != m_timer || m_applicationState.applicationState() != ApplicationState::Active) {
            return;
        }
        setTimer();
        // A copy, because the call may stop the tick.
        const std::function<void()> minuteBegan = m_minuteBegan;
        minuteBegan();
    });
}

} // namespace guide
