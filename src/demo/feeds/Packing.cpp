#include "demo/feeds/Packing.h"

#include <lzma.h>
#include <zlib.h>

namespace guide {

namespace {

constexpr int kMemoryLevel = 8;

} // namespace

QByteArray gzipped(const QByteArray& bytes, int windowBits) {
    z_stream stream{};
    if (deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, windowBits, kMemoryLevel,
                     Z_DEFAULT_STRATEGY) != Z_OK) {
        return {};
    }
    QByteArray packed(qsizetype(deflateBound(&stream, uLong(bytes.size()))), Qt::Uninitialized);
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.constData()));
    stream.avail_in = uInt(bytes.size());
    stream.next_out = reinterpret_cast<Bytef*>(packed.data());
    stream.avail_out = uInt(packed.size());
    const int end = deflate(&stream, Z_FINISH);
    packed.truncate(end == Z_STREAM_END ? qsizetype(stream.total_out) : 0);
    deflateEnd(&stream);
    return packed;
}

QByteArray xzPacked(const QByteArray& bytes, std::uint32_t preset) {
    QByteArray packed(qsizetype(lzma_stream_buffer_bound(std::size_t(bytes.size()))), Qt::Uninitialized);
    std::size_t size = 0;
    const lzma_ret end = lzma_easy_buffer_encode(
        preset, LZMA_CHECK_CRC64, nullptr, reinterpret_cast<const std::uint8_t*>(bytes.constData()),
        std::size_t(bytes.size()), reinterpret_cast<std::uint8_t*>(packed.data()), &size,
        std::size_t(packed.size()));
    packed.truncate(end == LZMA_OK ? qsizetype(size) : 0);
    return packed;
}

} // namespace guide
