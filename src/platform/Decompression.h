#pragma once

#include "platform/TakePiece.h"

#include <QByteArray>
#include <QByteArrayView>

#include <cstdint>
#include <optional>

namespace guide {

/// How far unpacking goes on this device.
struct DecompressionLimits {
    /// Bytes of the machine's memory.
    std::uint64_t physicalMemory = 0;

    /// A gzip file that unpacks to more is taken for a bomb: a quarter of the memory, and a gibibyte at most.
    std::uint64_t gzipLimit() const;
    /// What the decoder delivers at most of an xz file of that size: a quarter of the memory, or 23 times the
    /// size when that is less.
    std::uint64_t xzLimit(std::uint64_t packedSize) const;
};

/// The bytes begin as a gzip file does.
bool hasGzipSignature(QByteArrayView data);
/// The bytes begin as an xz file does.
bool hasXzSignature(QByteArrayView data);

/// The content of a gzip file, all its members joined; what follows them is left. Of a file that is cut
/// short, what came. Nothing, and a log line, when it is damaged, no gzip file at all, or over the limit.
std::optional<QByteArray> dataWithCompressedData(QByteArrayView data, const DecompressionLimits& limits);

/// The same content, in order, in pieces of at most 256 KB. False when
/// dataWithCompressedData gives nothing, or when a piece was refused; what was taken until then is a prefix.
bool unpackCompressedData(QByteArrayView data, const DecompressionLimits& limits, const TakePiece& takePiece);

/// The content of an xz file, all its streams joined; of one that unpacks to more than the limit, what fits.
/// Nothing when it is damaged, cut short, empty, or needs more memory than a quarter of the machine's.
std::optional<QByteArray> dataWithXzData(QByteArrayView data, const DecompressionLimits& limits);

} // namespace guide
