#include "core/own/KnownFeeds.h"

#include "fakes/Files.h"

#include <QSet>
#include <QUrl>

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;

TEST(KnownFeedsTest, TheListThatIsInstalledIsWhole) {
    const QByteArray json = test::contentOf(QStringLiteral(QUELLIN_SOURCE_DATA "/known-feeds.json"));
    const KnownFeeds feeds = KnownFeeds::fromJSON(json);
    std::size_t count = 0;
    for (const KnownFeedCountry& country : feeds.countries()) {
        SCOPED_TRACE(country.region.toStdString());
        EXPECT_NE(countryName(country.region, QLocale(u"en_GB"_s)), country.region);
        QSet<QString> hosts;
        for (const KnownFeed& feed : country.feeds) {
            hosts.insert(QUrl(feed.address).host());
            EXPECT_GT(feed.alive, QDate(2026, 1, 1)) << feed.address.toStdString();
            ++count;
        }
        EXPECT_GE(hosts.size(), 2) << "another provider for when one is down";
    }
    EXPECT_EQ(feeds.countries().size(), 20u);
    EXPECT_EQ(count, std::size_t(json.count("\"address\""))) << "the reader left none out";
}

TEST(KnownFeedsTest, LeavesOutWhatIsMalformed) {
    const KnownFeeds feeds = KnownFeeds::fromJSON(R"([
        5, {"region": "sk", "feeds": [{"provider": "P", "address": "http://a.example/1", "alive": "2026-01-02"}]},
        {"region": "CZ", "feeds": "none"},
        {"region": "SK", "feeds": [
            {"provider": "P", "address": "file:///etc/passwd", "alive": "2026-01-02"},
            {"provider": "P", "address": "http://u:p@a.example/2", "alive": "2026-01-02"},
            {"provider": "P", "address": "https://a.example/3", "alive": "yesterday"},
            {"provider": "", "address": "https://a.example/4", "alive": "2026-01-02"},
            {"provider": "P", "address": "https://a.example/5", "alive": "2026-01-02", "bytes": -4, "channels": "many"},
            {"provider": "P", "address": "https://a.example/5", "alive": "2026-01-02"}]}])");
    ASSERT_EQ(feeds.countries().size(), 1u);
    const KnownFeedCountry* country = feeds.feedsForRegion(u"sk"_s);
    ASSERT_TRUE(country != nullptr && country->feeds.size() == 1);
    EXPECT_EQ(country->feeds.front().address, u"https://a.example/5"_s);
    EXPECT_EQ(country->feeds.front().bytes, 0);
    EXPECT_EQ(feeds.feedsForRegion(u"CZ"_s), nullptr);
    EXPECT_TRUE(KnownFeeds::fromJSON("{").countries().empty());
}

TEST(KnownFeedsTest, NamesCountriesInTheLanguageOfTheDevice) {
    EXPECT_EQ(countryName(u"SK"_s, QLocale(u"cs_CZ"_s)), u"Slovensko"_s);
    EXPECT_EQ(countryName(u"DE"_s, QLocale(u"sk_SK"_s)), u"Nemecko"_s);
    EXPECT_EQ(regionOf(QLocale(u"de_AT"_s)), u"AT"_s);
    EXPECT_EQ(regionOf(QLocale::c()), QString());
}

} // namespace
} // namespace guide
