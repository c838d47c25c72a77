#pragma once

#include "platform/encoding/Unpacker.h"

#include <QByteArrayView>

#include <cstddef>
#include <span>

namespace guide {

/// Receives the unpacked bytes from a decoder.
class GzipOutput {
  public:
    virtual ~GzipOutput() = default;
    /// The buffer for the next bytes; never empty.
    virtual std::span<char> room() = 0;
    /// Takes the first `count` bytes of the last room; returning false stops the decoder.
    virtual bool take(std::size_t count) = 0;
};

enum class GzipEnd {
    /// Every member was read to its checksum.
    Complete,
    /// The output stopped the decoder.
    Stopped,
    /// The input ended within a member; everything in it was unpacked.
    CutShort,
    Damaged,
};

/// Unpacks every member of a gzip file and ignores the bytes after the last one.
GzipEnd inflateWithZlib(QByteArrayView data, GzipOutput& output);

/// The same with the faster decoder and its deviations. Always Damaged in a build without it.
GzipEnd inflateWithIsal(QByteArrayView data, GzipOutput& output);

/// False in a build without the faster decoder.
bool hasIsal();

} // namespace guide
