#pragma once

#include <QByteArray>

#include <cstdint>

namespace guide {

inline constexpr int kGzipWindow = 31;

/// The bytes as a gzip file, or with the wrapper that zlib uses for other window bits. Empty when memory runs
/// out.
QByteArray gzipped(const QByteArray& bytes, int windowBits = kGzipWindow);
/// The bytes as an xz file. Empty when memory runs out.
QByteArray xzPacked(const QByteArray& bytes, std::uint32_t preset = 6);

} // namespace guide
