#include "store/ScheduleQueries.h"

#include "TestShows.h"
#include "alarms/Favorites.h"

namespace guide::test {
namespace {

AllShows allOf(const std::vector<TestShow>& shows) {
    const auto list = std::make_shared<const ChannelList>(std::make_shared<const ShowItems>(items(shows)));
    return AllShows({list}, Moment::min());
}

TEST(ScheduleQueriesTest, CategoriesKeepSeriesApart) {
    const AllShows all = allOf({show(-2, -1, u"over"_s, 0x1000), show(-1, 0, u"ends now"_s, 0x1000),
                                show(0, 1, u"drama"_s, 0x1000), show(1, 2, u"series"_s, 0x1002),
                                show(2, 3, u"bare series"_s, 0x2), show(3, 4, u"none"_s, 0),
                                show(4, 5, u"one element"_s, {})});
    const std::pair<TVListingsCategory, Titles> rows[] = {
        {0x1000, {"drama"}}, {0x1002, {"series", "bare series"}},    {0x2, {"series", "bare series"}},
        {0x1, {}},           {TVListingsCategoryAllFilm, {"drama"}}, {0, {}}};
    for (const auto& [mask, expected] : rows) {
        EXPECT_EQ(titles(showsWithCategory(all, mask, kNow)), expected) << mask;
    }
    EXPECT_EQ(titles(allShowsWithCategory(all, TVListingsCategoryAllShows, kNow, QTimeZone::utc())),
              (Titles{"ends now", "drama", "series", "bare series", "none", "one element"}));
}

TEST(ScheduleQueriesTest, TheEveningStartsAtNineteenLocalTime) {
    // Clocks go back by half an hour in this zone at 15:00 UTC on 4 April 2026.
    const QTimeZone zone("Australia/Lord_Howe");
    const Moment end = moment("2030-01-01T00:00:00Z");
    const AllShows all = allOf({{moment("2026-04-04T07:59:59Z"), end, u"summer 18:59"_s},
                                {moment("2026-04-04T08:00:00Z"), end, u"summer 19:00"_s},
                                {moment("2026-04-04T12:59:00Z"), end, u"summer 23:59"_s},
                                {moment("2026-04-04T13:00:00Z"), end, u"summer 0:00"_s},
                                {moment("2026-04-05T08:29:00Z"), end, u"winter 18:59"_s},
                                {moment("2026-04-05T08:30:00Z"), end, u"winter 19:00"_s}});
    EXPECT_EQ(titles(allShowsWithCategory(all, TVListingsCategoryEveningShows, kNow, zone)),
              (Titles{"summer 19:00", "summer 23:59", "winter 19:00"}));
    // Its clocks were changed last in 1951.
    EXPECT_EQ(
        titles(allShowsWithCategory(all, TVListingsCategoryEveningShows, kNow, QTimeZone("Asia/Tokyo"))),
        (Titles{"summer 23:59", "summer 0:00"}));
}

TEST(ScheduleQueriesTest, FindsTitlesWhoseLengthDependsOnTheirCase) {
    const AllShows all = allOf({show(1, 2, u"\u0130stanbul"_s), show(2, 3, u"i\u0307STANBUL"_s),
                                show(3, 4, u"\U00010400"_s), show(4, 5, u"Istanbul"_s)});
    const FavoritesSnapshot favorites({{u"\u0130STANBUL"_s, {}, {}, {}}, {u"\U00010428"_s, {}, {}, {}}});
    EXPECT_EQ(favoritesSchedule(all, favorites, kNow).size(), 3u);
    EXPECT_EQ(showScheduleForTitle(all, u"\u0130stanbul"_s, kNow).size(), 1u);
}

TEST(ScheduleQueriesTest, EndedAndOverAreDifferent) {
    const AllShows all = allOf({show(-2, -1, u"A"_s), show(-1, 0, u"A"_s), show(0, 1, u"A"_s),
                                show(0, 1, u"a"_s), show(1, 2, u"A"_s)});
    EXPECT_EQ(showScheduleForTitle(all, u"A"_s, kNow).size(), 3u);
    const FavoritesSnapshot favorites({{u"A"_s, {}, {}, {}}});
    EXPECT_EQ(favoritesSchedule(all, favorites, kNow).size(), 3u) << "case is ignored";
    const FavoritesToCome toCome = favoritesToCome(all, favorites, kNow);
    ASSERT_EQ(toCome.shows.size(), 1u) << "a show that starts now has started";
    EXPECT_EQ(toCome.shows[0].entry()->dateTime(), hour(1));
    ASSERT_EQ(toCome.byDigest.size(), 1u);
    EXPECT_EQ(toCome.byDigest.at(*toCome.shows[0].entry()->digest()), toCome.shows[0]);
    EXPECT_TRUE(isBroadcast(all, u"a"_s, false, kNow));
    EXPECT_FALSE(isBroadcast(all, u"a"_s, true, kNow));
    EXPECT_FALSE(isBroadcast(all, u"a"_s, false, hour(2)));
    EXPECT_EQ(showsNotEnded(nullptr, kNow).size(), 0u);
    EXPECT_EQ(firstNotEnded(showScheduleForTitle(all, u"A"_s, kNow), kNow), 1u);
}

TEST(ScheduleQueriesTest, CountsWhatEachCategoryWouldList) {
    const AllShows all =
        allOf({show(-2, -1, u"over"_s, 0x1), show(-3, 0, u"ends now"_s, 0x1), show(-1, 1, u"film"_s, 0x101),
               show(0, 1, u"series"_s, 0x1002), show(2, 3, u"film"_s, 0x1), show(3, 4, u"at 19:00"_s, 0x1),
               show(4, 5, u"tomorrow"_s, 0x1)});
    const auto popular = std::make_shared<const ShowItems>(ShowItems{
        item(show(-2, -1, u"over"_s)), item(show(0, 1, u"series"_s)), item(show(4, 5, u"tomorrow"_s))});
    const std::vector<TVListingsCategory> selectors{
        TVListingsCategoryAllShows, TVListingsCategoryMostWatched, TVListingsCategoryEveningShows,
        TVListingsCategoryAllFilm,  TVListingsCategorySeries,      TVListingsCategoryMusic};
    const auto counts = [&](const ShowList& list) {
        return showCounts(all, list, selectors, kNow, hour(4), QTimeZone::utc());
    };
    EXPECT_EQ(counts(popular), (std::vector<int>{5, 1, 1, 3, 1, 0}));
    EXPECT_EQ(counts(nullptr)[1], 0);
}

TEST(ScheduleQueriesTest, StopsAtTheCap) {
    std::vector<TestShow> many(kMostShows + 5, show(0, 1, u"A"_s, 1));
    const AllShows all = allOf(many);
    EXPECT_EQ(showsWithCategory(all, 1, kNow).size(), kMostShows);
    EXPECT_EQ(showScheduleForTitle(all, u"A"_s, kNow).size(), kMostShows);
    EXPECT_EQ(showsNotEnded(std::make_shared<const ShowItems>(many.size(), item(many[0])), kNow).size(),
              many.size());
}

TEST(ScheduleQueriesTest, FindsTheShowOfAURL) {
    const AllShows all = allOf({show(-2, -1, u"A"_s), show(0, 1, u"A"_s), show(0, 1, u"B"_s)});
    for (const AllShows::Show& show : all.shows()) {
        const QUrl url = *TVEntry(*show.item->entry()).urlDigestWithScheme(u"guide"_s);
        EXPECT_EQ(showWithURL(all, url, u"guide"_s), *show.item);
    }
    const QUrl url = *TVEntry(*all.shows()[0].item->entry()).urlDigestWithScheme(u"guide"_s);
    for (const QString& other : {url.toString() + u"/x"_s, u"other"_s + url.toString().mid(5),
                                 url.toString() + u'0', u"guide://"_s}) {
        EXPECT_FALSE(showWithURL(all, QUrl(other), u"guide"_s)) << other.toStdString();
    }
}

} // namespace
} // namespace guide::test
