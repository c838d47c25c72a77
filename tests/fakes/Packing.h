#pragma once

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <lzma.h>
#include <zlib.h>

namespace guide {

constexpr int kGzipWindow = 31;
constexpr int kZlibWindow = 15;

/// The bytes as a gzip file, or in another wrapper.
inline QByteArray gzipped(QByteArray content, int windowBits = kGzipWindow) {
    z_stream stream{};
    deflateInit2(&stream, 6, Z_DEFLATED, windowBits, 8, Z_DEFAULT_STRATEGY);
    QByteArray packed(static_cast<qsizetype>(deflateBound(&stream, static_cast<uLong>(content.size()))),
                      '\0');
    stream.next_in = reinterpret_cast<Bytef*>(content.data());
    stream.avail_in = static_cast<uInt>(content.size());
    stream.next_out = reinterpret_cast<Bytef*>(packed.data());
    stream.avail_out = static_cast<uInt>(packed.size());
    deflate(&stream, Z_FINISH);
    packed.truncate(static_cast<qsizetype>(stream.total_out));
    deflateEnd(&stream);
    return packed;
}

/// The bytes as an xz file.
inline QByteArray xzPacked(const QByteArray& content, std::uint32_t preset = 6) {
    const auto size = static_cast<std::size_t>(content.size());
    QByteArray packed(static_cast<qsizetype>(lzma_stream_buffer_bound(size)), '\0');
    std::size_t written = 0;
    lzma_easy_buffer_encode(
        preset, LZMA_CHECK_CRC64, nullptr, reinterpret_cast<const std::uint8_t*>(content.constData()), size,
        reinterpret_cast<std::uint8_t*>(packed.data()), &written, static_cast<std::size_t>(packed.size()));
    packed.truncate(static_cast<qsizetype>(written));
    return packed;
}

} // namespace guide
