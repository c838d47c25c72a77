#include "store/ShownEnds.h"

#include "store/ChannelList.h"

#include <gtest/gtest.h>

namespace guide::test {

namespace {

TEST(ShownEndsTest, WrongEndsAreReplacedByTheNextStart) {
    constexpr int kWeek = 7 * 1440;
    struct Show {
        int start;
        std::optional<int> end, shown;
    };
    const std::vector<Show> shows{
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
    for (const Show& show : shows) {
        auto entry = std::make_shared<TVEntry>(alphabet);
        entry->setDateTime(at(show.start));
        entry->setEndDateTime(at(show.end));
        items.emplace_back(std::move(entry));
    }
    const ShownEnds ends(items);
    for (std::size_t show = 0; show < shows.size(); ++show) {
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
