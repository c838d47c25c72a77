#pragma once

#include "platform/Clock.h"

#include <chrono>
#include <optional>

namespace guide {

/// The system's clock, or one that starts at a given moment and runs at the same pace, even while the machine
/// sleeps.
class LinuxClock final : public Clock {
  public:
    explicit LinuxClock(std::optional<Moment> startAt = std::nullopt);

    Moment now() const override;

  private:
    const std::optional<Moment> m_startAt;
    const std::chrono::milliseconds m_started;
};

} // namespace guide
