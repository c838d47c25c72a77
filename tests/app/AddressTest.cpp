// The address of a show, from the command line, the desktop and a second start of the program.
#include "app/GuideWorld.h"
#include "app/InstanceRequest.h"
#include "screens/detail/DetailViewController.h"
#include "store/ShowDigest.h"

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

TEST(Address, OpensItsShow) {
    GuideWorld world;
    world.serve(u"first"_s, 1, world.feed(u"Film"_s, 3));
    world.start();
    ASSERT_TRUE(world.check());
    const auto shows = world.shows(GuideWorld::channel(1));
    ASSERT_EQ(shows.size(), 3U);
    const auto address = [&](std::size_t show) {
        return urlDigestFromChannel(GuideWorld::channel(1), shows[show].first, shows[show].second, u"guide"_s)
            ->toString();
    };
    TabBarController& tabs = world.guide->tabBarController();
    world.guide->openURL(address(1));
    ASSERT_TRUE(
        world.runUntil([&] { return tabs.selectedNavigationController().viewControllers().size() == 2; }));
    const auto* detail = dynamic_cast<const DetailViewController*>(
        tabs.selectedNavigationController().topViewController().get());
    ASSERT_TRUE(detail);
    EXPECT_EQ(detail->show().entry()->title(), shows[1].second);

    EXPECT_TRUE(world.openedExternally.empty());
    world.guide->openURL(address(1) + u"/play"_s);
    EXPECT_TRUE(world.runUntil([&] {
        return world.openedExternally == std::vector{QUrl(u"https://stream.example/1"_s)};
    })) << "without a player of its own";
    EXPECT_EQ(tabs.selectedNavigationController().viewControllers().size(), 3U);
    tabs.selectedNavigationController().pop();

    world.clock.advance(90min);
    const QString none = u"guide://c"_s + QString(32, u'0');
    for (const QString& other : {address(0), none, address(2).replace("guide:"_L1, "http:"_L1), u"guide://"_s,
                                 u"guide:"_s, QString(), address(2) + u"/../etc"_s, address(2) + u"/play/1"_s,
                                 none + QString(100'000, u'0'), u"javascript:alert(1)"_s}) {
        world.guide->openURL(other);
        EXPECT_TRUE(world.runUntil([&] { return tabs.presentedNotice() != nullptr; }))
            << other.left(50).toStdString();
        tabs.dismissNotice();
        EXPECT_EQ(tabs.selectedNavigationController().viewControllers().size(), 2U);
    }
}

TEST(Address, IsHandedToTheRunningGuide) {
    const struct {
        InstanceRequest sent;
        InstanceRequest received;
    } cases[] = {
        {{u"guide://c0"_s, "token"}, {u"guide://c0"_s, "token"}},
        {{}, {}},
        {{{}, {}, {}, true}, {{}, {}, {}, true}},
        {{u"guide://č"_s, {}}, {u"guide://č"_s, {}}},
        {{u"two\nlines"_s, "a\tb"}, {}},
        {{QString(100'000, u'x'), QByteArray(100'000, 'x')}, {}},
    };
    for (const auto& each : cases) {
        const QByteArray line = lineOf(each.sent);
        EXPECT_FALSE(line.contains('\n'));
        EXPECT_EQ(requestIn(line), each.received);
    }
    EXPECT_EQ(requestIn("guide://c0"), (InstanceRequest{u"guide://c0"_s, {}})) << "without a token";
}

} // namespace
} // namespace guide
