#pragma once

#include "platform/Moment.h"

namespace guide {

/// The only source of "now". May be called from any thread.
class Clock {
  public:
    virtual ~Clock() = default;
    virtual Moment now() const = 0;
};

} // namespace guide
