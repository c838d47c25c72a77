#include "ScreenWorld.h"
#include "screens/alarms/AlarmJournalViewController.h"
#include "screens/alarms/AlarmTexts.h"
#include "screens/compound/CompoundListingsViewController.h"
#include "screens/detail/DetailViewController.h"
#include "screens/favorites/FavoriteSettingsTimeThresholdViewController.h"

namespace guide::test {
namespace {

/// Answers with what the test sets, and logs the user's decisions.
struct WorldExplanations final : AlarmExplanations {
    explicit WorldExplanations(DispatchQueue& ownMainQueue)
        : mainQueue(ownMainQueue) {}
    ShowAlarm alarmOf(const TVEntry&) const override { return alarm; }
    void refuseBroadcast(const AlarmBroadcast& broadcast) override {
        decisions << u"not "_s + broadcast.title;
        alarm.reason = ShowAlarmReason::Refused;
    }
    void allowBroadcast(const AlarmBroadcast& broadcast) override {
        decisions << u"yes "_s + broadcast.title;
        alarm.reason = ShowAlarmReason::NextRun;
    }
    void journal(MainBlock<JournalEntries> mainBlock) override { mainBlock.post(mainQueue, entries); }

    DispatchQueue& mainQueue;
    ShowAlarm alarm;
    QStringList decisions;
    JournalEntries entries = std::make_shared<const std::vector<JournalEntry>>();
};

class AlarmScreensTest : public testing::Test {
  protected:
    explicit AlarmScreensTest(UserInterfaceIdiom idiom = UserInterfaceIdiom::Phone)
        : world(idiom) {
        world.device.deviceLocale = QLocale(QLocale::English, QLocale::UnitedKingdom);
        world.device.zone = QTimeZone::utc();
        world.alarmExplanations = &explanations;
        world.app.calendarAccess = true;
        channel = world.addChannel(u"Jedna"_s);
        world.start();
        world.show();
    }
    /// The page of a show that begins after so many minutes.
    std::shared_ptr<DetailViewController> openShow(int from, bool isReplay = false) {
        ExtendedTVEntry made = world.entry(channel, {from, from + 60, u"News"_s});
        made.basic->setPreviouslyShown(isReplay);
        entry = made.basic;
        auto screen =
            std::make_shared<DetailViewController>(world.environment, ShowItem(std::move(made)), u"none"_s);
        world.tabs->selectedNavigationController().push(screen);
        world.queues.runAll();
        return screen;
    }
    /// From the page's alarm row.
    TableViewController& openSettings(DetailViewController& page) {
        world.send<TextRow>(page, u"⏰ Alert:"_s, Tapped{});
        NavigationController& stack = world.tabs->selectedNavigationController();
        ViewController& top =
            stack.presentedStack() ? *stack.presentedStack()->topViewController() : world.top();
        world.app.done.clear();
        return dynamic_cast<FavoriteSettingsTimeThresholdViewController&>(top);
    }
    void leave() {
        world.tabs->selectedNavigationController().pop();
        world.queues.runAll();
    }
    static QStringList checkedRows(const Table& table) {
        QStringList titles;
        for (int row = 0; row < table.rowCount(); ++row) {
            if (const auto& text = std::get<TextRow>(table.rowAt(row).content); text.checked) {
                titles << text.title;
            }
        }
        return titles;
    }

    ScreenWorld world;
    WorldExplanations explanations{world.queues.mainQueue()};
    ObjectId channel{ObjectId::Bytes{}};
    std::shared_ptr<TVEntry> entry;
};

struct AlarmScreensOnTabletTest : AlarmScreensTest {
    AlarmScreensOnTabletTest()
        : AlarmScreensTest(UserInterfaceIdiom::Tablet) {}
};

TEST_F(AlarmScreensTest, AChoiceIsAppliedWhenItsScreenIsLeft) {
    const struct {
        const char* name;
        Favorite rule;
        std::optional<int> minutes;
        QStringList checked, taps;
        QString effect;
        QStringList done;
    } cases[] = {
        {"no change",
         {u"News"_s, 10, {}, {}},
         10,
         {u"Any broadcast"_s, u"10min before"_s},
         {u"None"_s, u"10min before"_s},
         u"10 minute(s) before every broadcast on any channel"_s,
         {}},
        {"a first alarm",
         {u"News"_s, {}, {}, {}},
         {},
         {u"Only this broadcast"_s, u"None"_s},
         {u"2h before"_s},
         u"2 hour(s) before this broadcast"_s,
         {u"no alarm News"_s, u"note News"_s, u"alarm News 120"_s}},
        {"from every to one",
         {u"News"_s, 10, {}, {}},
         10,
         {u"Any broadcast"_s, u"10min before"_s},
         {u"Only this broadcast"_s},
         u"10 minute(s) before this broadcast"_s,
         {u"no alarms News"_s, u"note News"_s, u"alarm News 10"_s}},
        {"from one to premieres",
         {u"News"_s, {}, {}, {}},
         5,
         {u"Only this broadcast"_s, u"5min before"_s},
         {u"Every premiere"_s, u"At beginning of the show"_s},
         u"At the beginning of every premiere on any channel"_s,
         {u"no alarm News"_s, u"note News"_s, u"alarms News 0 premieres"_s}},
        {"no alarm any more",
         {u"News"_s, 60, {}, true},
         {},
         {u"Every replay"_s, u"1h before"_s},
         {u"None"_s},
         u"There will be no alert."_s,
         {u"no alarms News"_s}},
    };
    // A replay, so that premieres and replays are offered.
    world.load(channel, {{600, 660, u"News"_s}});
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        world.favorites.rules = {each.rule};
        const auto page = openShow(180, true);
        world.alarms.events.clear();
        if (each.minutes) {
            world.alarms.events[*entry->digest()] = each.minutes;
        }
        TableViewController& screen = openSettings(*page);
        EXPECT_EQ(checkedRows(screen.table()), each.checked);
        for (const QString& tap : each.taps) {
            world.send<TextRow>(screen, tap, Tapped{});
        }
        EXPECT_EQ(screen.table().sections().back().footer, each.effect);
        EXPECT_TRUE(world.app.done.isEmpty());
        // Another tab and back is the first time.
        world.tabs->setSelectedIndex(1);
        world.tabs->setSelectedIndex(0);
        EXPECT_EQ(std::exchange(world.app.done, {}), each.done);
        world.broadcast->applicationDidEnterBackground();
        leave();
        EXPECT_TRUE(world.app.done.isEmpty()) << "applied already";
        leave();
    }
}

TEST_F(AlarmScreensTest, OffersLeadTimesThatAreStillPossible) {
    world.favorites.titles = {u"News"_s};
    const auto page = openShow(4);
    TableViewController& screen = openSettings(*page);
    const auto triggers = [&] { return screen.table().sections()[1].rows.size(); };
    EXPECT_EQ(screen.table().sections()[0].rows.size(), 2U) << "nothing tells premieres from replays";
    EXPECT_EQ(triggers(), 5U);
    world.send<TextRow>(screen, u"3min before"_s, Tapped{});
    world.wait(2min);
    EXPECT_EQ(triggers(), 3U) << "none, at the beginning and a minute before";
    world.send<TextRow>(screen, u"Any broadcast"_s, Tapped{});
    EXPECT_EQ(triggers(), 12U);
}

TEST_F(AlarmScreensOnTabletTest, TheChoiceIsAPopover) {
    world.favorites.titles = {u"News"_s};
    const auto page = openShow(120);
    TableViewController& screen = openSettings(*page);
    ASSERT_TRUE(world.tabs->selectedNavigationController().presentedStack());
    world.send<TextRow>(screen, u"1min before"_s, Tapped{});
    world.tabs->selectedNavigationController().dismiss();
    EXPECT_EQ(world.app.done.last(), u"alarm News 1"_s);
}

TEST_F(AlarmScreensTest, ThePageSaysWhyThereIsAnAlarmOrNone) {
    world.favorites.titles = {u"News"_s};
    explanations.alarm = {ShowAlarmReason::HasByRule, 10, u"News"_s};
    const auto page = openShow(120);
    const auto reason = [&] { return contentTitled<TextRow>(page->table(), u"⏰ Alert:"_s)->subtitle; };
    EXPECT_EQ(reason(), u"Set by the rule “News”."_s);
    world.send<ButtonRow>(*page, u"Not this broadcast"_s, Tapped{});
    world.broadcast->notificationsSynched();
    EXPECT_EQ(reason(), u"No alert: you wanted none for this broadcast."_s);
    world.send<ButtonRow>(*page, u"Allow an alert for this broadcast"_s, Tapped{});
    world.broadcast->notificationsSynched();
    EXPECT_EQ(explanations.decisions, QStringList({u"not News"_s, u"yes News"_s}));
    explanations.alarm.reason = ShowAlarmReason::SilentHours;
    world.broadcast->notificationsSynched();
    EXPECT_EQ(reason(), u"No alert: it would ring in the silent hours."_s);
    EXPECT_FALSE(contentTitled<ButtonRow>(page->table(), u"Not this broadcast"_s));
}

TEST_F(AlarmScreensTest, TheJournalHasTheNewestFirst) {
    const Moment now = world.clock.now();
    explanations.entries = std::make_shared<const std::vector<JournalEntry>>(std::vector<JournalEntry>{
        {.at = now - 25h,
         .deed = AlarmDeed::Removed,
         .reason = AlarmReason::NotListed,
         .title = u"Gone"_s,
         .channel = u"Jedna"_s,
         .oldStart = now + 2h},
        {.at = now - 1h,
         .deed = AlarmDeed::Made,
         .reason = AlarmReason::RuleAgain,
         .title = u"News"_s,
         .channel = u"Jedna"_s,
         .newStart = now + 2h,
         .rule = u"News"_s,
         .show = ShowDigest{1}},
    });
    auto alerts = std::make_shared<CompoundListingsViewController>(world.environment, AlertListings{});
    world.tabs->selectedNavigationController().push(alerts);
    world.queues.runAll();
    alerts->pressRightBarButton(0);
    world.queues.runAll();
    auto& journal = dynamic_cast<AlarmJournalViewController&>(world.top());
    EXPECT_FALSE(journal.progress());
    EXPECT_EQ(linesOf(journal.table()), QStringList({u"# Today"_s, u"News"_s, u"# Yesterday"_s, u"Gone"_s}));
    const auto* gone = contentTitled<TextRow>(journal.table(), u"Gone"_s);
    EXPECT_EQ(gone->subtitle, u"Removed: no longer listed\nJedna · Wed, 31 Dec 20:30"_s);
    EXPECT_EQ(gone->detail, u"17:30"_s);
    EXPECT_TRUE(gone->symbol == Symbol::Removed);

    world.send<TextRow>(journal, u"News"_s, Tapped{});
    ASSERT_EQ(world.app.alerts.size(), 2U) << "the list of alerts was empty";
    world.app.alerts.back().actions.front().action();
    EXPECT_EQ(explanations.decisions, QStringList{u"not News"_s});
    EXPECT_EQ(journal.rowActions(journal.table().rowAt(0).id).size(), 1U);
    world.wait(2h);
    EXPECT_TRUE(journal.rowActions(journal.table().rowAt(0).id).empty()) << "the show has begun";
    world.send<TextRow>(journal, u"Gone"_s, Tapped{});
    EXPECT_EQ(world.top().title(), u"Gone"_s);
}

TEST(AlarmTextsTest, SayWhatWasDone) {
    FakeDevice device;
    device.deviceLocale = QLocale(QLocale::English, QLocale::UnitedKingdom);
    device.zone = QTimeZone("Europe/Prague");
    const auto at = [](int day, int hour, int minute) {
        const QDateTime moment(QDate(2026, 11, day), QTime(hour, minute), QTimeZone("Europe/Prague"));
        return Moment(std::chrono::milliseconds(moment.toMSecsSinceEpoch()));
    };
    using enum AlarmDeed;
    const struct {
        JournalEntry entry;
        QString text;
    } cases[] = {
        {{.deed = Made, .reason = AlarmReason::Rule, .rule = u"News"_s}, u"New: rule “News”"_s},
        {{.deed = Made, .reason = AlarmReason::User}, u"Set by you"_s},
        {{.deed = Moved, .oldStart = at(21, 20, 15), .newStart = at(21, 20, 40)},
         u"Moved from 20:15 to 20:40"_s},
        {{.deed = Moved, .oldStart = at(21, 23, 50), .newStart = at(22, 0, 10)},
         u"Moved from Sat, 21 Nov 23:50 to Sun, 22 Nov 00:10"_s},
        {{.deed = Removed, .reason = AlarmReason::SilentHours},
         u"Removed: it would ring in the silent hours"_s},
        {{.deed = NotMade, .message = u"disk full"_s},
         u"Could not be set: the calendar refused it (disk full)"_s},
        {{.deed = HeldBack}, u"Not removed: too many alerts would have been removed at once"_s},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(journalText(each.entry, device), each.text);
    }
}

} // namespace
} // namespace guide::test
