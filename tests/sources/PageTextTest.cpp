#include "sources/PageText.h"

#include "fakes/Packing.h"

#include <QString>

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

constexpr std::uint64_t kMemory = std::uint64_t{256} << 20;

TEST(PageTextTest, ContentTypeDecidesFirst) {
    const QByteArray utf8 = "Žluťoučký kůň";
    const QByteArray windows = "\x8elu\x9dou\xe8k\xfd k\xf9\xf2";
    const QByteArray gzip = gzipped(utf8);
    const QByteArray xz = xzPacked(utf8);
    const struct {
        const char* name;
        std::optional<QByteArray> type;
        QByteArray body;
        std::optional<QByteArray> text;
        PageReason reason = PageReason::None;
        bool encoded = false;
    } rows[] = {
        {"declared", "text/html; charset=windows-1250", windows, utf8},
        {"declared UTF-8 but invalid", "text/html; charset=utf-8", windows, {}, PageReason::Encoding},
        {"no charset", "text/html", utf8, utf8},
        {"no charset and not UTF-8", "text/html", windows, {}, PageReason::Encoding},
        {"empty charset", "text/html; charset=", utf8, utf8},
        {"charset of one letter", "text/html; charset=x", utf8, utf8},
        {"unknown charset", "text/html; charset=klingon", utf8, {}, PageReason::Encoding},
        {"quoted, followed by a parameter", "text/html; Charset=\"Windows-1250\"; x=y", windows, utf8},
        {"no content type", {}, utf8, utf8},
        {"gzip", "application/x-gzip", gzip, utf8},
        {"empty gzip", "application/x-gzip", gzipped({}), QByteArray()},
        {"not gzip", "application/x-gzip", utf8, {}, PageReason::Compression},
        {"gzip of invalid text", "application/x-gzip", gzipped(windows), {}, PageReason::Encoding},
        {"xz", "application/x-xz", xz, utf8},
        {"gzip by its first bytes", "application/gzip", gzip, utf8},
        {"xz by its first bytes", "application/octet-stream", xz, utf8},
        {"gzip with a charset", "application/x-gzip; charset=utf-8", gzip, {}, PageReason::Encoding},
        {"gzip already unpacked by the transfer", "application/x-gzip", utf8, utf8, PageReason::None, true},
        {"gzip in gzip", "application/x-gzip", gzip, utf8, PageReason::None, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        HTTPResponse response;
        if (row.type) {
            response.headers.emplaceBack("Content-Type", *row.type);
        }
        if (row.encoded) {
            response.headers.emplaceBack("Content-Encoding", "gzip");
        }
        const PageText result = pageText(row.body, response, kMemory);
        EXPECT_EQ(result.text, row.text);
        EXPECT_EQ(result.reason, row.reason);
    }
}

TEST(PageTextTest, XzIsTruncatedToTheLimit) {
    const QByteArray packed = xzPacked(QByteArray(100'000, 'x'));
    EXPECT_EQ(pageText(packed, {}, kMemory).text, QByteArray(23 * packed.size(), 'x'));

    // At two of three shifts the cut falls into a character, which is left out.
    for (int shift = 0; shift < 3; ++shift) {
        const QByteArray letters = QByteArray(shift, 'x') + QByteArray("€").repeated(50'000);
        const PageText text = pageText(xzPacked(letters), {}, kMemory);
        ASSERT_TRUE(text.text);
        EXPECT_TRUE(text.incomplete);
        EXPECT_TRUE(letters.startsWith(*text.text));
        EXPECT_TRUE(text.text->endsWith("€"));
    }
}

TEST(PageTextTest, ABrokenPackedBodyGivesWhatPrecedesTheBreak) {
    QByteArray letters;
    for (int i = 0; letters.size() < 400'000; ++i) {
        letters += "čaj " + QByteArray::number(i * 7919 % 10'007);
    }
    const struct {
        const char* name;
        QByteArray packed;
        /// The least length of the text; 0 when there is none.
        qsizetype least;
        bool incomplete;
    } rows[] = {
        {"whole gzip", gzipped(letters), letters.size(), false},
        {"half a gzip", gzipped(letters).first(gzipped(letters).size() / 2), 100'000, true},
        {"damaged gzip", damaged(gzipped(letters)), 100'000, true},
        {"damaged checksum", gzipped(letters).chopped(5) + "wrong", letters.size(), true},
        {"half an xz", xzPacked(letters).first(xzPacked(letters).size() / 2), 20'000, true},
        {"only the header of a gzip", gzipped(letters).first(12), 0, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const PageText text = pageText(row.packed, {}, kMemory);
        EXPECT_EQ(text.incomplete, row.incomplete);
        EXPECT_EQ(text.reason, row.least > 0 ? PageReason::None : PageReason::Compression);
        ASSERT_EQ(text.text.has_value(), row.least > 0);
        if (text.text) {
            EXPECT_GE(text.text->size(), row.least);
            // Bytes that a damaged stream yields before the damage is noticed may be wrong.
            EXPECT_TRUE(text.text->startsWith(letters.first(row.least / 2)));
        }
    }
}

} // namespace
} // namespace guide
