#pragma once

#include "platform/LifeCycle.h"

#include <atomic>

namespace guide {

class FakeApplicationState final : public ApplicationStateSource {
  public:
    ApplicationState applicationState() const override { return state; }

    std::atomic<ApplicationState> state = ApplicationState::Active;
};

} // namespace guide
