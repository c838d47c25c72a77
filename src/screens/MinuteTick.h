#pragma once

#include "platform/Clock.h"
#include "platform/LifeCycle.h"
#include "platform/queues/DispatchQueue.h"

#include <cstdint>
#include <functional>
#include <memory>

namespace guide {

/// Calls a screen right after each full minute of the clock, while the screen is visible and the application
/// active. Each call sets the timer for the next minute by the clock, so that neither delays nor a clock that
/// was set add up. Main queue.
class MinuteTick {
  public:
    MinuteTick(const Clock& clock, DispatchQueue& mainQueue, const ApplicationStateSource& applicationState)
        : m_clock(clock)
        , m_mainQueue(mainQueue)
        , m_applicationState(applicationState) {}

    /// The screen has appeared; `owner` contains this object.
    void start(const std::weak_ptr<const void>& owner, std::function<void()> minuteBegan);
    /// The screen has disappeared.
    void stop();
    /// The application has become active, or the clock was set. Does nothing while the screen is not visible.
    void resume();

  private:
    void setTimer();

    const Clock& m_clock;
    DispatchQueue& m_mainQueue;
    const ApplicationStateSource& m_applicationState;
    std::weak_ptr<const void> m_owner;
    /// Empty while the screen is not visible.
    std::function<void()> m_minuteBegan;
    /// Of the latest timer; earlier ones do nothing.
    std::uint64_t m_timer = 0;
};

} // namespace guide
