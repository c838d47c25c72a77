#pragma once

#include <QByteArrayView>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

namespace guide {

/// Packed bytes, read in order.
class PackedInput {
  public:
    virtual ~PackedInput() = default;
    /// The next bytes: at least `least` of them, or all that are left. Valid until the next call.
    virtual QByteArrayView peek(qsizetype least) = 0;
    /// Takes the first `count` bytes of what was peeked at.
    virtual void skip(qsizetype count) = 0;
};

/// Packed bytes that are in memory.
class PackedBytes final : public PackedInput {
  public:
    explicit PackedBytes(QByteArrayView data)
        : m_rest(data) {}
    QByteArrayView peek(qsizetype) override { return m_rest; }
    void skip(qsizetype count) override { m_rest = m_rest.sliced(count); }

  private:
    QByteArrayView m_rest;
};

enum class UnpackState {
    More,
    /// Everything was read to its checksum.
    Complete,
    /// The input ended early; everything in it was unpacked.
    CutShort,
    Damaged,
};

/// A decoder that can be paused anywhere. Bytes after the packed content are ignored.
class Unpacker {
  public:
    virtual ~Unpacker() = default;
    /// Unpacks the next bytes into `room`, which must not be empty, and sets `written` to their number, which
    /// may be 0 while more follow.
    virtual UnpackState unpack(PackedInput& input, std::span<char> room, std::size_t& written) = 0;
};

/// The size as the libraries count it, in 32 bits.
inline std::uint32_t unpackStep(std::size_t size) {
    return static_cast<std::uint32_t>(std::min(size, std::size_t{1} << 30));
}

/// Unpacks every member of a gzip file.
std::unique_ptr<Unpacker> zlibGzipUnpacker();

/// The same at two to three times the speed. Ends with Damaged for an incomplete file, after unpacking an
/// unspecified part of it, and for header fields that this decoder does not check (header checksum, reserved
/// flags). Accepts some code tables that zlib rejects, provided that every checksum matches. Null in a build
/// without the library.
std::unique_ptr<Unpacker> isalGzipUnpacker();

/// Unpacks every stream of an xz file. `memoryLimit` is in bytes; a file that needs more is damaged.
std::unique_ptr<Unpacker> xzUnpacker(std::uint64_t memoryLimit);

} // namespace guide
