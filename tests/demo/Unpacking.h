#pragma once

#include <QByteArray>

#include <array>
#include <cstdint>
#include <lzma.h>
#include <optional>
#include <zlib.h>

namespace guide::tests {

struct Unpacked {
    /// The stream ended where and how it should.
    bool whole = false;
    std::uint64_t size = 0;
    /// The first bytes, no more than were asked for.
    QByteArray begin;
};

inline Unpacked ungzipped(const QByteArray& packed, qsizetype keep) {
    Unpacked result;
    z_stream stream{};
    inflateInit2(&stream, MAX_WBITS + 16);
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(packed.constData()));
    stream.avail_in = uInt(packed.size());
    std::array<char, 1 << 16> chunk;
    int code = Z_OK;
    while (code == Z_OK) {
        stream.next_out = reinterpret_cast<Bytef*>(chunk.data());
        stream.avail_out = uInt(chunk.size());
        code = inflate(&stream, Z_NO_FLUSH);
        const auto made = qsizetype(chunk.size() - stream.avail_out);
        result.size += std::uint64_t(made);
        result.begin.append(chunk.data(), std::min(made, keep - result.begin.size()));
    }
    result.whole = code == Z_STREAM_END && stream.avail_in == 0;
    inflateEnd(&stream);
    return result;
}

inline Unpacked unxz(const QByteArray& packed, qsizetype keep) {
    Unpacked result;
    lzma_stream stream = LZMA_STREAM_INIT;
    if (lzma_stream_decoder(&stream, std::uint64_t(256) << 20, 0) != LZMA_OK) {
        return result;
    }
    stream.next_in = reinterpret_cast<const std::uint8_t*>(packed.constData());
    stream.avail_in = std::size_t(packed.size());
    std::array<char, 1 << 16> chunk;
    lzma_ret code = LZMA_OK;
    while (code == LZMA_OK) {
        stream.next_out = reinterpret_cast<std::uint8_t*>(chunk.data());
        stream.avail_out = chunk.size();
        code = lzma_code(&stream, LZMA_FINISH);
        const auto made = qsizetype(chunk.size() - stream.avail_out);
        result.size += std::uint64_t(made);
        result.begin.append(chunk.data(), std::min(made, keep - result.begin.size()));
    }
    result.whole = code == LZMA_STREAM_END && stream.avail_in == 0;
    lzma_end(&stream);
    return result;
}

} // namespace guide::tests
