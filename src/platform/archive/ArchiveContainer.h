#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <cstddef>
#include <cstdint>
#include <optional>

namespace guide {

/// Size of the header (signature, version and checksum) in front of the content, in bytes.
inline constexpr std::size_t kArchiveHeaderSize = 20;

/// Writes the header into the first kArchiveHeaderSize bytes of an archive whose content follows them.
void sealArchive(QByteArray& archive);

/// The content of a sealed archive; empty when the bytes are not an archive, have another version, or are
/// truncated or damaged.
std::optional<QByteArrayView> archiveContent(QByteArrayView archive);

/// A fast 64-bit checksum. A change within one aligned run of eight bytes always changes it, any other change
/// with a probability of 1 - 2^-64. It does not protect against forgery.
std::uint64_t contentChecksum(QByteArrayView content);

} // namespace guide
