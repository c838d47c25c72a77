#include "core/QRCodePicture.h"

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

TEST(QRCodePictureTest, HasPatternsMarginAndWholeSquares) {
    const QImage picture = qrCodePicture(u"postgresql://anna@tv.example.org/guide"_s, 300);
    ASSERT_FALSE(picture.isNull());
    EXPECT_LE(picture.width(), 300);
    EXPECT_EQ(picture.width(), picture.height());
    const auto isDark = [&](int x, int y) { return qGray(picture.pixel(x, y)) < 128; };
    int margin = 0;
    while (!isDark(margin, margin)) {
        ++margin;
    }
    const int square = margin / 4;
    EXPECT_EQ(margin, square * 4);
    // The pattern of a corner: dark, light, three dark, light, dark.
    for (const int x : {margin, picture.width() - margin - 7 * square}) {
        QString pattern;
        for (int i = 0; i < 7; ++i) {
            pattern += isDark(x + i * square + square / 2, margin + 3 * square + square / 2) ? u'#' : u'.';
        }
        EXPECT_EQ(pattern, u"#.###.#"_s);
    }
    EXPECT_TRUE(qrCodePicture(QString(10'000, u'x'), 300).isNull());
    EXPECT_NE(qrCodePicture(u"/home/anna"_s, 300), qrCodePicture(u"/home/hana"_s, 300));
}

} // namespace
} // namespace guide
