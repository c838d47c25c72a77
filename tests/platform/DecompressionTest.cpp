#include "platform/encoding/Decompression.h"

#include "fakes/Packing.h"
#include "platform/encoding/GzipInflate.h"

#include <QLoggingCategory>

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <random>
#include <tuple>

namespace guide {
namespace {

constexpr DecompressionLimits kLimits{std::uint64_t{1} << 30};

/// Text with about the compression ratio of a feed.
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

std::optional<QByteArray> inPieces(const QByteArray& data, const DecompressionLimits& limits) {
    QByteArray all("");
    const bool whole = unpackCompressedData(data, limits, [&all](QByteArrayView piece) {
        all += piece;
        return true;
    });
    return whole ? std::optional(all) : std::nullopt;
}

TEST(DecompressionTest, Gzip) {
    const QByteArray large = feed(400'000);
    const QByteArray packed = gzipped(large);
    const QByteArray small = gzipped("small");
    const QByteArray chunk(0x20000, 'c');
    const std::tuple<const char*, QByteArray, std::optional<QByteArray>> cases[] = {
        {"one member", packed, large},
        {"empty content", gzipped(""), QByteArray()},
        {"exactly one chunk", gzipped(chunk), chunk},
        {"ratio far above four", gzipped(QByteArray(900'000, 'x')), QByteArray(900'000, 'x')},
        {"three members, the last one small", packed + packed + small, large + large + "small"},
        {"last member smaller than the first", gzipped(QByteArray(900'000, 'x')) + gzipped(""),
         QByteArray(900'000, 'x')},
        {"trailing zeros", packed + QByteArray(512, '\0'), large},
        {"trailing garbage", packed + "garbage", large},
        {"damaged second member", packed + flipped(small, 12), std::nullopt},
        {"damaged content", flipped(packed, packed.size() / 2), std::nullopt},
        {"damaged checksum", flipped(packed, packed.size() - 6), std::nullopt},
        {"zlib wrapper", gzipped(large, kZlibWindow), std::nullopt},
        {"not gzip", large, std::nullopt},
        {"no data", "", std::nullopt},
        {"missing checksum", packed.chopped(8), large},
    };
    for (const auto& [name, data, expected] : cases) {
        EXPECT_EQ(dataWithCompressedData(data, kLimits), expected) << name;
        EXPECT_EQ(inPieces(data, kLimits), expected) << name;
    }
    const std::optional<QByteArray> part = dataWithCompressedData(packed.left(packed.size() / 2), kLimits);
    ASSERT_TRUE(part);
    EXPECT_GT(part->size(), 100'000);
    EXPECT_TRUE(large.startsWith(*part));
}

TEST(DecompressionTest, StopsAtARefusedPiece) {
    const QByteArray large = feed(1'000'000);
    QByteArray taken;
    EXPECT_FALSE(unpackCompressedData(gzipped(large), kLimits, [&](QByteArrayView piece) {
        taken += piece;
        return taken.size() < 500'000;
    }));
    EXPECT_GE(taken.size(), 500'000);
    EXPECT_LT(taken.size(), 900'000);
    EXPECT_TRUE(large.startsWith(taken));
}

#ifdef QUELLIN_ISAL

class Collected final : public GzipOutput {
  public:
    std::span<char> room() override { return m_room; }
    bool take(std::size_t count) override {
        bytes.append(m_room.data(), static_cast<qsizetype>(count));
        return bytes.size() <= kMost;
    }

    static constexpr qsizetype kMost = 200'000;
    QByteArray bytes;

  private:
    std::array<char, 40'000> m_room;
};

/// A gzip file that is joined with others, truncated, extended or damaged.
QByteArray mutated(const std::vector<QByteArray>& files, std::minstd_rand& random) {
    const auto below = [&random](qsizetype bound) { return static_cast<qsizetype>(random()) % bound; };
    QByteArray file = files[random() % files.size()];
    for (auto members = below(3); members > 0; --members) {
        file += files[random() % files.size()];
    }
    // The checksum of the content does not cover header and trailer.
    const QByteArray forms[] = {file,
                                file.left(below(file.size() + 1)),
                                flipped(file, below(std::min<qsizetype>(12, file.size()))),
                                flipped(file, file.size() - 1 - below(10)),
                                file + QByteArray(below(40), static_cast<char>(below(256))),
                                flipped(flipped(file, below(file.size())), below(file.size()))};
    return forms[below(6)];
}

TEST(DecompressionTest, BothGzipDecodersAgree) {
    ASSERT_TRUE(hasIsal());
    QByteArray noise(40'000, Qt::Uninitialized);
    std::minstd_rand random(3);
    std::generate(noise.begin(), noise.end(), [&random] { return static_cast<char>(random() >> 8); });
    // A header with every field that needs no check: text flag, extra field, name and comment.
    const QByteArray fields =
        QByteArray("\x1f\x8b\x08\x1d\0\0\0\0\0\x03\x02\0xy", 14) + QByteArray("name\0comment\0", 13);
    const std::vector<QByteArray> files{gzipped(feed(60'000)),
                                        gzipped(noise),
                                        gzipped(""),
                                        gzipped(QByteArray(150'000, 'x')),
                                        fields + gzipped(feed(1'000)).sliced(10),
                                        gzipped(QByteArray(Collected::kMost + 1, 'b'))};
    QLoggingCategory::setFilterRules(QStringLiteral("default.info=false"));
    int complete = 0;
    for (int round = 0; round < 1'000; ++round) {
        const QByteArray file = mutated(files, random);
        Collected byIsal;
        Collected byZlib;
        const GzipEnd isal = inflateWithIsal(file, byIsal);
        const GzipEnd zlib = inflateWithZlib(file, byZlib);
        ASSERT_EQ(isal == GzipEnd::Complete, zlib == GzipEnd::Complete) << file.toBase64().constData();
        if (isal == GzipEnd::Complete) {
            ++complete;
            ASSERT_EQ(byIsal.bytes, byZlib.bytes) << file.toBase64().constData();
        }
        if (round % 10 == 0) {
            ASSERT_EQ(inPieces(file, kLimits), dataWithCompressedData(file, kLimits));
        }
    }
    QLoggingCategory::setFilterRules({});
    EXPECT_GT(complete, 150);
}

#endif

TEST(DecompressionTest, RefusesGzipBombs) {
    constexpr DecompressionLimits limits{4'000'000};
    const QByteArray fits = gzipped(QByteArray(1'000'000, 'b'));
    EXPECT_EQ(dataWithCompressedData(fits, limits)->size(), 1'000'000);
    EXPECT_FALSE(dataWithCompressedData(gzipped(QByteArray(1'000'001, 'b')), limits));
    EXPECT_FALSE(dataWithCompressedData(fits + gzipped("x"), limits));
    EXPECT_FALSE(dataWithCompressedData(gzipped(QByteArray(50'000'000, 'b')), limits));
    EXPECT_TRUE(inPieces(fits, limits));
    EXPECT_FALSE(inPieces(fits + gzipped("x"), limits));
}

TEST(DecompressionTest, Xz) {
    const QByteArray large = feed(400'000);
    const QByteArray packed = xzPacked(large);
    const QByteArray bomb = xzPacked(QByteArray(400'000, 'b'));
    const std::tuple<const char*, QByteArray, std::optional<QByteArray>> cases[] = {
        {"one stream", packed, large},
        {"two streams, padded", packed + QByteArray(8, '\0') + packed, large + large},
        {"trailing garbage", packed + "garbage", large},
        {"truncated at 23 times the size", bomb, QByteArray(bomb.size() * 23, 'b')},
        {"damaged content", flipped(packed, packed.size() / 2), std::nullopt},
        {"truncated", packed.chopped(1), std::nullopt},
        {"half", packed.left(packed.size() / 2), std::nullopt},
        {"empty content", xzPacked(""), std::nullopt},
        {"not xz", large, std::nullopt},
        {"no data", "", std::nullopt},
    };
    for (const auto& [name, data, expected] : cases) {
        EXPECT_EQ(dataWithXzData(data, kLimits), expected) << name;
    }
    // Less memory than the decoder needs, and enough for a part of the content.
    EXPECT_FALSE(dataWithXzData(packed, {1'000'000}));
    const QByteArray noise = gzipped(feed(1'000'000));
    const std::optional<QByteArray> part =
        dataWithXzData(xzPacked(noise + QByteArray(3'000'000, 'b'), 0), {4'000'000});
    ASSERT_TRUE(part);
    EXPECT_EQ(part->size(), 1'000'000);
    EXPECT_TRUE(part->startsWith(noise + "bbb"));
}

TEST(DecompressionTest, RecognisesSignatures) {
    EXPECT_TRUE(hasGzipSignature("\x1f\x8b") && hasXzSignature({"\xfd\x37zXZ\0", 6}));
    EXPECT_FALSE(hasGzipSignature("\x1f") || hasXzSignature({"\xfd\x37zXZ\0", 5}));
}

} // namespace
} // namespace guide
