#pragma once

#include <functional>

namespace guide {

/// A uniformly random index below the bound, which is at least 1. Any thread.
using RandomIndex = std::function<unsigned(unsigned bound)>;

/// Draws from the system's random generator.
RandomIndex systemRandomIndex();

} // namespace guide
