#include "store/RecordPopularShows.h"

#include "TestShows.h"
#include "fakes/ManualQueues.h"
#include "platform/memory/MemoryRecordStore.h"
#include "store/AllShows.h"

#include <gtest/gtest.h>

namespace guide::test {
namespace {

class RecordPopularShowsTest : public testing::Test {
  protected:
    /// The title of the record of this rank by its date.
    static QString title(int rank) { return u"Title %1"_s.arg(rank, 4, 10, QChar(u'0')); }
    void addRecords(int count) {
        for (int rank = 1; rank <= count; ++rank) {
            records.put({title(rank), 1, kNow - std::chrono::seconds(rank)});
        }
    }
    static ShowItem item(int start, const QString& of) {
        return ShowItem(extended(show(start, start + 1, of)));
    }
    static std::shared_ptr<const AllShows> all(ShowItems shows) {
        return std::make_shared<const AllShows>(AllShows::Lists{std::make_shared<const ChannelList>(
                                                    std::make_shared<const ShowItems>(std::move(shows)))},
                                                kNow);
    }
    QStringList popularTitles() const {
        QStringList titles;
        if (const ShowList list = popular.popularShows()) {
            for (const ShowItem& show : *list) {
                titles << *show.entry()->identificator();
            }
        }
        return titles;
    }
    void refresh(ShowItems shows) {
        popular.refresh(all(std::move(shows)));
        queues.runAll();
    }

    ManualClock clock;
    ManualQueues queues{clock};
    MemoryRecordStore records{clock};
    int stored = 0;
    RecordPopularShows popular{
        {.records = &records, .queues = queues, .store = [this](const ShowList&) { ++stored; }}};
};

TEST_F(RecordPopularShowsTest, TheOldestRecordsAreRemovedAndTheNewestDoNotCountThatTime) {
    const struct {
        int records;
        QStringList titles;
        std::size_t left;
    } cases[] = {
        {900, {title(1), title(50), title(51), title(900)}, 900},
        {901, {title(50), title(51), title(900), title(901)}, 900},
        {950, {title(51), title(900), title(901), title(950)}, 900},
        // Only a thousand are looked at.
        {1050, {title(900), title(901), title(950), title(1000)}, 950},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.records);
        for (int rank = 1; rank <= 1050; ++rank) {
            records.removeCounters({title(rank)});
        }
        addRecords(each.records);
        ShowItems shows;
        for (const int rank : {1, 50, 51, 900, 901, 950, 1000, 1001}) {
            shows.push_back(item(rank, title(rank)));
        }
        refresh(std::move(shows));
        EXPECT_EQ(popularTitles(), each.titles);
        EXPECT_EQ(records.countersByModification(SIZE_MAX)->size(), each.left);
    }
}

TEST_F(RecordPopularShowsTest, TwelveTitlesWithShowsAreListedByStart) {
    addRecords(40);
    ShowItems shows;
    for (int start = 0; start < 20; ++start) {
        shows.push_back(item(start, title(40 - 2 * start)));
    }
    shows.push_back(item(30, title(2)));
    shows.push_back(item(31, title(2).toUpper()));
    refresh(shows);
    // Titles with an odd rank have no shows and take no place.
    QStringList expected;
    for (int start = 8; start < 20; ++start) {
        expected << title(40 - 2 * start);
    }
    expected << title(2);
    EXPECT_EQ(popularTitles(), expected);
    EXPECT_TRUE(popular.contains(item(30, title(2)))) << "the same broadcast, loaded again";
    EXPECT_FALSE(popular.contains(item(29, title(2))));

    ShowItems many(999, item(0, title(1)));
    many.push_back(item(0, title(2)));
    many.push_back(item(0, title(2)));
    EXPECT_EQ(popularShowsOf(*all(many), {title(1), title(2), title(3)}).size(), 1000);
}

TEST_F(RecordPopularShowsTest, AListIsStoredOnlyWhenItDiffers) {
    const ShowItem show = item(1, title(1));
    popular.restore(std::make_shared<const ShowItems>(ShowItems{show}));
    EXPECT_TRUE(popular.contains(show));
    refresh({show});
    EXPECT_EQ(popularTitles(), QStringList(title(1))) << "without any record it stays";
    addRecords(1);
    refresh({show});
    EXPECT_EQ(stored, 0);
    refresh({});
    EXPECT_EQ(stored, 1);
    EXPECT_EQ(popularTitles(), QStringList());
}

} // namespace
} // namespace guide::test
