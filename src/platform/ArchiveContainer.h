#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <cstddef>
#include <cstdint>
#include <optional>

namespace guide {

/// How many bytes stand before the content of an archive: signature, version and checksum.
inline constexpr std::size_t kArchiveHeaderSize = 20;

/// Fills in the first kArchiveHeaderSize bytes of an archive whose content already follows them.
void sealArchive(QByteArray& archive);

/// The content of a sealed archive; nothing when the bytes are none, of another version, cut short or
/// damaged.
std::optional<QByteArrayView> archiveContent(QByteArrayView archive);

/// A 64-bit checksum at memory speed: any change within one aligned run of eight bytes changes it for
/// certain, any other but for one chance in 2^64. No protection against a forger.
std::uint64_t contentChecksum(QByteArrayView content);

} // namespace guide
