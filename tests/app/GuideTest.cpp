#include "app/GuideWorld.h"
#include "app/KnownChannels.h"
#include "core/ListingsFile.h"
#include "fakes/Packing.h"
#include "screens/kit/TableViewController.h"

#include <QDir>

#include <algorithm>
#include <atomic>
#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// One and a half times the unpacking limit of the small device in these tests.
constexpr qsizetype kBombSize = qsizetype(48) << 20;

TEST(Guide, LoadsShowsAndKeepsThemAcrossARestart) {
    GuideWorld world;
    world.serve(u"first"_s, 1, world.feed(u"Morning"_s, 6));
    world.serve(u"second"_s, 1, world.feed(u"Evening"_s, 6));
    world.start();
    world.guide->applicationDidBecomeActive();
    ASSERT_TRUE(world.check());
    const auto& table =
        dynamic_cast<const TableViewController&>(
            *world.guide->tabBarController().selectedNavigationController().topViewController())
            .table();
    ASSERT_TRUE(
        world.runUntil([&] { return table.sections().size() == 2 && table.sections()[0].rows.size() == 5; }));
    EXPECT_EQ(std::get<ShowRow>(table.rowAt(1).content).title, u"Morning 0"_s);
    EXPECT_EQ(world.titles(u"second"_s).size(), 6);
    world.end();

    world.server->forgetRequests();
    world.start();
    EXPECT_EQ(world.titles(u"first"_s).value(0), u"Morning 0"_s);
    ASSERT_TRUE(world.check());
    EXPECT_TRUE(world.server->requests().empty()) << "fresh lists are not requested again";
}

TEST(Guide, ChosenChannelsAreLoadedAtOnceAndRemovedOnesAreNot) {
    GuideWorld world;
    world.serve(u"first"_s, 1, world.feed(u"Morning"_s, 6));
    world.serve(u"second"_s, 1, world.feed(u"Evening"_s, 6));
    world.firstSelection.clear();
    world.device.idiom = UserInterfaceIdiom::Phone;
    world.start();
    world.guide->applicationDidBecomeActive();
    ASSERT_TRUE(world.check());
    TabBarController& tabs = world.guide->tabBarController();
    const auto enabled = [&tabs] {
        return std::ranges::count_if(tabs.tabs(), [](const auto& tab) { return tab.item.enabled; });
    };
    NavigationController& stack = tabs.selectedNavigationController();
    const auto top = [&stack] { return dynamic_cast<TableViewController*>(stack.topViewController().get()); };
    const auto tap = [&top](int row) { top()->sendRowEvent(top()->table().rowAt(row).id, Tapped{}); };
    EXPECT_EQ(top()->title(), u"Selected Channels"_s);
    EXPECT_EQ(enabled(), 1);
    EXPECT_TRUE(world.server->requests().empty());

    top()->rightBarButtons().front().action();
    tap(0);
    tap(0);
    EXPECT_EQ(enabled(), static_cast<std::ptrdiff_t>(tabs.tabs().size()));
    ASSERT_TRUE(world.runUntil([&] { return world.titles(u"first"_s).size() == 6; }));
    tap(1);
    ASSERT_TRUE(world.runUntil([&] { return world.titles(u"second"_s).size() == 6; }));
    stack.popToRoot();
    EXPECT_TRUE(world.runUntil([&] {
        const RowContent& row = top()->table().rowAt(1).content;
        return std::get<ChannelRow>(row).subtitle.startsWith(u"127.0.0.1 · updated"_s);
    }));

    world.server->forgetRequests();
    const std::vector<ObjectId> both = world.guide->channels().selected();
    top()->sendRowEvent(top()->table().rowAt(0).id, Deleted{});
    EXPECT_EQ(world.titles(u"first"_s).size(), 0);
    tabs.pressNoticeAction();
    EXPECT_EQ(world.titles(u"first"_s).size(), 6);
    ASSERT_TRUE(world.check());
    EXPECT_EQ(world.guide->channels().selected(), both);
    EXPECT_TRUE(world.server->requests().empty()) << "the lists are still there";
    for (int channel = 0; channel < 2; ++channel) {
        top()->sendRowEvent(top()->table().rowAt(0).id, Deleted{});
    }
    EXPECT_EQ(enabled(), 1);
}

ServerReply page(const QByteArray& body, const QByteArray& type) {
    return ServerReply::ok(body, {"Content-Type: " + type});
}

TEST(Guide, KeepsItsListsWhateverTheServerDoes) {
    GuideWorld world;
    const QByteArray feed = world.feed(u"Kept"_s, 12 * 24);
    world.serve(u"first"_s, 1, feed);
    world.serve(u"second"_s, 1, feed);
    world.serve(u"second"_s, 2, world.feed(u"Other"_s, 12 * 24));
    world.start();
    world.guide->applicationDidBecomeActive();
    ASSERT_TRUE(world.check());
    ASSERT_EQ(world.titles(u"first"_s).size(), 12 * 24);
    TabBarController& tabs = world.guide->tabBarController();
    ASSERT_EQ(tabs.presentedAlert(), nullptr);

    const QByteArray moved = world.server->base().toLatin1() + "/moved";
    world.server->router().serveBelow("/moved", [&moved](const ServerRequest& request) {
        return ServerReply::redirect(moved + request.target);
    });
    const QByteArray announced =
        ServerReply::head(200, {"Content-Length: " + QByteArray::number(feed.size())});
    const QByteArray large(kBombSize, ' ');
    const struct {
        const char* name;
        ServerReply reply;
        /// Whether the connection fails, which the user is alerted to.
        bool alert;
        /// Whether some shows can be read, so that the second source is not asked.
        bool hasShows = false;
    } cases[] = {
        {"not found", ServerReply::answer(404, feed), false},
        {"server error", ServerReply::answer(503, feed), false},
        {"endless redirects", ServerReply::redirect(moved), false},
        {"empty body", page({}, "text/xml"), false},
        {"dropped", {}, true},
        {"cut off in the body", ServerReply::raw(announced + feed.first(feed.size() / 2)), true},
        {"silent", ServerReply::raw({}, ServerReply::End::Stall), true},
        {"wrong charset", page("<tv><!-- P\xf8\xedli\x9a --></tv>", "text/xml; charset=utf-8"), false},
        {"broken gzip", page(damaged(gzipped(feed)), "application/x-gzip"), false, true},
        {"broken xz", page(damaged(xzPacked(feed)), "application/x-xz"), false, true},
        {"cut gzip", page(gzipped(feed).chopped(1'000), "application/x-gzip"), false, true},
        {"an HTML entity", page(QByteArray(feed).replace("Kept 100<", "Kept&nbsp;100<"), "text/xml"), false,
         true},
        {"gzip bomb", page(gzipped(large), "application/x-gzip"), false},
        {"xz bomb", page(xzPacked(large, 0), "application/x-xz"), false},
        {"a web page", page("<!DOCTYPE html>\n<html><p>Under construction<br></html>", "text/html"), false},
        {"garbage", page(gzipped(feed).sliced(2), "application/xml"), false},
    };
    for (const auto& each : cases) {
        world.userDefaults.setInteger(u"data_update"_s, 3600);
        world.clock.advance(3601s);
        const auto listed = world.titles(u"first"_s).size();
        const QByteArrayList paths{GuideWorld::feedPath(u"first"_s, 1), GuideWorld::feedPath(u"first"_s, 2),
                                   GuideWorld::feedPath(u"second"_s, 1)};
        for (const QByteArray& path : paths) {
            world.server->serve(path, each.reply);
        }
        world.silentPaths = each.reply.end == ServerReply::End::Stall ? paths : QByteArrayList();
        world.serve(u"second"_s, 2, world.feed(u"Other"_s, 12 * 24));
        ASSERT_TRUE(world.check()) << each.name;
        EXPECT_TRUE(world.titles(u"first"_s).value(0).startsWith(u"Kept"_s)) << each.name;
        EXPECT_EQ(world.titles(u"first"_s).size(), listed) << each.name;
        EXPECT_TRUE(world.titles(u"second"_s).value(0).startsWith(each.hasShows ? u"Kept"_s : u"Other 0"_s))
            << each.name;
        EXPECT_EQ(world.guide->sourceHealth().healthFor(GuideWorld::channel(2))->used->incomplete,
                  each.hasShows)
            << each.name;
        EXPECT_EQ(tabs.presentedAlert() != nullptr, each.alert) << each.name;
        if (tabs.presentedAlert()) {
            tabs.answerAlert(0);
            EXPECT_EQ(tabs.presentedAlert(), nullptr) << each.name << ": shown once";
        }
        world.serve(u"first"_s, 1, feed);
        world.serve(u"second"_s, 1, feed);
        world.server->router().remove(GuideWorld::feedPath(u"first"_s, 2));
    }
}

TEST(Guide, ASlowHostHoldsUpNoOther) {
    using SteadyClock = std::chrono::steady_clock;
    ScriptedServer slow;
    ScriptedServer other;
    GuideWorld world({slow.base() + u"/slow.xml"_s, u"http://%1/good.xml"_s, other.base() + u"/good.xml"_s});
    ServerReply drip = ServerReply::raw(ServerReply::head(200, {"Content-Length: 1000"}));
    for (int i = 0; i < 60; ++i) {
        drip.then("x", 1s);
    }
    slow.serve("/slow.xml", drip);
    std::atomic<SteadyClock::rep> answered = 0;
    for (ScriptedServer* server : {world.server.get(), &other}) {
        server->router().serveBelow("/good.xml", [&](const ServerRequest&) {
            answered = std::max(answered.load(), SteadyClock::now().time_since_epoch().count());
            return page(world.feed(u"Good"_s, 6), "text/xml");
        });
    }
    world.start();
    world.guide->applicationDidBecomeActive();
    const auto isLoaded = [&](int channel) {
        return world.guide->channels()
            .channelWithChannelId(GuideWorld::channel(channel))
            ->timeLoaded()
            .has_value();
    };
    ASSERT_TRUE(world.runUntil([&] { return isLoaded(2) && isLoaded(3); }));
    EXPECT_LT(SteadyClock::now().time_since_epoch() - SteadyClock::duration(answered), 1s);
    EXPECT_TRUE(slow.waitForRequests(1));
    EXPECT_FALSE(isLoaded(1));
    EXPECT_TRUE(world.runUntil([&] { return world.shows(GuideWorld::channel(3)).size() == 6; }));
    world.end();
}

TEST(Guide, LoadsWhatFailedWhenTheNetworkIsBack) {
    GuideWorld world;
    world.start();
    world.guide->applicationDidBecomeActive();
    const auto first = world.guide->channels().channelWithChannelId(GuideWorld::channel(1));
    ASSERT_TRUE(world.runUntil([&] { return first->loadFailure().has_value(); }));
    EXPECT_EQ(*first->loadFailure(), (LoadFailure{LoadFailureReason::Status, u"127.0.0.1"_s, 404}));
    world.serve(u"first"_s, 1, world.feed(u"Back"_s, 6));
    world.networkWatch.appear();
    EXPECT_TRUE(world.runUntil([&] { return first->timeLoaded().has_value(); }));
    EXPECT_EQ(first->loadFailure(), std::nullopt);
}

TEST(Guide, WritesItsListsWhenMemoryIsShort) {
    GuideWorld world;
    world.serve(u"first"_s, 1, world.feed(u"Morning"_s, 6));
    world.start();
    world.guide->applicationDidBecomeActive();
    ASSERT_TRUE(world.check());
    const QString file =
        world.folders.caches + u'/' + listingsFileFromChannelIdentificator(GuideWorld::channel(u"first"_s));
    EXPECT_FALSE(QFile::exists(file));
    world.guide->applicationDidReceiveMemoryWarning();
    EXPECT_TRUE(world.runUntil([&] { return QFile::exists(file); }));
    EXPECT_EQ(world.titles(u"first"_s).size(), 6);
}

TEST(Guide, OpensAReadOnlyProfileAndSaysSoOnce) {
    GuideWorld world;
    world.serve(u"first"_s, 1, world.feed(u"Morning"_s, 6));
    world.start();
    ASSERT_TRUE(world.check());
    EXPECT_EQ(world.guide->tabBarController().presentedNotice(), nullptr);
    world.end();

    world.folders.writable = false;
    world.serve(u"second"_s, 1, world.feed(u"Noon"_s, 6));
    const auto entries = [&] {
        QStringList found;
        for (const QFileInfo& info : QDir(world.folders.caches).entryInfoList(QDir::Files)) {
            found.append(info.fileName() + info.lastModified().toString(Qt::ISODateWithMs));
        }
        return found;
    };
    const QStringList before = entries();
    world.start();
    ASSERT_NE(world.guide->tabBarController().presentedNotice(), nullptr);
    EXPECT_EQ(world.titles(u"first"_s).value(0), u"Morning 0"_s);
    world.guide->tabBarController().dismissNotice();
    ASSERT_TRUE(world.check());
    EXPECT_EQ(world.guide->tabBarController().presentedNotice(), nullptr);
    EXPECT_EQ(world.titles(u"second"_s).size(), 6) << "kept in memory";
    world.end();
    EXPECT_EQ(entries(), before);
}

TEST(Guide, ShutsDownQuicklyWhileAScreenSuspendsTheLoadQueue) {
    GuideWorld world;
    world.start();
    world.guide->applicationDidBecomeActive();
    // The answer for the screen is on the main queue, which is not running.
    world.waitForCheck();
    const auto begun = std::chrono::steady_clock::now();
    world.end();
    EXPECT_LT(std::chrono::steady_clock::now() - begun, 5s);
}

TEST(Guide, DeselectsWhatLeftTheCatalogueButNotWhatADeviceWithANewerOneSelected) {
    GuideWorld world;
    const ObjectId first = GuideWorld::channel(u"first"_s);
    const ObjectId lost = ObjectId::fromHex(u"58f4ded60befe78cb3360099"_s);
    const ObjectId newer = ObjectId::fromHex(u"58f4ded60befe78cb3360098"_s);
    world.start();
    world.guide->channels().setSelected({lost, first});
    ASSERT_TRUE(world.runUntil([&] { return world.guide->channels().selected().size() == 1; }))
        << "the clean-up runs after the launch";
    EXPECT_EQ(world.guide->channels().selected().front(), first);
    world.guide->channels().setSelected({newer, first});
    world.end();

    const auto selectedAfterCatalogueOf = [&](const std::vector<CatalogueChannel>& before) {
        keepKnownChannels(world.folders, before);
        world.start();
        EXPECT_TRUE(world.runUntil([&] { return knownChannels(world.folders)->size() > before.size(); }));
        const std::vector<ObjectId> selected = world.guide->channels().selected();
        world.end();
        return selected;
    };
    EXPECT_EQ(selectedAfterCatalogueOf({}), std::vector({newer, first}));
    EXPECT_EQ(selectedAfterCatalogueOf({{.id = newer, .title = {}, .language = {}, .region = {}}}),
              std::vector({first}));
}

TEST(Guide, WithoutASelectionOpensOnTheListOfChannels) {
    GuideWorld world;
    world.firstSelection.clear();
    world.start();
    const auto& tabs = world.guide->tabBarController().tabs();
    EXPECT_EQ(world.guide->tabBarController().selectedIndex(), int(tabs.size()) - 1);
    for (std::size_t i = 0; i + 1 < tabs.size(); ++i) {
        EXPECT_FALSE(tabs[i].item.enabled) << i;
    }
}

} // namespace
} // namespace guide
