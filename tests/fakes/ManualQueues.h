#pragma once

#include "platform/memory/SteppedQueues.h"

#include <gtest/gtest.h>

namespace guide {

/// Stepped queues that fail the test where real ones would deadlock.
class ManualQueues final : public SteppedQueues {
  public:
    explicit ManualQueues(ManualClock& clock)
        : SteppedQueues(clock, [](const std::string& what) { ADD_FAILURE() << what; }) {}
};

} // namespace guide
