#pragma once

#include <QByteArrayView>

#include <cstddef>
#include <span>

namespace guide {

/// Where a decoder puts what it unpacks.
class GzipOutput {
  public:
    virtual ~GzipOutput() = default;
    /// Where the next bytes go. Not empty.
    virtual std::span<char> room() = 0;
    /// Takes the first `count` bytes of the room; false ends the unpacking.
    virtual bool take(std::size_t count) = 0;
};

enum class GzipEnd {
    /// Every member was read to its checksum.
    Complete,
    /// The output ended it.
    Stopped,
    /// The input ended within a member; everything that it holds was unpacked.
    CutShort,
    Damaged,
};

/// Unpacks every member of a gzip file, and leaves what follows the last one.
GzipEnd inflateWithZlib(QByteArrayView data, GzipOutput& output);

/// The same at two to three times the speed. A file that is not complete ends as Damaged, with an unspecified
/// part unpacked; so does one with header fields that this decoder does not check (a checksum of the header,
/// reserved flags). Of the code tables of a block, some that zlib rejects are accepted, where every checksum
/// fits nevertheless.
GzipEnd inflateWithIsal(QByteArrayView data, GzipOutput& output);

/// False in a build without the library; inflateWithIsal then always ends as Damaged.
bool hasIsal();

} // namespace guide
