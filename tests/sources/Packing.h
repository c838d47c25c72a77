#pragma once

#include <QByteArray>

#include <lzma.h>
#include <zlib.h>

namespace guide {

/// The bytes as a gzip file.
inline QByteArray gzipped(const QByteArray& content) {
    constexpr int kGzipWindow = 31;
    z_stream stream{};
    deflateInit2(&stream, Z_BEST_COMPRESSION, Z_DEFLATED, kGzipWindow, 8, Z_DEFAULT_STRATEGY);
    QByteArray packed(static_cast<qsizetype>(deflateBound(&stream, static_cast<uLong>(content.size()))),
                      '\0');
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(content.constData()));
    stream.avail_in = static_cast<uInt>(content.size());
    stream.next_out = reinterpret_cast<Bytef*>(packed.data());
    stream.avail_out = static_cast<uInt>(packed.size());
    deflate(&stream, Z_FINISH);
    packed.truncate(static_cast<qsizetype>(stream.total_out));
    deflateEnd(&stream);
    return packed;
}

/// The bytes as an xz file.
inline QByteArray xzPacked(const QByteArray& content) {
    QByteArray packed(static_cast<qsizetype>(lzma_stream_buffer_bound(static_cast<size_t>(content.size()))),
                      '\0');
    size_t size = 0;
    lzma_easy_buffer_encode(6, LZMA_CHECK_CRC64, nullptr,
                            reinterpret_cast<const uint8_t*>(content.constData()),
                            static_cast<size_t>(content.size()), reinterpret_cast<uint8_t*>(packed.data()),
                            &size, static_cast<size_t>(packed.size()));
    packed.truncate(static_cast<qsizetype>(size));
    return packed;
}

} // namespace guide
