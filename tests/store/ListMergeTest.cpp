#include "store/ListMerge.h"

#include "TestShows.h"
#include "store/ShowUpdates.h"

namespace guide::test {
namespace {

using namespace Qt::StringLiterals;

constexpr Moment kNow{std::chrono::hours(1000)};

Moment hour(int hours) {
    return kNow + std::chrono::hours(hours);
}

std::vector<ExtendedTVEntry> parsed(const std::vector<TestShow>& shows) {
    std::vector<ExtendedTVEntry> result;
    result.reserve(shows.size());
    for (const TestShow& show : shows) {
        result.push_back(extended(show));
    }
    return result;
}

TEST(ListMergeTest, SortsAndCuts) {
    struct Row {
        const char* name;
        std::vector<TestShow> shows;
        ListingsType type;
        MergeOutcome outcome;
        Titles expected;
    };
    using enum ListingsType;
    const Row rows[] = {
        {"nothing", {}, XMLTV, MergeOutcome::Empty, {}},
        {"no start", {{{}, hour(9), u"A"_s}}, XMLTV, MergeOutcome::Empty, {}},
        {"sorted",
         {{hour(2), hour(3), u"B"_s}, {hour(1), hour(2), u"A"_s}},
         XMLTV,
         MergeOutcome::Stored,
         {"A", "B"}},
        {"the first of equal starts stays",
         {{hour(1), hour(2), u"A"_s},
          {hour(0), hour(1), u"0"_s},
          {hour(1), hour(2), u"B"_s},
          {hour(1), hour(2), u"C"_s},
          {hour(2), hour(3), u"D"_s}},
         XMLTV,
         MergeOutcome::Stored,
         {"0", "A", "D"}},
        {"a show that ends now has ended",
         {{hour(-1), hour(0), u"A"_s}, {hour(0), hour(1), u"B"_s}},
         XMLTV,
         MergeOutcome::Stored,
         {"B"}},
        {"shows after a running one stay",
         {{hour(-3), hour(1), u"A"_s}, {hour(-2), hour(-1), u"B"_s}},
         XMLTV,
         MergeOutcome::Stored,
         {"A", "B"}},
        {"only past",
         {{hour(-2), hour(-1), u"A"_s}, {hour(-1), hour(0), u"B"_s}},
         XMLTV,
         MergeOutcome::OnlyPast,
         {}},
        {"a show without an end has ended", {{hour(1), {}, u"A"_s}}, XMLTV, MergeOutcome::OnlyPast, {}},
        {"a final placeholder is dropped",
         {{hour(2), hour(3), u"Nema podataka"_s}, {hour(1), hour(2), u"A"_s}},
         XMLTV,
         MergeOutcome::Stored,
         {"A"}},
        {"only one placeholder is dropped",
         {{hour(1), hour(2), u"No information"_s}, {hour(2), hour(3), u"Není informace"_s}},
         XMLTV,
         MergeOutcome::Stored,
         {"No information"}},
        {"nothing but a placeholder",
         {{hour(1), hour(2), u"Nincs információ"_s}},
         XMLTV,
         MergeOutcome::Empty,
         {}},
        {"a placeholder in another case stays",
         {{hour(1), hour(2), u"no information"_s}},
         XMLTV,
         MergeOutcome::Stored,
         {"no information"}},
        {"no ends", {{hour(-3), {}, u"A"_s}, {hour(-2), {}, u"B"_s}}, Palinsesto, MergeOutcome::OnlyPast, {}},
    };
    for (const Row& row : rows) {
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
    const std::vector<TestShow> shows = {
        {hour(3), hour(9), u"Nema podataka"_s}, {hour(0), hour(9), u"A"_s}, {hour(1), hour(9), u"B"_s}};
    const MergedList kept = mergedList(parsed(shows), u"hr"_s, kNow, ListingsType::XMLTV);
    EXPECT_EQ((*kept.list)[0].entry()->endDateTime(), hour(9));
    const MergedList set = mergedList(parsed(shows), u"hr"_s, kNow, ListingsType::Palinsesto);
    ASSERT_EQ(set.list->size(), 2u);
    EXPECT_EQ((*set.list)[0].entry()->endDateTime(), hour(1));
    EXPECT_EQ((*set.list)[1].entry()->endDateTime(), hour(3));
}

TEST(ShowUpdatesTest, DetailsExtendTheShowOfTheEntry) {
    const auto details = std::make_shared<const TVEntrySupplementalData>();
    const QSet<QUrl> pictures{QUrl(u"http://a/1"_s)};
    const QSet<QUrl> otherPictures{QUrl(u"http://a/2"_s)};
    const auto entryOf = [](int at) { return extended({hour(at), hour(at + 1)}).basic; };
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
    const auto show = [](int at, const QString& title) {
        return extended({hour(at), hour(at + 1), title}).basic;
    };
    const ShowItems list{ShowItem(show(0, u"A"_s), 1), ShowItem(show(1, u"A"_s), 2),
                         ShowItem(show(2, u"B"_s), 1), ShowItem(show(3, u"A"_s), 1, details),
                         ShowItem(show(4, u"A"_s))};
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
