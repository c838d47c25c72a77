#include "sources/SourceId.h"

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

TEST(SourceIdTest, PortNumbersAreThirtyTwoBitsWide) {
    for (const QString& id : {u"0"_s, u"42"_s, u"60050"_s, u"2147483647"_s}) {
        EXPECT_TRUE(sourceIdUsedByPortNetwork(id)) << id.toStdString();
    }
    for (const QString& id : {u""_s, u"042"_s, u"00"_s, u"42x"_s, u"-5"_s, u"+5"_s, u" 5"_s, u"2147483648"_s,
                              u"4294967338"_s, u"99999999999999999999999"_s, u"\u0664\u0662"_s, u"４２"_s}) {
        EXPECT_FALSE(sourceIdUsedByPortNetwork(id)) << id.toStdString();
    }
}

TEST(SourceIdTest, ServersHaveTheZoneOfTheirCountry) {
    for (const QString& country : {u"ro"_s, u"sk"_s, u"hu"_s, u"hr"_s, u"rs"_s, u"cz"_s, u"ba"_s}) {
        ASSERT_TRUE(timeZoneForServer(country)) << country.toStdString();
        EXPECT_TRUE(timeZoneForServer(country)->isValid()) << "known to the system";
    }
    EXPECT_EQ(timeZoneForServer(u"www.example.hr")->id(), "Europe/Zagreb");
    for (const QString& server : {u"x.zz"_s, u"z"_s, u""_s, u"x.HU"_s}) {
        EXPECT_FALSE(timeZoneForServer(server)) << server.toStdString();
    }
}

} // namespace
} // namespace guide
