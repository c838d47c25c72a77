#pragma once

#include "platform/Clock.h"

#include <functional>
#include <utility>
#include <vector>

namespace guide {

/// A clock that shows the same moment until it is set. Starts on 31 December 2025, 18:30 UTC.
class ManualClock final : public Clock {
  public:
    ManualClock() = default;
    explicit ManualClock(Moment start)
        : m_now(start) {}

    Moment now() const override { return m_now; }

    void set(Moment moment) {
        m_now = moment;
        for (const auto& moved : m_moved) {
            moved();
        }
    }
    void advance(std::chrono::milliseconds span) { set(m_now + span); }

    /// Calls the function after every change.
    void onMove(std::function<void()> moved) { m_moved.push_back(std::move(moved)); }

  private:
    Moment m_now = std::chrono::sys_days(std::chrono::year(2025) / 12 / 31) + std::chrono::hours(18) +
                   std::chrono::minutes(30);
    std::vector<std::function<void()>> m_moved;
};

} // namespace guide
