#pragma once

#include <cstddef>

namespace guide::fuzz {

/// How much memory is held at once between two moments, by what this process allocates. Needs the address
/// sanitizer's allocator; one at a time.
class MemoryWatch {
  public:
    MemoryWatch();
    /// The most bytes that were held at once since the watch was made, beyond those that were held then.
    std::size_t peak() const;
};

} // namespace guide::fuzz
