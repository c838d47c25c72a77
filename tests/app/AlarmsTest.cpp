#include "app/GuideWorld.h"
#include "platform/memory/MemoryEventStore.h"
#include "screens/channels/EditChannelListViewController.h"
#include "screens/shell/GuideTabs.h"

#include <QCborArray>
#include <QDir>

#include <gtest/gtest.h>

namespace guide {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

struct GuideAlarmsTest : testing::Test {
    explicit GuideAlarmsTest(int shows = 6) {
        events.setDefaultCalendar(events
                                      .addCalendar({.identifier = {},
                                                    .title = u"TV"_s,
                                                    .source = u"Local"_s,
                                                    .allowsContentModifications = true})
                                      .identifier);
        world.eventStore = &events;
        world.serve(u"first"_s, 1, world.feed(u"Morning"_s, shows));
        world.serve(u"second"_s, 1, world.feed(u"Evening"_s, shows));
        Settings(world.userDefaults).setShowCount(shows);
        world.start();
        world.guide->applicationDidBecomeActive();
        EXPECT_TRUE(world.check());
        EXPECT_TRUE(world.runUntil([this] { return row(u"Morning 3"_s); }));
    }
    // The calendars must outlive the guide.
    ~GuideAlarmsTest() override { world.end(); }

    TabBarController& tabs() { return world.guide->tabBarController(); }
    TableViewController& screen() {
        return dynamic_cast<TableViewController&>(*tabs().selectedNavigationController().topViewController());
    }
    const Row* row(const QString& title) {
        const Table& table = screen().table();
        for (int index = 0; index < table.rowCount(); ++index) {
            const auto* show = std::get_if<ShowRow>(&table.rowAt(index).content);
            if (show && show->title == title) {
                return &table.rowAt(index);
            }
        }
        return nullptr;
    }
    QString badge() {
        return tabs()
            .tabs()[std::size_t(scheduleTabIndex(world.device.userInterfaceIdiom()))]
            .item.badgeValue;
    }
    void press(const QString& title) {
        for (const RowAction& action : screen().rowActions(row(title)->id)) {
            if (action.title == u"⏰"_s) {
                action.action();
            }
        }
    }

    void openOptions() {
        tabs().setSelectedIndex(static_cast<int>(tabs().tabs().size()) - 1);
        for (std::size_t index = 0; index < screen().rightBarButtons().size(); ++index) {
            if (screen().rightBarButtons()[index].kind == BarButton::Kind::Options) {
                return screen().pressRightBarButton(index);
            }
        }
    }

    MemoryEventStore events;
    GuideWorld world;
};

TEST_F(GuideAlarmsTest, AnAlarmOfARowIsAnEventAndFollowsTheCalendar) {
    const auto alarmed = [this] { return std::get<ShowRow>(row(u"Morning 3"_s)->content).alarmed; };
    press(u"Morning 3"_s);
    ASSERT_TRUE(world.runUntil([&] { return alarmed() && badge() == u"1"_s; }));
    const std::vector<CalendarEvent> made = events.events();
    ASSERT_EQ(made.size(), 1U);
    EXPECT_EQ(made[0].title, u"Morning 3"_s);

    // Another program removes it.
    events.remove(made[0].identifier);
    EXPECT_TRUE(world.runUntil([&] { return !alarmed() && badge().isEmpty(); }));
}

TEST_F(GuideAlarmsTest, AnEventFollowsAShowThatIsLate) {
    const auto alarmed = [this] {
        const Row* shown = row(u"Morning 3"_s);
        return shown && std::get<ShowRow>(shown->content).alarmed;
    };
    press(u"Morning 3"_s);
    ASSERT_TRUE(world.runUntil(alarmed));
    const CalendarEvent made = events.events().front();
    world.end();

    // Nothing of the old listings is left.
    QDir(world.folders.caches).removeRecursively();
    QDir().mkpath(world.folders.caches);
    world.clock.advance(30min);
    world.serve(u"first"_s, 1, world.feed(u"Morning"_s, 6));
    world.start();
    world.guide->applicationDidBecomeActive();
    ASSERT_TRUE(world.check());
    EXPECT_TRUE(world.runUntil([&] { return events.events().front().startDate == made.startDate + 30min; }));
    EXPECT_TRUE(world.runUntil(alarmed));
    ASSERT_EQ(events.events().size(), 1U);
    EXPECT_EQ(events.events().front().identifier, made.identifier);
}

TEST_F(GuideAlarmsTest, CalendarsOnServersAreAskedAgainWhenTheNetworkReturns) {
    const int before = events.refreshCount();
    world.networkWatch.appear();
    EXPECT_EQ(events.refreshCount(), before + 1);
}

TEST_F(GuideAlarmsTest, AnUpdateWithoutAWindowBringsTheAlarmsUpToDate) {
    press(u"Morning 3"_s);
    ASSERT_TRUE(world.runUntil([&] { return events.events().size() == 1; }));
    const CalendarEvent made = events.events().front();
    const auto update = [this] {
        world.state.state = ApplicationState::Background;
        world.start();
        std::optional<QuellinGuideAppDelegate::UnattendedUpdate> ended;
        world.guide->updateUnattended([&](const auto& result) { ended = result; });
        EXPECT_TRUE(world.runUntil([&] { return ended.has_value(); }));
        return ended.value_or(QuellinGuideAppDelegate::UnattendedUpdate());
    };
    world.end();
    EXPECT_TRUE(update().stored.empty()) << "nothing is due";
    world.end();

    QDir(world.folders.caches).removeRecursively();
    QDir().mkpath(world.folders.caches);
    world.clock.advance(30min);
    world.serve(u"first"_s, 1, world.feed(u"Morning"_s, 6));
    world.server->serve(GuideWorld::feedPath(u"second"_s, 1), ServerReply::answer(404, {}));
    const auto updated = update();
    EXPECT_EQ(updated.stored, std::unordered_set<ObjectId>{GuideWorld::channel(1)});
    EXPECT_EQ(updated.failed, std::unordered_set<ObjectId>{GuideWorld::channel(2)});
    ASSERT_EQ(events.events().size(), 1U);
    EXPECT_EQ(events.events().front().startDate, made.startDate + 30min) << "before the end is told";
}

TEST_F(GuideAlarmsTest, ErasingReachesTheCalendarAndEveryStore) {
    press(u"Morning 3"_s);
    ASSERT_TRUE(world.runUntil([&] { return badge() == u"1"_s; }));
    openOptions();
    const auto pressButton = [this](const QString& title) {
        const auto button = [&]() -> const Row* {
            const Table& table = screen().table();
            for (int index = 0; index < table.rowCount(); ++index) {
                const auto* content = std::get_if<ButtonRow>(&table.rowAt(index).content);
                if (content && content->title == title && content->enabled) {
                    return &table.rowAt(index);
                }
            }
            return nullptr;
        };
        EXPECT_TRUE(world.runUntil([&] { return button() != nullptr; })) << title.toStdString();
        screen().sendRowEvent(RowId(button()->id), Tapped{});
    };
    pressButton(u"Delete…"_s);
    pressButton(u"Delete"_s);
    tabs().answerAlert(1);
    ASSERT_TRUE(world.runUntil([&] { return tabs().presentedAlert() != nullptr; }));
    EXPECT_EQ(
        tabs().presentedAlert()->message,
        u"2 selected channel(s)\n1 favourite(s)\n1 alert(s) in the calendar\nthe choice of the calendar"_s);
    EXPECT_TRUE(events.events().empty());
    EXPECT_FALSE(tabs().tabs().front().item.enabled);
    world.end();
    EXPECT_FALSE(world.userDefaults.stringForKey(u"selectedCalendar"_s));
    EXPECT_FALSE(world.keyValueStore.valueForKey(u"lastAlarmMinutes"_s));
    EXPECT_EQ(world.keyValueStore.valueForKey(u"SelectedChannels"_s), QCborValue(QCborArray()));
}

struct ManyGuideAlarmsTest : GuideAlarmsTest {
    static constexpr int kAlarms = 10;
    ManyGuideAlarmsTest()
        : GuideAlarmsTest(kAlarms + 2) {}
};

TEST_F(ManyGuideAlarmsTest, AnUpdateWithoutAWindowLeavesItsQuestionToTheNextWindow) {
    for (int i = 1; i <= kAlarms; ++i) {
        press(u"Morning %1"_s.arg(i));
    }
    ASSERT_TRUE(world.runUntil([&] { return events.events().size() == kAlarms; }));
    world.end();
    QDir(world.folders.caches).removeRecursively();
    QDir().mkpath(world.folders.caches);
    // One is left, so the schedules do know some.
    world.serve(u"first"_s, 1, world.feed(u"Other"_s, kAlarms).replace("Other 1<", "Morning 1<"));

    world.state.state = ApplicationState::Background;
    world.start();
    bool ended = false;
    world.guide->updateUnattended([&](const auto&) { ended = true; });
    ASSERT_TRUE(world.runUntil([&] { return ended; }));
    EXPECT_FALSE(tabs().presentedAlert());
    world.end();

    world.state.state = ApplicationState::Active;
    world.start();
    ASSERT_TRUE(world.runUntil([this] { return tabs().presentedAlert(); }));
    EXPECT_EQ(events.events().size(), kAlarms);
    tabs().answerAlert(0);
    EXPECT_TRUE(world.runUntil([this] { return events.events().size() == 1; })) << "the first answer removes";
}

TEST_F(GuideAlarmsTest, TheUserDecidesAboutRemovalsThatAreHeldBack) {
    press(u"Morning 3"_s);
    ASSERT_TRUE(world.runUntil([&] { return badge() == u"1"_s; }));
    const CalendarEvent own = events.events().front();
    std::vector<CalendarEvent> all;
    for (int hour = 0; hour < 12; ++hour) {
        CalendarEvent gone = own;
        gone.title = u"Gone %1"_s.arg(hour);
        gone.startDate += std::chrono::days(2) + std::chrono::hours(hour);
        gone.endDate = gone.startDate + 1h;
        gone.url = urlOfDigest(showDigest(world.channel(1), gone.startDate, gone.title), u"guide"_s);
        gone.identifier = gone.title;
        all.push_back(std::move(gone));
    }
    // A run that is under way must not see fewer than the brake looks at.
    events.addEvents(std::move(all));
    // A broadcast that is new makes the next run a full one.
    const auto listAgain = [this](int shows) {
        world.clock.advance(25h);
        world.serve(u"first"_s, 1, world.feed(u"Morning"_s, shows));
        EXPECT_TRUE(world.check());
    };
    const auto isAsked = [this] { return tabs().presentedAlert() != nullptr; };
    listAgain(7);
    ASSERT_TRUE(world.runUntil(isAsked));
    EXPECT_EQ(tabs().presentedAlert()->actions[1].title, u"Keep"_s);
    tabs().answerAlert(1);
    world.runFor(50ms);
    EXPECT_FALSE(isAsked());
    EXPECT_EQ(events.events().size(), 13U);
    world.end();

    // The decision is not remembered.
    world.start();
    world.guide->applicationDidBecomeActive();
    listAgain(8);
    ASSERT_TRUE(world.runUntil(isAsked));
    tabs().answerAlert(0);
    EXPECT_TRUE(world.runUntil([this] { return events.events().size() < 3; }))
        << events.events().size() << " events, " << (isAsked() ? "asked again" : "not asked");
}

TEST_F(GuideAlarmsTest, ASettingOfTheOptionsShowsAtOnce) {
    ASSERT_TRUE(row(u"Morning 1"_s));
    const int currently = tabs().selectedIndex();
    openOptions();
    ASSERT_EQ(screen().title(), u"Options"_s);
    for (int index = 0; index < screen().table().rowCount(); ++index) {
        const Row choice = screen().table().rowAt(index);
        const auto* content = std::get_if<ChoiceRow>(&choice.content);
        if (content && content->title == u"Shows per channel"_s) {
            // One.
            screen().sendRowEvent(choice.id, Chosen{0});
            break;
        }
    }
    tabs().setSelectedIndex(currently);
    EXPECT_TRUE(world.runUntil([this] { return row(u"Morning 0"_s) && !row(u"Morning 1"_s); }));
}

} // namespace
} // namespace guide
