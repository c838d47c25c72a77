#include "app/GuideWorld.h"
#include "app/RecordedShowsLookup.h"
#include "fakes/ManualQueues.h"
#include "screens/kit/TableViewController.h"
#include "screens/shell/GuideTabs.h"

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

TEST(GuideFavorites, AreAddedBySwipeListedInTheScheduleAndKept) {
    GuideWorld world;
    world.serve(u"first"_s, 1, world.feed(u"Morning"_s, 6));
    world.serve(u"second"_s, 1, world.feed(u"Evening"_s, 6));
    const auto topScreen = [&world]() -> TableViewController& {
        return dynamic_cast<TableViewController&>(
            *world.guide->tabBarController().selectedNavigationController().topViewController());
    };
    const auto rowTitled = [&](const QString& title) -> const Row* {
        const Table& table = topScreen().table();
        for (int row = 0; row < table.rowCount(); ++row) {
            const auto* show = std::get_if<ShowRow>(&table.rowAt(row).content);
            if (show && show->title == title) {
                return &table.rowAt(row);
            }
        }
        return nullptr;
    };
    const auto isFavourite = [&](const QString& title) {
        const Row* row = rowTitled(title);
        return row && std::get<ShowRow>(row->content).favourite;
    };

    world.start();
    world.guide->applicationDidBecomeActive();
    ASSERT_TRUE(world.check());
    ASSERT_TRUE(world.runUntil([&] { return rowTitled(u"Morning 1"_s); }));
    topScreen().rowActions(rowTitled(u"Morning 1"_s)->id).back().action();
    ASSERT_TRUE(world.runUntil([&] { return isFavourite(u"Morning 1"_s); }));
    world.end();

    world.start();
    ASSERT_TRUE(world.runUntil([&] { return isFavourite(u"Morning 1"_s); }));
    EXPECT_FALSE(isFavourite(u"Morning 0"_s));
    world.guide->tabBarController().setSelectedIndex(scheduleTabIndex(world.device.userInterfaceIdiom()));
    ASSERT_TRUE(world.runUntil([&] { return topScreen().table().rowCount() == 1; }));
    EXPECT_TRUE(isFavourite(u"Morning 1"_s));

    topScreen().rowActions(rowTitled(u"Morning 1"_s)->id).front().action();
    ASSERT_TRUE(world.guide->tabBarController().presentedAlert());
    world.guide->tabBarController().answerAlert(0);
    ASSERT_TRUE(world.runUntil([&] { return topScreen().table().rowCount() == 0; }));
}

TEST(RecordedShowsLookup, GivesOnlyAddressesOfTheWeb) {
    ManualClock clock;
    ManualQueues queues{clock};
    const auto hosts = SourceHostTable::fromJson(R"({"HRTHost": "hrt.example"})");
    const PageSource pages = [](const QUrl& url) {
        return std::optional<QByteArray>(url.path() == u"/enz/"_s
                                             ? R"(<a href="/enz/news/">News</a>)"
                                             : R"(<select x><option value="1">A</option>)"
                                               R"(<option value="http://y/z">B</option>)"
                                               R"(<option value="javascript:x">C</option></select>)");
    };
    RecordedShowsLookup lookup(queues, *hosts, pages);
    const auto ask = [&](const QString& title) {
        std::optional<QStringList> found;
        lookup.recordedShowsWithTitle(
            title, MainBlock<std::vector<RecordedShow>>([&](const std::vector<RecordedShow>& shows) {
                found.emplace();
                for (const RecordedShow& show : shows) {
                    *found << show.label + u' ' + show.url.value_or(QUrl()).toString();
                }
            }));
        EXPECT_FALSE(found) << "works in the background";
        queues.runAll();
        return found;
    };
    EXPECT_EQ(ask(u"News"_s),
              QStringList({u"A https://hrt.example/enz/news/1"_s, u"B http://y/z"_s, u"C "_s}));
    EXPECT_EQ(ask(u"Other"_s), QStringList());
}

} // namespace
} // namespace guide
