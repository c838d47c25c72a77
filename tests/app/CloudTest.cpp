#include "alarms/FavoritesFile.h"
#include "alarms/SilentHours.h"
#include "app/GuideWorld.h"
#include "core/SelectionFile.h"
#include "platform/memory/MemoryRecordStore.h"

#include <QCborArray>

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

struct GuideCloudTest : testing::Test {
    void start() {
        world.serve(u"first"_s, 1, world.feed(u"Morning"_s, 6));
        world.serve(u"second"_s, 1, world.feed(u"Evening"_s, 6));
        world.start();
        world.guide->applicationDidBecomeActive();
        ASSERT_TRUE(world.check());
        // Until then the first selection would win over one that arrives.
        ASSERT_TRUE(world.guide->channels().finishWriting());
    }
    ~GuideCloudTest() override { world.end(); }
    using Query = std::function<void(TVListings& listings, MainBlock<ShowSpan> block)>;
    /// Asks again until the titles are these.
    bool lists(const Query& query, const QStringList& expected) {
        bool found = false;
        std::function<void()> ask = [&] {
            query(world.guide->listings(), {[&](const ShowSpan& shows) {
                      QStringList titles;
                      for (const ShowItem& show : shows) {
                          titles << show.entry()->title().value_or(QString());
                      }
                      found = titles == expected;
                      if (!found) {
                          ask();
                      }
                  }});
        };
        ask();
        return world.runUntil([&found] { return found; });
    }
    /// Whether the tab of the categories can be reached.
    bool tabsEnabled() { return world.guide->tabBarController().tabs().front().item.enabled; }

    MemoryRecordStore records{world.clock};
    GuideWorld world;
};

TEST_F(GuideCloudTest, ASelectionFromAnotherDeviceIsInForceAtOnce) {
    start();
    world.keyValueStore.setExternally(u"SelectedChannels"_s, selectionValue({GuideWorld::channel(2)}));
    EXPECT_EQ(world.guide->channels().selected(), std::vector{GuideWorld::channel(2)});
    EXPECT_TRUE(world.runUntil([this] { return world.titles(u"first"_s).isEmpty(); }));
    // Nothing in it is a channel.
    world.keyValueStore.setExternally(u"SelectedChannels"_s, QCborArray{7});
    EXPECT_TRUE(world.guide->channels().selected().empty());
    EXPECT_FALSE(tabsEnabled());
    world.keyValueStore.setExternally(u"SelectedChannels"_s, selectionValue({GuideWorld::channel(1)}));
    EXPECT_TRUE(tabsEnabled());
    EXPECT_TRUE(world.runUntil([this] { return world.titles(u"first"_s).size() == 6; })) << "it is loaded";
}

TEST_F(GuideCloudTest, AnEmptiedListOfRulesCanBeRestored) {
    std::vector<Favorite> rules;
    for (const QString& title : {u"A"_s, u"B"_s, u"C"_s, u"Morning 1"_s}) {
        rules.push_back({title, {}, Moment(), {}});
    }
    start();
    const auto favorites = [](TVListings& listings, MainBlock<ShowSpan> block) {
        listings.favoritesScheduleWithPriority(QueuePriority::UserInitiated, std::move(block));
    };
    world.keyValueStore.setExternally(u"Favorites"_s, favoritesMirror(rules));
    ASSERT_TRUE(lists(favorites, {u"Morning 1"_s}));
    world.keyValueStore.setExternally(u"Favorites"_s, favoritesMirror({}));
    TabBarController& tabs = world.guide->tabBarController();
    ASSERT_TRUE(world.runUntil([&] { return tabs.presentedNotice() != nullptr; }));
    EXPECT_EQ(tabs.presentedNotice()->actionTitle, u"Restore"_s);
    tabs.pressNoticeAction();
    EXPECT_TRUE(lists(favorites, {u"Morning 1"_s}));
    world.end();
    EXPECT_EQ(favoritesOfMirror(*world.keyValueStore.valueForKey(u"Favorites"_s)), rules)
        << "for all devices";
}

TEST_F(GuideCloudTest, CountersOfOthersMakeTheListOfPopularShows) {
    records.put({u"Evening 2"_s, 3, world.clock.now()});
    world.records = &records;
    start();
    const auto popular = [](TVListings& listings, MainBlock<ShowSpan> block) {
        listings.allShowsWithCategory(TVListingsCategoryMostWatched, QueuePriority::UserInitiated,
                                      std::move(block));
    };
    EXPECT_TRUE(lists(popular, {u"Evening 2"_s}));
    world.end();
    world.records = nullptr;
    world.start();
    EXPECT_TRUE(lists(popular, {u"Evening 2"_s})) << "from its file";
}

} // namespace
} // namespace guide
