#pragma once

#include <functional>

namespace guide {

/// A uniformly random index below the bound, which is at least 1. May be called from any thread.
using RandomIndex = std::function<unsigned(unsigned bound)>;

/// The system's random numbers.
RandomIndex systemRandomIndex();

} // namespace guide
