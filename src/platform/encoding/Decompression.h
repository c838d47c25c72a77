#pragma once

#include "platform/TakePiece.h"

#include <QByteArray>
#include <QByteArrayView>

#include <cstdint>
#include <optional>

namespace guide {

/// Bounds for unpacked sizes on this device.
struct DecompressionLimits {
    /// In bytes.
    std::uint64_t physicalMemory = 0;

    /// The largest unpacked size of a gzip file: a quarter of the memory, at most 1 GiB. A larger one is
    /// treated as a decompression bomb.
    std::uint64_t gzipLimit() const;
    /// The largest unpacked size of an xz file of the given size: a quarter of the memory or 23 times the
    /// packed size, whichever is less.
    std::uint64_t xzLimit(std::uint64_t packedSize) const;
};

bool hasGzipSignature(QByteArrayView data);
bool hasXzSignature(QByteArrayView data);

/// Unpacks a gzip file: all members joined, bytes after the last one ignored. Of a truncated file it returns
/// what could be unpacked. Empty, with a log line, when the data is damaged, not gzip, or over the limit.
///
/// With `incomplete`, of a damaged file too it returns what could be unpacked, if there is any, and sets
/// `incomplete` for both.
std::optional<QByteArray> dataWithCompressedData(QByteArrayView data, const DecompressionLimits& limits,
                                                 bool* incomplete = nullptr);

/// Delivers the same content in order, in pieces of at most 256 KB. False when dataWithCompressedData would
/// return nothing or a piece was refused; the pieces delivered until then are a prefix of the content.
bool unpackCompressedData(QByteArrayView data, const DecompressionLimits& limits, const TakePiece& takePiece);

/// Unpacks an xz file: all streams joined, truncated at the limit. Empty when the data is damaged, truncated
/// or empty, or when unpacking needs more than a quarter of the memory. `incomplete` as above; it is also set
/// for a file that exceeds the limit.
std::optional<QByteArray> dataWithXzData(QByteArrayView data, const DecompressionLimits& limits,
                                         bool* incomplete = nullptr);

} // namespace guide
