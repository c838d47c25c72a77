#include "app/GuideWorld.h"
#include "core/ListingsFile.h"
#include "screens/kit/TableViewController.h"

#include <QDir>

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// Past the end of the silence that follows an activation and an alert.
constexpr auto kSilence = 61s;
/// Half as much again as the world's small device unpacks of any page.
constexpr std::uint64_t kBombSize = std::uint64_t(48) << 20;

TEST(Guide, LoadsShowsAndFindsThemAgainAfterARestart) {
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
    EXPECT_EQ(world.server->requestCount(), 0) << "what is fresh is not asked for again";
}

TEST(Guide, KeepsItsListsWhateverTheServerDoes) {
    using Kind = Misbehaviour::Kind;
    const struct {
        const char* name;
        Misbehaviour how;
        /// Whether nothing at all came over the wire: what the person is told of.
        bool alert;
    } cases[] = {
        {"not found", {Kind::Status, 404}, false},
        {"server error", {Kind::Status, 503}, false},
        {"redirects without end", {Kind::RedirectForever}, false},
        {"empty body", {Kind::EmptyBody}, false},
        {"dropped", {Kind::Drop}, true},
        {"cut in the body", {Kind::CutBody}, true},
        {"silent", {Kind::Stall}, true},
        {"wrong charset", {Kind::WrongCharset}, false},
        {"broken gzip", {Kind::BrokenGzip}, false},
        {"broken xz", {Kind::BrokenXz}, false},
        {"gzip bomb", {.kind = Kind::GzipBomb, .bombSize = kBombSize}, false},
        {"xz bomb", {.kind = Kind::XzBomb, .bombSize = kBombSize}, false},
        {"a web page", {Kind::HTML}, false},
        {"garbage", {Kind::Garbage}, false},
    };
    GuideWorld world;
    world.serve(u"first"_s, 1, world.feed(u"Kept"_s, 12 * 24));
    world.serve(u"second"_s, 1, world.feed(u"Kept"_s, 12 * 24));
    world.serve(u"second"_s, 2, world.feed(u"Other"_s, 12 * 24));
    world.start();
    world.guide->applicationDidBecomeActive();
    ASSERT_TRUE(world.check());
    ASSERT_EQ(world.titles(u"first"_s).size(), 12 * 24);
    TabBarController& tabs = world.guide->tabBarController();
    ASSERT_EQ(tabs.presentedAlert(), nullptr);

    for (const auto& each : cases) {
        world.userDefaults.setInteger(u"data_update"_s, 3600);
        world.clock.advance(3601s);
        const QByteArrayList paths{GuideWorld::feedPath(u"first"_s, 1), GuideWorld::feedPath(u"first"_s, 2),
                                   GuideWorld::feedPath(u"second"_s, 1)};
        for (const QByteArray& path : paths) {
            world.server->misbehave(path, each.how);
        }
        world.hopelessPaths = each.how.kind == Kind::Stall ? paths : QByteArrayList();
        world.serve(u"second"_s, 2, world.feed(u"Other"_s, 12 * 24));
        ASSERT_TRUE(world.check()) << each.name;
        EXPECT_TRUE(world.titles(u"first"_s).value(0).startsWith(u"Kept"_s)) << each.name;
        EXPECT_EQ(world.titles(u"second"_s).value(0), u"Other 0"_s)
            << each.name << ": the second source takes over";
        EXPECT_EQ(tabs.presentedAlert() != nullptr, each.alert) << each.name;
        if (tabs.presentedAlert()) {
            tabs.answerAlert(0);
            EXPECT_EQ(tabs.presentedAlert(), nullptr) << each.name << ": told once";
        }
        world.server->behave();
    }
}

TEST(Guide, AFailedReloadTakesNothingFromTheNextStart) {
    GuideWorld world;
    world.serve(u"first"_s, 1, world.feed(u"Last"_s, 2));
    world.serve(u"second"_s, 1, world.feed(u"Many"_s, 12));
    world.start();
    world.guide->applicationDidBecomeActive();
    ASSERT_TRUE(world.check());
    world.end();

    // The first list runs short, the second is to be loaded anew, and nobody has either of them.
    world.server->misbehaveEverywhere({Misbehaviour::Kind::Status, 503});
    world.start();
    world.guide->channels().channelWithChannelId(GuideWorld::channel(u"second"_s))->requireReload();
    world.server->forgetRequests();
    ASSERT_TRUE(world.check());
    EXPECT_EQ(world.server->requestCount(GuideWorld::feedPath(u"first"_s, 2)), 2);
    EXPECT_EQ(world.server->requestCount(GuideWorld::feedPath(u"second"_s, 2)), 2);
    world.end();

    world.start();
    EXPECT_EQ(world.titles(u"first"_s), (QStringList{u"Last 0"_s, u"Last 1"_s}));
    EXPECT_EQ(world.titles(u"second"_s).size(), 12);
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

TEST(Guide, TellsOnceAMinuteThatNoServerAnswers) {
    GuideWorld world;
    world.start();
    world.guide->applicationDidBecomeActive();
    world.server->stop();
    ASSERT_TRUE(world.check());
    TabBarController& tabs = world.guide->tabBarController();
    EXPECT_EQ(tabs.presentedAlert(), nullptr) << "just after the activation the connection may need a while";
    world.clock.advance(kSilence);
    ASSERT_TRUE(world.check());
    ASSERT_NE(tabs.presentedAlert(), nullptr);
    EXPECT_EQ(tabs.presentedAlert()->title, u"Unable to establish connection to remote server"_s);
    tabs.answerAlert(0);
    EXPECT_EQ(tabs.presentedAlert(), nullptr) << "four transfers, each tried twice, are one alert";
    world.clock.advance(30s);
    ASSERT_TRUE(world.check());
    EXPECT_EQ(tabs.presentedAlert(), nullptr);
    world.clock.advance(kSilence);
    ASSERT_TRUE(world.check());
    EXPECT_NE(tabs.presentedAlert(), nullptr);
}

TEST(Guide, EndsAtOnceWhileAScreenHoldsALoadBack) {
    GuideWorld world;
    world.start();
    world.guide->applicationDidBecomeActive();
    // The screen's answer lies on the main queue, which runs no more.
    world.waitForCheck();
    const auto begun = std::chrono::steady_clock::now();
    world.end();
    EXPECT_LT(std::chrono::steady_clock::now() - begun, 5s);
}

TEST(Guide, ForgetsAChannelThatTheCatalogueHasLost) {
    GuideWorld world;
    world.start();
    const ObjectId lost = ObjectId::fromHex(u"58f4ded60befe78cb3360099"_s);
    world.guide->channels().setSelected({lost, GuideWorld::channel(u"first"_s)});
    ASSERT_TRUE(world.runUntil([&] { return world.guide->channels().selected().size() == 1; }))
        << "the clean-up runs behind the launch";
    EXPECT_EQ(world.guide->channels().selected().front(), GuideWorld::channel(u"first"_s));
}

TEST(Guide, OpensOnTheListOfChannelsWhileNoneIsSelected) {
    GuideWorld world;
    QFile::remove(world.folders.caches + u"/../selection.json"_s);
    world.start();
    const auto& tabs = world.guide->tabBarController().tabs();
    EXPECT_EQ(world.guide->tabBarController().selectedIndex(), int(tabs.size()) - 1);
    for (std::size_t i = 0; i + 1 < tabs.size(); ++i) {
        EXPECT_FALSE(tabs[i].item.enabled) << i;
    }
}

} // namespace
} // namespace guide
