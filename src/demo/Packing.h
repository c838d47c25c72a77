#pragma once

#include <QByteArray>

#include <cstdint>

namespace guide {

/// The bytes as a gzip file, and as an xz file. They fail only when memory does: then the result is empty.
QByteArray gzipped(const QByteArray& bytes);
QByteArray xzPacked(const QByteArray& bytes);

/// Small files that unpack to so many blanks. Made in the time that the small file takes, not the large one.
QByteArray gzipBomb(std::uint64_t unpackedSize);
QByteArray xzBomb(std::uint64_t unpackedSize);

} // namespace guide
