#pragma once

#include <cstddef>
#include <span>

namespace guide {

/// A text in UTF-8, read in order.
class TextSource {
  public:
    virtual ~TextSource() = default;
    /// Writes the next bytes to `room`, which must not be empty, and returns their number; 0 at the end. A
    /// character may be divided between two calls.
    virtual std::size_t read(std::span<char> room) = 0;
};

} // namespace guide
