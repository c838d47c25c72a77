#include "core/ObjectId.h"

#include <gtest/gtest.h>
#include <tuple>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

TEST(ObjectIdTest, ReadsHexadecimalPairs) {
    const QString zero(24, u'0');
    const std::tuple<const char*, QString, QString> rows[] = {
        {"digits of both cases", u"58F4ded60befe78cb336a80C"_s, u"58f4ded60befe78cb336a80c"_s},
        {"one character too few", u"58f4ded60befe78cb336a80"_s, zero},
        {"one character too many", u"58f4ded60befe78cb336a80c0"_s, zero},
        {"a pair that is not hexadecimal", u"zzf4ded60befe78cb336a80c"_s, u"00f4ded60befe78cb336a80c"_s},
        {"a pair that stops early", u"1gf4ded60befe78cb336a80c"_s, u"01f4ded60befe78cb336a80c"_s},
        {"a pair with a leading blank", u" 7f4ded60befe78cb336a80c"_s, u"07f4ded60befe78cb336a80c"_s},
        {"a pair of blanks", u"  f4ded60befe78cb336a80c"_s, u"00f4ded60befe78cb336a80c"_s},
        {"digits of another script", u"\u0661\u0662f4ded60befe78cb336a80c"_s, u"00f4ded60befe78cb336a80c"_s},
        {"a sign", u"-1f4ded60befe78cb336a80c"_s, u"00f4ded60befe78cb336a80c"_s},
        {"a prefix", u"0xf4ded60befe78cb336a80c"_s, u"00f4ded60befe78cb336a80c"_s},
    };
    for (const auto& [name, hex, expected] : rows) {
        EXPECT_EQ(ObjectId::fromHex(hex).hex(), expected) << name;
    }
}

TEST(ObjectIdTest, TakesTwelveBytesOnly) {
    const QByteArray bytes = QByteArray::fromHex("58f4ded60befe78cb336a80c");
    EXPECT_EQ(ObjectId(bytes), ObjectId::fromHex(u"58f4ded60befe78cb336a80c"_s));
    EXPECT_EQ(ObjectId(bytes).data(), bytes);
    EXPECT_EQ(ObjectId(bytes.left(11)).data(), QByteArray(12, '\0'));
    EXPECT_EQ(ObjectId(bytes + 'x').data(), QByteArray(12, '\0'));
}

TEST(ObjectIdTest, HashWrapsAtSixtyFourBits) {
    // Reference values from an arbitrary-precision calculation, reduced modulo 2^64.
    EXPECT_EQ(ObjectId(QByteArray(12, '\0')).hash(), 9795860139169989765u);
    EXPECT_EQ(ObjectId(QByteArray(12, '\xff')).hash(), 4640110637742037049u);
    EXPECT_EQ(ObjectId::popular().hash(), 14648937563642513295u);
}

} // namespace
} // namespace guide
