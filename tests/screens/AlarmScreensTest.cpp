#include "ScreenWorld.h"
#include "WorldAlarms.h"
#include "screens/alarms/AlarmJournalViewController.h"
#include "screens/alarms/AlarmTexts.h"
#include "screens/compound/CompoundListingsViewController.h"
#include "screens/detail/DetailViewController.h"
#include "screens/favorites/FavoriteSettingsTimeThresholdViewController.h"

namespace guide::test {
namespace {

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
    EXPECT_EQ(checkedRows(screen.table()).last(), u"1min before"_s);
    EXPECT_EQ(screen.table().sections().back().footer, u"1 minute(s) before this broadcast"_s);
    world.send<TextRow>(screen, u"Any broadcast"_s, Tapped{});
    EXPECT_EQ(triggers(), 12U);
    world.send<TextRow>(screen, u"Only this broadcast"_s, Tapped{});
    leave();
    EXPECT_EQ(world.app.done.last(), u"alarm News 1"_s);
}

TEST_F(AlarmScreensTest, AnAlarmThatHasRungIsNoChange) {
    world.favorites.titles = {u"News"_s};
    const auto page = openShow(4);
    world.alarms.events[*entry->digest()] = 3;
    openSettings(*page);
    world.wait(2min);
    leave();
    EXPECT_TRUE(world.app.done.isEmpty());
}

TEST_F(AlarmScreensTest, BesideItsPageItStaysAsItIs) {
    world.tabs->selectedNavigationController().setSideBySide(true);
    world.favorites.titles = {u"News"_s};
    const auto page = openShow(120);
    TableViewController& screen = openSettings(*page);
    world.send<TextRow>(screen, u"Any broadcast"_s, Tapped{});
    world.send<TextRow>(screen, u"10min before"_s, Tapped{});
    world.send<TextRow>(*page, u"⏰ Alert:"_s, Tapped{});
    EXPECT_EQ(&world.top(), &screen);
    EXPECT_TRUE(world.app.done.isEmpty());
    leave();
    EXPECT_EQ(world.app.done.last(), u"alarms News 10"_s);
    openSettings(*page);
    EXPECT_EQ(world.top().title(), u"Alert"_s) << "another time";
}

TEST_F(AlarmScreensTest, AnAlarmOnOneBroadcastHasTheTitleOfItsSource) {
    // On this channel the subtitle is what is shown as the title.
    ExtendedTVEntry made =
        world.entry(ObjectId::fromHex(u"58f4ded60befe78cb336a80b"_s), {120, 180, u"Film"_s});
    made.basic->setSubtitle1(u"Night"_s);
    ASSERT_EQ(made.basic->title(), u"Night"_s);
    world.favorites.titles = {u"Night"_s};
    world.alarms.events[*made.basic->digest()] = 10;
    const auto page =
        std::make_shared<DetailViewController>(world.environment, ShowItem(std::move(made)), u"none"_s);
    world.tabs->selectedNavigationController().push(page);
    world.queues.runAll();
    EXPECT_EQ(contentTitled<TextRow>(page->table(), u"⏰ Alert:"_s)->detail, u"10min before"_s);
    world.send<TextRow>(openSettings(*page), u"5min before"_s, Tapped{});
    leave();
    EXPECT_EQ(world.app.done, QStringList({u"no alarm Film"_s, u"note Film"_s, u"alarm Film 5"_s}));
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

    const RowId kept = journal.table().rowAt(0).id;
    std::vector<JournalEntry> more = *explanations.entries;
    more.erase(more.begin());
    more.push_back({.at = now, .deed = AlarmDeed::Made, .reason = AlarmReason::User, .title = u"Film"_s});
    const JournalEntries before = std::exchange(
        explanations.entries, std::make_shared<const std::vector<JournalEntry>>(std::move(more)));
    world.broadcast->notificationsSynched();
    world.queues.runAll();
    EXPECT_EQ(linesOf(journal.table()), QStringList({u"# Today"_s, u"Film"_s, u"News"_s}));
    EXPECT_EQ(journal.table().rowAt(1).id, kept) << "so that the list does not scroll";
    explanations.entries = before;
    world.broadcast->notificationsSynched();
    world.queues.runAll();

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

TEST_F(AlarmScreensTest, AlertsSayWhenTheyRing) {
    const ShowItem show(world.entry(channel, {5, 10, u"News"_s}));
    const auto lead = [&](int minutes, bool showsLeads) {
        world.alarms.events[*show.entry()->digest()] = minutes;
        const CompoundSections made =
            CompoundRows(*world.environment, showsLeads).sectionsOfAll(std::span(&show, 1));
        return std::get<ShowRow>(made.sections[0].rows[0].content).alarmLead;
    };
    EXPECT_EQ(lead(10, true), u"10 min"_s);
    EXPECT_EQ(lead(120, true), u"2 h"_s);
    EXPECT_EQ(lead(0, true), u"At start"_s);
    EXPECT_EQ(lead(10, false), QString());
}

TEST_F(AlarmScreensTest, TheJournalIsReachedWithoutAlerts) {
    auto schedule = std::make_shared<CompoundListingsViewController>(world.environment, FavoriteListings{});
    world.app.synchronising = true;
    world.tabs->selectedNavigationController().push(schedule);
    world.queues.runAll();
    const auto titles = [&schedule] {
        QStringList found;
        for (const BarButton& button : schedule->rightBarButtons()) {
            found << button.title;
        }
        return found;
    };
    EXPECT_EQ(titles(), QStringList({u"Edit"_s, u"Alerts"_s, u"Updating alerts"_s}));
    // The run ends without a word.
    world.app.synchronising = false;
    world.wait(1min);
    EXPECT_EQ(titles(), QStringList({u"Edit"_s, u"Alerts"_s}));
}

TEST(AlarmTextsTest, SayWhyAShowHasAnAlarmOrNone) {
    using enum ShowAlarmReason;
    const std::pair<ShowAlarmReason, const char*> cases[] = {
        {HasByRule, "Set by the rule “News”."},
        {HasByUser, "Set for this broadcast only."},
        {AlarmRemoved, "Its alert was removed in the calendar."},
        {NoCalendarAccess, "No alert: the guide cannot use your calendars."},
        {NoCalendar, "No alert: there is no calendar for it."},
        {ReadOnlyCalendar, "No alert: the calendar is read-only."},
        {Begun, "No alert: the show has begun."},
        {NoRule, ""},
        {RuleWithoutAlarm, "No alert: the favourite has no recurring alert."},
        {OnlyPremieres, "No alert: this is a replay, and the rule is for premieres."},
        {OnlyReplays, "No alert: this is a premiere, and the rule is for replays."},
        {SilentHours, "No alert: it would ring in the silent hours."},
        {Refused, "No alert: you wanted none for this broadcast."},
        {ChannelNotLoaded, "No alert yet: the channel’s schedule is not up to date."},
        {TooFar, "No alert yet: the show is more than 60 days away."},
        {NextRun, "It will be set with the next update."},
    };
    for (const auto& [reason, text] : cases) {
        EXPECT_EQ(showAlarmText({reason, 10, u"News"_s}), QString::fromUtf8(text));
    }
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
        {{.deed = Made, .reason = AlarmReason::Rule, .rule = u"News"_s, .previouslyShown = false},
         u"New: rule “News”, premieres"_s},
        {{.deed = Made, .reason = AlarmReason::RuleAgain, .rule = u"News"_s, .previouslyShown = true},
         u"Set again by the rule “News”, replays: it was removed in the calendar"_s},
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
