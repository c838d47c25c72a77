#pragma once

#include "platform/Clock.h"

namespace guide::probe {

/// A clock that stands at the moment that counts as now.
class StandingClock final : public Clock {
  public:
    explicit StandingClock(Moment now)
        : m_now(now) {}
    Moment now() const override { return m_now; }

  private:
    Moment m_now;
};

} // namespace guide::probe
