#include "platform/Decompression.h"

#include "fakes/Packing.h"

#include <gtest/gtest.h>
#include <random>

namespace guide {
namespace {

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

QByteArray flipped(QByteArray bytes, qsizetype at) {
    bytes[at] = static_cast<char>(bytes.at(at) ^ 0x10);
    return bytes;
}

TEST(DecompressionTest, Gzip) {
    const QByteArray large = feed(400'000);
    const QByteArray packed = gzipped(large);
    const QByteArray small = gzipped("small");
    const QByteArray chunk(0x20000, 'c');
    struct Case {
        const char* name;
        QByteArray data;
        std::optional<QByteArray> expected;
    };
    const std::vector<Case> cases{
        {"one member", packed, large},
        {"of no content", gzipped(""), QByteArray()},
        {"of one chunk exactly", gzipped(chunk), chunk},
        {"far beyond four times", gzipped(QByteArray(900'000, 'x')), QByteArray(900'000, 'x')},
        {"three members, the last one small", packed + packed + small, large + large + "small"},
        {"a last member that hides the size of the first", gzipped(QByteArray(900'000, 'x')) + gzipped(""),
         QByteArray(900'000, 'x')},
        {"padding behind", packed + QByteArray(512, '\0'), large},
        {"rubbish behind", packed + "rubbish", large},
        {"damaged second member", packed + flipped(small, 12), std::nullopt},
        {"damaged content", flipped(packed, packed.size() / 2), std::nullopt},
        {"damaged checksum", flipped(packed, packed.size() - 6), std::nullopt},
        {"zlib wrapper", gzipped(large, kZlibWindow), std::nullopt},
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
    const QByteArray fits = gzipped(QByteArray(1'000'000, 'b'));
    EXPECT_EQ(dataWithCompressedData(fits, limits)->size(), 1'000'000);
    EXPECT_FALSE(dataWithCompressedData(gzipped(QByteArray(1'000'001, 'b')), limits));
    EXPECT_FALSE(dataWithCompressedData(fits + gzipped("x"), limits));
    EXPECT_FALSE(dataWithCompressedData(gzipped(QByteArray(50'000'000, 'b')), limits));
}

TEST(DecompressionTest, Xz) {
    const QByteArray large = feed(400'000);
    const QByteArray packed = xzPacked(large);
    const QByteArray bomb = xzPacked(QByteArray(400'000, 'b'));
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
        {"of no content", xzPacked(""), std::nullopt},
        {"no xz at all", large, std::nullopt},
        {"nothing", "", std::nullopt},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(dataWithXzData(each.data, kLimits), each.expected) << each.name;
    }
    // A machine with less memory than the decoder wants, and one with room for a part.
    EXPECT_FALSE(dataWithXzData(packed, {1'000'000}));
    const QByteArray noise = gzipped(feed(1'000'000));
    const std::optional<QByteArray> part =
        dataWithXzData(xzPacked(noise + QByteArray(3'000'000, 'b'), 0), {4'000'000});
    ASSERT_TRUE(part);
    EXPECT_EQ(part->size(), 1'000'000);
    EXPECT_TRUE(part->startsWith(noise + "bbb"));
}

TEST(DecompressionTest, KnowsPackedFilesByTheirFirstBytes) {
    EXPECT_TRUE(hasGzipSignature(gzipped("x")));
    EXPECT_TRUE(hasXzSignature(xzPacked("x")));
    EXPECT_FALSE(hasGzipSignature(xzPacked("x")) || hasXzSignature(gzipped("x")));
    EXPECT_FALSE(hasGzipSignature("\x1f") || hasXzSignature("\xfd"
                                                            "7zXZ"));
}

} // namespace
} // namespace guide
