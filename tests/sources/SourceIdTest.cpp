#include "sources/SourceId.h"

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

TEST(SourceIdTest, TypeFollowsTheFirstTestThatHits) {
    const SourceHostTable hosts =
        *SourceHostTable::fromJson(R"({"PrimaMaxSourceId": "https://max.example:8080/"})");
    const std::pair<QString, unsigned> rows[] = {
        {u"joj.x.tv"_s, 1},
        {u"12345.tv"_s, 1},
        {u"_"_s, 2},
        {u"barrandov."_s, 3},
        {u"dsk.Digi Sport 1"_s, 4},
        {u"dsk"_s, 1},
        {u"joj."_s, 5},
        {u"-hbo.hu"_s, 7},
        {u"hbo.hu"_s, 1},
        {u"max.example:8080"_s, 6},
        {u"max.example"_s, 1},
        {u"cz.nova."_s, 8},
        {u"dolce-sport.1"_s, 9},
        {u"cinestar.hr.1"_s, 10},
        {u"cinestar"_s, 1},
        {u"12345"_s, 0},
        {u"=12345"_s, 1},
        {u"cc.romania"_s, 11},
        {u"cc.romania2"_s, 1},
        {u""_s, 1},
    };
    for (const auto& [sourceId, type] : rows) {
        EXPECT_EQ(listingsTypeForSourceId(sourceId, hosts), type) << sourceId.toStdString();
    }
    EXPECT_EQ(listingsTypeForSourceId(u""_s, *SourceHostTable::fromJson(R"({"PrimaMaxSourceId": ""})")), 1u)
        << "an empty host claims nothing";
}

TEST(SourceIdTest, PortNumbersAreThirtyTwoBitsWide) {
    for (const QString& id : {u"0"_s, u"42"_s, u"60050"_s, u"2147483647"_s}) {
        EXPECT_TRUE(sourceIdUsedByPortNetwork(id)) << id.toStdString();
    }
    for (const QString& id : {u""_s, u"042"_s, u"00"_s, u"42x"_s, u"-5"_s, u"+5"_s, u" 5"_s, u"2147483648"_s,
                              u"4294967338"_s, u"99999999999999999999999"_s, u"\u0664\u0662"_s, u"４２"_s}) {
        EXPECT_FALSE(sourceIdUsedByPortNetwork(id)) << id.toStdString();
    }
}

TEST(SourceIdTest, ServersStandInTheirCountrysZone) {
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
