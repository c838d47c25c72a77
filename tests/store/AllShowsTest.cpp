#include "store/AllShows.h"

#include "TestShows.h"
#include "store/ChannelList.h"
#include "store/ShownEnds.h"
#include "text/search/FoldedText.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace guide::test {
namespace {

std::shared_ptr<const ChannelList> listOf(ShowItems shows) {
    return std::make_shared<const ChannelList>(std::make_shared<const ShowItems>(std::move(shows)));
}

/// Lists with many equal starts, shows that are over, and texts in every field.
AllShows::Lists randomLists(std::mt19937& random, int channels) {
    const QStringList words = {u"Žena"_s, u"zena"_s, u"Z\u030cENA"_s, u"Straße"_s, u"İı"_s,     u"a"_s,
                               u"aa"_s,   u"Аа"_s,   u"a-b"_s,        u""_s,       u"\u0301"_s, u"na ž"_s};
    const auto pick = [&](int below) { return static_cast<int>(random() % static_cast<unsigned>(below)); };
    const auto text = [&]() -> std::optional<QString> {
        if (pick(3) == 0) {
            return std::nullopt;
        }
        QStringList picked;
        for (int i = pick(3); i >= 0; --i) {
            picked += words[pick(static_cast<int>(words.size()))];
        }
        return picked.join(u' ');
    };
    AllShows::Lists lists;
    for (int i = 0; i < channels; ++i) {
        ShowItems shows;
        Moment start = kNow - std::chrono::hours(pick(4));
        for (int count = pick(12); count > 0; --count) {
            auto entry = extended({start, start + std::chrono::minutes(pick(120)), {}, 0, channel(i)}).basic;
            entry->setIdentificator(text());
            entry->setInstantDescription1(text());
            entry->setInstantDetails1(text());
            entry->setSubtitle1(text());
            if (pick(3) == 0) {
                auto facts = std::make_shared<ShowFacts>();
                facts->originalTitle = text();
                entry->setFacts(std::move(facts));
            }
            auto details = std::make_shared<TVEntrySupplementalData>();
            for (auto field :
                 {&TVEntrySupplementalData::description, &TVEntrySupplementalData::episodeDescription,
                  &TVEntrySupplementalData::details, &TVEntrySupplementalData::directedBy,
                  &TVEntrySupplementalData::roles}) {
                (*details).*field = pick(4) == 0 ? text() : std::nullopt;
            }
            shows.push_back(pick(2) == 0 ? ShowItem(entry, 0) : ShowItem(entry, 0, details));
            start += std::chrono::minutes(30 * (1 + pick(3)));
        }
        lists.push_back(listOf(std::move(shows)));
    }
    return lists;
}

ShowItems sortedLinearly(const AllShows::Lists& lists, Moment endingAfter) {
    ShowItems shows;
    for (const auto& list : lists) {
        std::copy_if(list->shows()->begin(), list->shows()->end(), std::back_inserter(shows),
                     [&](const ShowItem& show) { return show.entry()->endsAfter(endingAfter); });
    }
    std::stable_sort(shows.begin(), shows.end(), [](const ShowItem& a, const ShowItem& b) {
        return a.entry()->dateTime() < b.entry()->dateTime();
    });
    return shows;
}

ShowItems searchedLinearly(const ShowItems& all, const QString& pattern, Moment now, std::size_t limit) {
    const QString folded = foldedText(pattern);
    const auto holds = [&](const std::optional<QString>& text) {
        return !folded.isEmpty() && text && foldedText(*text).contains(folded);
    };
    ShowItems found;
    for (const ShowItem& show : all) {
        const TVEntry& entry = *show.entry();
        const TVEntrySupplementalData none;
        const ShowFacts facts = entry.facts() ? *entry.facts() : ShowFacts();
        const TVEntrySupplementalData& details = show.details() ? *show.details() : none;
        if (found.size() < limit && entry.endDateTime() >= now &&
            (holds(entry.title()) || holds(entry.instantDescription()) || holds(entry.instantDetails()) ||
             holds(entry.subtitle()) || holds(facts.originalTitle) || holds(details.description) ||
             holds(details.episodeDescription) || holds(details.details) || holds(details.directedBy) ||
             holds(details.roles))) {
            found.push_back(show);
        }
    }
    return found;
}

/// Compares the shows and the results of searches with those of a linear scan.
void expectLikeALinearScan(const AllShows& all, const AllShows::Lists& lists, Moment endingAfter,
                           bool search) {
    const ShowItems expected = sortedLinearly(lists, endingAfter);
    ShowItems merged;
    for (const AllShows::Show& show : all.shows()) {
        merged.push_back(*show.item);
    }
    EXPECT_EQ(merged, expected);
    if (!search) {
        return;
    }
    const Moment now = endingAfter + std::chrono::minutes(20);
    for (const QString& pattern : {u"zena"_s,
                                   u"ŽENA"_s,
                                   u"z\u030cena"_s,
                                   u"ss"_s,
                                   u"ß"_s,
                                   u"ı"_s,
                                   u"i"_s,
                                   u"a"_s,
                                   u"aa"_s,
                                   u"а"_s,
                                   u"a a"_s,
                                   u"-"_s,
                                   u" "_s,
                                   u"na z"_s,
                                   u"absent"_s,
                                   u"strasse"_s,
                                   u""_s,
                                   u"\u0301"_s,
                                   QString(QChar(0xff)),
                                   QString(QChar(0))}) {
        for (const std::size_t limit : {1000u, 3u, 0u}) {
            EXPECT_EQ(all.showsContaining(searchPattern(pattern), now, limit),
                      searchedLinearly(expected, pattern, now, limit))
                << pattern.toStdString() << ' ' << limit;
        }
    }
}

TEST(AllShowsTest, MergesAndSearchesLikeALinearScan) {
    std::mt19937 random(20251231);
    for (const int channels : {0, 1, 2, 3, 8, 61}) {
        SCOPED_TRACE(channels);
        const AllShows::Lists lists = randomLists(random, channels);
        expectLikeALinearScan(AllShows(lists, kNow), lists, kNow, true);
    }
}

TEST(AllShowsTest, AChangedStateIsBuiltFromThePreviousOne) {
    std::mt19937 random(20260101);
    const auto pick = [&](std::size_t below) { return random() % below; };
    AllShows::Lists lists = randomLists(random, 6);
    Moment endingAfter = kNow - std::chrono::hours(1);
    auto all = std::make_shared<const AllShows>(lists, endingAfter);
    for (int step = 0; step < 300; ++step) {
        SCOPED_TRACE(step);
        switch (pick(5)) {
        case 0:
            lists.push_back(randomLists(random, 1).front());
            break;
        case 1:
            lists.insert(lists.begin(), randomLists(random, 1).front());
            break;
        case 2:
            if (lists.size() > 3) {
                lists.erase(lists.begin() + static_cast<std::ptrdiff_t>(pick(lists.size())));
            }
            break;
        case 3:
            std::swap(lists[pick(lists.size())], lists[pick(lists.size())]);
            break;
        default:
            lists[pick(lists.size())] = randomLists(random, 1).front();
        }
        // The clock is sometimes set back.
        endingAfter += std::chrono::minutes(step % 50 == 49 ? -30 : step % 7 == 0 ? 5 : 0);
        all = std::make_shared<const AllShows>(lists, endingAfter, all);
        // Some states build their shows, some also run a search, some do neither.
        if (const auto asked = pick(3); asked > 0) {
            expectLikeALinearScan(*all, lists, endingAfter, asked == 2);
        }
    }
}

TEST(AllShowsTest, UnusedStatesAreNotKept) {
    std::mt19937 random(1);
    const AllShows::Lists lists = randomLists(random, 3);
    auto all = std::make_shared<const AllShows>(lists, kNow);
    all->shows();
    const std::weak_ptr<const AllShows> built = all;
    all = std::make_shared<const AllShows>(lists, kNow, all);
    const std::weak_ptr<const AllShows> unused = all;
    all = std::make_shared<const AllShows>(lists, kNow, all);
    EXPECT_TRUE(unused.expired());
    EXPECT_FALSE(built.expired());
    all->shows();
    EXPECT_TRUE(built.expired());
}

TEST(ChannelListTest, FindsTheShowsThatAreNotOver) {
    const struct {
        const char* name;
        std::vector<std::pair<int, int>> shows; // start and end
        Titles notOver;
    } rows[] = {
        {"empty", {}, {}},
        {"none over", {{0, 1}, {1, 2}}, {"0", "1"}},
        {"ends now", {{-2, -1}, {-1, 0}, {0, 1}}, {"1", "2"}},
        {"all over", {{-9, -1}, {-8, -2}, {-7, -3}}, {}},
        {"a long one first", {{-9, 1}, {-8, -2}, {-7, -3}, {0, 1}, {1, 2}}, {"0", "3", "4"}},
        {"one over in the middle", {{-9, -8}, {-8, 5}, {-7, -3}, {1, 2}, {3, 4}}, {"1", "3", "4"}},
        {"ends before it starts, so the next one ends it", {{-4, -1}, {-2, -9}, {1, 2}}, {"1", "2"}},
        {"many over", {{-9, -8}, {-8, -7}, {-7, -6}, {-6, -5}, {-5, -4}, {-4, -3}, {-3, -2}, {-2, 1}}, {"7"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        ShowItems shows;
        for (const auto& [start, end] : row.shows) {
            shows.push_back(item({hour(start), hour(end), QString::number(shows.size())}));
        }
        const auto list = listOf(std::move(shows));
        EXPECT_EQ(titles(list->notOver(kNow)), row.notOver);
        for (std::size_t limit = 0; limit <= row.notOver.size() + 1; ++limit) {
            Titles expected = row.notOver;
            expected.resize(std::min(limit, expected.size()));
            EXPECT_EQ(titles(list->notOver(kNow, limit)), expected) << limit;
            EXPECT_EQ(list->countNotOver(kNow, limit), expected.size()) << limit;
        }
    }
}

TEST(ShownEndsTest, WrongEndsAreReplacedByTheNextStart) {
    constexpr int kWeek = 7 * 1440;
    const struct {
        int start;
        std::optional<int> end, shown;
    } shows[] = {
        {-1'000'000, 1'000'000, {}},  // the next start is too late as well
        {0, 100, 100},                // overlapping is not wrong
        {10, 5, 20},                  // backwards
        {10, 9, 20},                  // starts together with the one before
        {20, 20, 20},                 // empty
        {30, 30 + kWeek, 30 + kWeek}, // the longest
        {40, 41 + kWeek, 50},         // too long
        {50, {}, {}},
        {60, 59, {}}, // none follows
    };
    const Alphabet alphabet;
    const auto at = [](const std::optional<int>& minute) {
        return minute ? std::optional(Moment(std::chrono::minutes(*minute))) : std::nullopt;
    };
    ShowItems items;
    for (const auto& show : shows) {
        auto entry = std::make_shared<TVEntry>(alphabet);
        entry->setDateTime(at(show.start));
        entry->setEndDateTime(at(show.end));
        items.emplace_back(std::move(entry));
    }
    const ShownEnds ends(items);
    for (std::size_t show = 0; show < items.size(); ++show) {
        EXPECT_EQ(ends.endOf(*items[show].entry()), at(shows[show].shown)) << shows[show].start;
    }
    EXPECT_TRUE(ends.overAt(*items[2].entry(), *at(21)));
    EXPECT_FALSE(ends.overAt(*items[8].entry(), *at(10'000))) << "nobody knows";

    const ChannelList list(std::make_shared<const ShowItems>(items));
    EXPECT_EQ(list.endOf(2), at(20)) << "so that queries find it while it is running";
    EXPECT_EQ(list.endOf(8), at(59)) << "unknown: its own";
}

} // namespace
} // namespace guide::test
