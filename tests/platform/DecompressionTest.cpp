#include "platform/Decompression.h"

#include <gtest/gtest.h>
#include <lzma.h>
#include <random>
#include <zlib.h>

namespace guide {
namespace {

constexpr int kGzip = 31;
constexpr int kZlib = 15;
constexpr DecompressionLimits kLimits{std::uint64_t{1} << 30};

/// Text that packs about as well as a feed does.
QByteArray feed(qsizetype size) {
    std::minstd_rand random(7);
    QByteArray bytes;
    bytes.reserve(size + 64);
    while (bytes.size() < size) {
        bytes += "<programme start=\"2025123118" + QByteArray::number(uint(random() % 60)) + "00\"><title>" +
                 QByteArray::number(uint(random() % 5000)) + "</title></programme>\n";
    }
    bytes.truncate(size);
    return bytes;
}

QByteArray deflated(const QByteArray& content, int windowBits = kGzip) {
    z_stream stream{};
    EXPECT_EQ(deflateInit2(&stream, 6, Z_DEFLATED, windowBits, 8, Z_DEFAULT_STRATEGY), Z_OK);
    QByteArray input = content;
    QByteArray packed(static_cast<qsizetype>(deflateBound(&stream, static_cast<uLong>(content.size()))),
                      '\0');
    stream.next_in = reinterpret_cast<Bytef*>(input.data());
    stream.avail_in = static_cast<uInt>(input.size());
    stream.next_out = reinterpret_cast<Bytef*>(packed.data());
    stream.avail_out = static_cast<uInt>(packed.size());
    EXPECT_EQ(deflate(&stream, Z_FINISH), Z_STREAM_END);
    packed.truncate(static_cast<qsizetype>(stream.total_out));
    deflateEnd(&stream);
    return packed;
}

QByteArray xz(const QByteArray& content, std::uint32_t preset = 6) {
    QByteArray packed(
        static_cast<qsizetype>(lzma_stream_buffer_bound(static_cast<std::size_t>(content.size()))), '\0');
    std::size_t size = 0;
    EXPECT_EQ(lzma_easy_buffer_encode(preset, LZMA_CHECK_CRC64, nullptr,
                                      reinterpret_cast<const std::uint8_t*>(content.constData()),
                                      static_cast<std::size_t>(content.size()),
                                      reinterpret_cast<std::uint8_t*>(packed.data()), &size,
                                      static_cast<std::size_t>(packed.size())),
              LZMA_OK);
    packed.truncate(static_cast<qsizetype>(size));
    return packed;
}

QByteArray flipped(QByteArray bytes, qsizetype at) {
    bytes[at] = static_cast<char>(bytes.at(at) ^ 0x10);
    return bytes;
}

TEST(DecompressionTest, Gzip) {
    const QByteArray large = feed(400'000);
    const QByteArray packed = deflated(large);
    const QByteArray small = deflated("small");
    const QByteArray chunk(0x20000, 'c');
    struct Case {
        const char* name;
        QByteArray data;
        std::optional<QByteArray> expected;
    };
    const std::vector<Case> cases{
        {"one member", packed, large},
        {"of no content", deflated(""), QByteArray()},
        {"of one chunk exactly", deflated(chunk), chunk},
        {"far beyond four times", deflated(QByteArray(900'000, 'x')), QByteArray(900'000, 'x')},
        {"three members, the last one small", packed + packed + small, large + large + "small"},
        {"a last member that hides the size of the first", deflated(QByteArray(900'000, 'x')) + deflated(""),
         QByteArray(900'000, 'x')},
        {"padding behind", packed + QByteArray(512, '\0'), large},
        {"rubbish behind", packed + "rubbish", large},
        {"damaged second member", packed + flipped(small, 12), std::nullopt},
        {"damaged content", flipped(packed, packed.size() / 2), std::nullopt},
        {"damaged checksum", flipped(packed, packed.size() - 6), std::nullopt},
        {"zlib wrapper", deflated(large, kZlib), std::nullopt},
        {"no gzip at all", large, std::nullopt},
        {"nothing", "", std::nullopt},
        {"checksum cut off", packed.chopped(8), large},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(dataWithCompressedData(each.data, kLimits), each.expected) << each.name;
    }
    const std::optional<QByteArray> part = dataWithCompressedData(packed.left(packed.size() / 2), kLimits);
    ASSERT_TRUE(part);
    EXPECT_GT(part->size(), 100'000);
    EXPECT_TRUE(large.startsWith(*part));
}

TEST(DecompressionTest, GzipBombGivesNothing) {
    constexpr DecompressionLimits limits{4'000'000};
    const QByteArray fits = deflated(QByteArray(1'000'000, 'b'));
    EXPECT_EQ(dataWithCompressedData(fits, limits)->size(), 1'000'000);
    EXPECT_FALSE(dataWithCompressedData(deflated(QByteArray(1'000'001, 'b')), limits));
    EXPECT_FALSE(dataWithCompressedData(fits + deflated("x"), limits));
    EXPECT_FALSE(dataWithCompressedData(deflated(QByteArray(50'000'000, 'b')), limits));
}

TEST(DecompressionTest, Xz) {
    const QByteArray large = feed(400'000);
    const QByteArray packed = xz(large);
    const QByteArray bomb = xz(QByteArray(400'000, 'b'));
    struct Case {
        const char* name;
        QByteArray data;
        std::optional<QByteArray> expected;
    };
    const std::vector<Case> cases{
        {"one stream", packed, large},
        {"two streams, padded", packed + QByteArray(8, '\0') + packed, large + large},
        {"rubbish behind", packed + "rubbish", large},
        {"what fits into 23 times the size", bomb, QByteArray(bomb.size() * 23, 'b')},
        {"damaged content", flipped(packed, packed.size() / 2), std::nullopt},
        {"cut short", packed.chopped(1), std::nullopt},
        {"half", packed.left(packed.size() / 2), std::nullopt},
        {"of no content", xz(""), std::nullopt},
        {"no xz at all", large, std::nullopt},
        {"nothing", "", std::nullopt},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(dataWithXzData(each.data, kLimits), each.expected) << each.name;
    }
    // A machine with less memory than the decoder wants, and one with room for a part.
    EXPECT_FALSE(dataWithXzData(packed, {1'000'000}));
    const QByteArray noise = deflated(feed(1'000'000));
    const std::optional<QByteArray> part =
        dataWithXzData(xz(noise + QByteArray(3'000'000, 'b'), 0), {4'000'000});
    ASSERT_TRUE(part);
    EXPECT_EQ(part->size(), 1'000'000);
    EXPECT_TRUE(part->startsWith(noise + "bbb"));
}

TEST(DecompressionTest, KnowsPackedFilesByTheirFirstBytes) {
    EXPECT_TRUE(hasGzipSignature(deflated("x")));
    EXPECT_TRUE(hasXzSignature(xz("x")));
    EXPECT_FALSE(hasGzipSignature(xz("x")) || hasXzSignature(deflated("x")));
    EXPECT_FALSE(hasGzipSignature("\x1f") || hasXzSignature("\xfd"
                                                            "7zXZ"));
}

} // namespace
} // namespace guide
