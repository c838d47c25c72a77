#include "store/ListMerge.h"

#include "TestShows.h"
#include "store/ShowUpdates.h"

namespace guide::test {
namespace {

using Shows = std::vector<TestShow>;

std::vector<ExtendedTVEntry> parsed(const Shows& shows) {
    std::vector<ExtendedTVEntry> result;
    result.reserve(shows.size());
    for (const TestShow& show : shows) {
        result.push_back(extended(show));
    }
    return result;
}

TEST(ListMergeTest, SortsAndCuts) {
    using enum MergeOutcome;
    const struct {
        const char* name;
        MergeOutcome outcome;
        Titles expected;
        Shows shows;
        ListingsType type = ListingsType::XMLTV;
    } rows[] = {
        {"nothing", Empty, Titles{}, Shows{}},
        {"no start", Empty, Titles{}, Shows{{{}, hour(9), u"A"_s}}},
        {"sorted", Stored, Titles{"A", "B"}, Shows{show(2, 3, u"B"_s), show(1, 2, u"A"_s)}},
        {"the first of equal starts stays", Stored, Titles{"0", "A", "D"},
         Shows{show(1, 2, u"A"_s), show(0, 1, u"0"_s), show(1, 2, u"B"_s), show(1, 2, u"C"_s),
               show(2, 3, u"D"_s)}},
        {"a show that ends now has ended", Stored, Titles{"B"},
         Shows{show(-1, 0, u"A"_s), show(0, 1, u"B"_s)}},
        {"shows after a running one stay", Stored, Titles{"A", "B"},
         Shows{show(-3, 1, u"A"_s), show(-2, -1, u"B"_s)}},
        {"only past", OnlyPast, Titles{}, Shows{show(-2, -1, u"A"_s), show(-1, 0, u"B"_s)}},
        {"a show without an end has ended", OnlyPast, Titles{}, Shows{{hour(1), {}, u"A"_s}}},
        {"a final placeholder is dropped", Stored, Titles{"A"},
         Shows{show(2, 3, u"Nema podataka"_s), show(1, 2, u"A"_s)}},
        {"only one placeholder is dropped", Stored, Titles{"No information"},
         Shows{show(1, 2, u"No information"_s), show(2, 3, u"Není informace"_s)}},
        {"nothing but a placeholder", Empty, Titles{}, Shows{show(1, 2, u"Nincs információ"_s)}},
        {"a placeholder in another case stays", Stored, Titles{"no information"},
         Shows{show(1, 2, u"no information"_s)}},
        {"no ends", OnlyPast, Titles{}, Shows{{hour(-3), {}, u"A"_s}, {hour(-2), {}, u"B"_s}},
         ListingsType::Palinsesto},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const MergedList merged = mergedList(parsed(row.shows), u"cs"_s, kNow, row.type);
        EXPECT_EQ(merged.outcome, row.outcome);
        ASSERT_EQ(merged.list != nullptr, row.outcome == MergeOutcome::Stored);
        if (merged.list) {
            EXPECT_EQ(titles(*merged.list), row.expected);
            EXPECT_EQ(merged.list->back().entry()->language(), u"cs"_s);
        }
    }
}

TEST(ListMergeTest, MissingEndsAreTakenFromTheNextStart) {
    const Shows shows = {show(3, 9, u"Nema podataka"_s), show(0, 9, u"A"_s), show(1, 9, u"B"_s)};
    const MergedList kept = mergedList(parsed(shows), u"hr"_s, kNow, ListingsType::XMLTV);
    EXPECT_EQ((*kept.list)[0].entry()->endDateTime(), hour(9));
    const MergedList set = mergedList(parsed(shows), u"hr"_s, kNow, ListingsType::Palinsesto);
    ASSERT_EQ(set.list->size(), 2u);
    EXPECT_EQ((*set.list)[0].entry()->endDateTime(), hour(1));
    EXPECT_EQ((*set.list)[1].entry()->endDateTime(), hour(3));
}

TEST(ListMergeTest, IncompletePagesKeepTheStoredRest) {
    const auto list = std::make_shared<const ShowItems>(
        items({show(-2, -1, u"old"_s), show(0, 1, u"a"_s), show(1, 2, u"b"_s), show(2, 4, u"c"_s),
               show(4, 5, u"d"_s)}));
    using enum ListingsType;
    const std::tuple<const char*, Shows, ListingsType, Titles, Moment> rows[] = {
        {"the rest is kept", Shows{show(0, 1, u"A"_s), show(1, 3, u"B"_s)}, XMLTV, Titles{"A", "B", "c", "d"},
         hour(3)},
        {"starts in between", Shows{show(3, 4, u"C"_s)}, XMLTV, Titles{"C", "d"}, hour(4)},
        {"the show that is on is not repeated", Shows{show(-3, 1, u"Z"_s), show(-2, -1, u"Y"_s)}, XMLTV,
         Titles{"Z", "Y", "a", "b", "c", "d"}, hour(-1)},
        {"longer than the stored list", Shows{show(8, 9, u"E"_s)}, XMLTV, Titles{"E"}, hour(9)},
        {"an end that was guessed", Shows{{hour(1), {}, u"B"_s}}, Palinsesto, Titles{"B", "c", "d"}, hour(2)},
        {"only past shows", Shows{show(-2, -1, u"X"_s)}, XMLTV, Titles{}, {}},
    };
    for (const auto& [name, shows, type, expected, lastEnd] : rows) {
        SCOPED_TRACE(name);
        const MergedList merged = mergedList(parsed(shows), u"cs"_s, kNow, type, {.incomplete = true}, list);
        EXPECT_EQ(merged.list ? titles(*merged.list) : Titles(), expected);
        if (merged.list) {
            EXPECT_EQ((*merged.list)[shows.size() - 1].entry()->endDateTime(), lastEnd);
        }
    }
}

TEST(ShowUpdatesTest, DetailsExtendTheShowOfTheEntry) {
    const auto details = std::make_shared<const TVEntrySupplementalData>();
    const PictureURLs pictures{QUrl(u"http://a/1"_s)};
    const PictureURLs otherPictures{QUrl(u"http://a/2"_s)};
    const auto entryOf = [](int at) { return extended(show(at, at + 1)).basic; };
    const ShowItems list{
        ShowItem(entryOf(0)), ShowItem(entryOf(1), 4),
        ShowItem(entryOf(2), 4, std::make_shared<const TVEntrySupplementalData>()),
        ShowItem(entryOf(3), 4, std::make_shared<const TVEntrySupplementalData>(), pictures)};
    for (std::size_t i = 0; i < list.size(); ++i) {
        SCOPED_TRACE(i + 1);
        const auto plain = listWithDetails(list, *list[i].entry(), details, {});
        ASSERT_TRUE(plain);
        const ShowItem& grown = (*plain)[i];
        EXPECT_EQ(grown.elementCount(), i == 3 ? 4 : 3);
        EXPECT_EQ(grown.entry(), list[i].entry());
        EXPECT_EQ(grown.categories(), i == 0 ? 0u : 4u);
        EXPECT_EQ(grown.details(), details);
        const auto pictured = listWithDetails(list, *list[i].entry(), details, otherPictures);
        EXPECT_EQ((*pictured)[i].pictures(), otherPictures);
        EXPECT_EQ((*pictured)[(i + 1) % 4], list[(i + 1) % 4]);
    }
    EXPECT_FALSE(listWithDetails(list, *entryOf(1), details, {})) << "an equal entry is not the same one";
    EXPECT_FALSE(listWithDetails(list, *entryOf(9), details, {}));
}

TEST(ShowUpdatesTest, IMDbPageIsSetOnEveryShowOfMaskAndTitle) {
    const QUrl page(u"https://imdb/x"_s);
    auto details = std::make_shared<TVEntrySupplementalData>();
    details->roles = u"X"_s;
    const auto entry = [](int at, const QString& title) { return extended(show(at, at + 1, title)).basic; };
    const ShowItems list{ShowItem(entry(0, u"A"_s), 1), ShowItem(entry(1, u"A"_s), 2),
                         ShowItem(entry(2, u"B"_s), 1), ShowItem(entry(3, u"A"_s), 1, details),
                         ShowItem(entry(4, u"A"_s))};
    const auto updated = listWithIMDB(list, u"A"_s, 1, page, {});
    ASSERT_TRUE(updated);
    EXPECT_EQ((*updated)[0].details()->imdbURL, page);
    EXPECT_EQ((*updated)[3].details()->imdbURL, page);
    EXPECT_EQ((*updated)[3].details()->roles, u"X"_s);
    EXPECT_EQ(details->imdbURL, std::nullopt) << "a shared record was changed";
    for (const std::size_t untouched : {1, 2, 4}) {
        EXPECT_EQ((*updated)[untouched], list[untouched]);
    }
    EXPECT_FALSE(listWithIMDB(list, u"C"_s, 1, page, {}));
    EXPECT_EQ((*listWithIMDB(list, u"A"_s, 2, page, {page}))[1].elementCount(), 4);
}

} // namespace
} // namespace guide::test
