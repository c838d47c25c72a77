#pragma once

#include <cstddef>

namespace guide::fuzz {

/// Measures the peak of this process's allocations. Needs the address sanitizer's allocator; only one
/// instance at a time.
class MemoryWatch {
  public:
    MemoryWatch();
    /// The highest number of bytes allocated at once since construction, beyond those allocated before it.
    std::size_t peak() const;
};

} // namespace guide::fuzz
