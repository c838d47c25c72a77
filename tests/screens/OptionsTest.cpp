#include "ScreenWorld.h"
#include "WorldAlarms.h"
#include "WorldUserData.h"
#include "alarms/SilentHours.h"
#include "screens/options/CalendarsViewController.h"
#include "screens/options/OptionsViewController.h"
#include "screens/options/SharedPlaceViewController.h"
#include "screens/options/SilentHoursViewController.h"

namespace guide::test {
namespace {

/// A session that cannot be written while `works` is false.
struct WorldRinging final : AlarmRinging {
    explicit WorldRinging(DispatchQueue& ownMainQueue)
        : mainQueue(ownMainQueue) {}
    void state(MainBlock<AlarmRingingState> mainBlock) override { mainBlock.post(mainQueue, now); }
    void setOn(bool on, MainBlock<bool> mainBlock) override {
        now.isOn = works ? on : now.isOn;
        mainBlock.post(mainQueue, bool(works));
    }
    void setPlayableChannels(const QStringList& /*titles*/) override {}
    DispatchQueue& mainQueue;
    AlarmRingingState now;
    bool works = true;
};

struct WorldUpdates final : BackgroundUpdates {
    explicit WorldUpdates(DispatchQueue& ownMainQueue)
        : mainQueue(ownMainQueue) {}
    void state(MainBlock<State> mainBlock) override { mainBlock.post(mainQueue, State(now)); }
    void setOn(bool on, MainBlock<bool> mainBlock) override {
        if (works) {
            now = on ? State::On : State::Off;
        }
        mainBlock.post(mainQueue, bool(works));
    }
    DispatchQueue& mainQueue;
    State now = State::Off;
    bool works = true;
};

class OptionsTest : public testing::Test {
  protected:
    OptionsTest() {
        world.device.deviceLocale = QLocale(QLocale::English, QLocale::UnitedKingdom);
        world.device.zone = QTimeZone("Europe/Prague");
        world.calendarActions = &calendars;
        world.alarmRinging = &ringing;
        world.backgroundUpdates = &updates;
        world.userData = &userData;
        world.sharedPlace = &sharedPlace;
        world.app.calendarAccess = true;
        world.start();
        world.show();
        world.app.done.clear();
    }
    template <class Screen>
    std::shared_ptr<Screen> open() {
        auto screen = std::make_shared<Screen>(world.environment);
        world.tabs->selectedNavigationController().push(screen);
        world.queues.runAll();
        return screen;
    }
    /// Answers the only alert with this action.
    void answer(std::size_t action) {
        ASSERT_EQ(world.app.alerts.size(), 1U);
        const Alert alert = std::exchange(world.app.alerts, {}).front();
        if (alert.actions.at(action).action) {
            alert.actions[action].action();
        }
        world.queues.runAll();
    }
    void leave() {
        world.tabs->selectedNavigationController().pop();
        world.queues.runAll();
    }
    SilentPeriod period() { return SilentHours(world.keyValueStore, world.device).period(); }

    ScreenWorld world;
    WorldCalendars calendars{world.queues.mainQueue()};
    WorldRinging ringing{world.queues.mainQueue()};
    WorldUpdates updates{world.queues.mainQueue()};
    WorldUserData userData{world.queues.mainQueue()};
    WorldSharedPlace sharedPlace{world.queues.mainQueue()};
};

TEST_F(OptionsTest, TheUsersDataIsExportedAfterAQuestion) {
    sharedPlace.now.state = {.lastSeen = world.begin, .device = u"phone"_s};
    const auto options = open<OptionsViewController>();
    EXPECT_TRUE(options->table().sections().back().footer.contains(u"Last change by phone"_s));
    world.send<ButtonRow>(*options, u"Export…"_s, Tapped{});
    answer(0);
    EXPECT_TRUE(world.app.alerts.empty()) << "cancelled";
    world.send<ButtonRow>(*options, u"Export…"_s, Tapped{});
    answer(1);
    ASSERT_EQ(world.app.alerts.size(), 1U);
    EXPECT_EQ(world.app.alerts[0].message, userData.exported);
    answer(1);
    EXPECT_EQ(world.app.done, QStringList(u"folder /home"_s));
    userData.exported.reset();
    world.send<ButtonRow>(*options, u"Export…"_s, Tapped{});
    answer(1);
    ASSERT_EQ(world.app.alerts.size(), 1U);
    EXPECT_EQ(world.app.alerts[0].title, u"Error"_s);
}

TEST_F(OptionsTest, AnotherPlaceIsChosenAfterAQuestion) {
    const auto options = open<OptionsViewController>();
    world.send<TextRow>(*options, u"Your devices"_s, Tapped{});
    auto& screen = dynamic_cast<TableViewController&>(world.top());
    const auto use = [&](const QString& address) {
        world.send<InputRow>(screen, u"Folder or address of a database"_s, TextEdited{address, false});
        world.send<ButtonRow>(screen, u"Share there"_s, Tapped{});
        answer(1);
    };
    EXPECT_TRUE(contentTitled<TextRow>(screen.table(), u"Only on this device"_s));
    EXPECT_FALSE(contentTitled<ButtonRow>(screen.table(), u"Share there"_s)->enabled);
    use(u"postgresql://bad@tv/guide"_s);
    EXPECT_EQ(contentTitled<InputRow>(screen.table(), u"Folder or address of a database"_s)->error,
              u"The database cannot be reached."_s);
    use(u" /home/anna/Sync "_s);
    EXPECT_EQ(contentTitled<TextRow>(screen.table(), u"In a folder"_s)->subtitle, u"/home/anna/Sync"_s);
    EXPECT_EQ(contentTitled<InputRow>(screen.table(), u"Folder or address of a database"_s)->text, QString());
    bool hasCode = false;
    for (const Section& section : screen.table().sections()) {
        for (const Row& row : section.rows) {
            const auto* picture = std::get_if<PictureRow>(&row.content);
            hasCode = hasCode || (picture && picture->picture ==
                                                 PictureKey{PictureKey::Kind::QRCode, u"/home/anna/Sync"_s});
        }
    }
    EXPECT_TRUE(hasCode);
    sharedPlace.now.state.reason = u"The folder is not there, or it cannot be written."_s;
    sharedPlace.observer();
    EXPECT_EQ(screen.table().sections().front().footer,
              sharedPlace.now.state.reason + u" Changes are kept and sent later."_s);
    world.send<ButtonRow>(screen, u"Stop sharing"_s, Tapped{});
    EXPECT_EQ(sharedPlace.now.kind, SharedPlace::Kind::ThisDevice);
}

TEST_F(OptionsTest, AFolderIsChosenOrCreated) {
    const auto screen = open<SharedPlaceViewController>();
    const QString field = u"Folder or address of a database"_s;
    world.send<ButtonRow>(*screen, u"Choose a folder…"_s, Tapped{});
    EXPECT_EQ(world.app.fileChooser.kind, FileChooser::Kind::Folder);
    const QString path = sharedPlace.missing;
    world.app.fileChooser.chosen(path);
    answer(1);
    EXPECT_EQ(contentTitled<InputRow>(screen->table(), field)->error, u"There is no such folder yet."_s);
    answer(1);
    EXPECT_EQ(sharedPlace.now.address, path) << "created";
    EXPECT_EQ(contentTitled<InputRow>(screen->table(), field)->text, QString());
    EXPECT_EQ(world.app.notices.back().text, u"This device shares there from now on."_s);
    world.send<InputRow>(*screen, field, TextEdited{path, true, true});
    world.queues.runAll();
    EXPECT_EQ(world.app.notices.back().text, u"This device shares there already."_s) << "without a question";
}

TEST_F(OptionsTest, APasswordIsApartFromTheAddress) {
    const auto screen = open<SharedPlaceViewController>();
    const QString title = u"Folder or address of a database"_s;
    const auto field = [&](const QString& of) { return *contentTitled<InputRow>(screen->table(), of); };
    const QString hidden = u"Password of the database"_s;
    EXPECT_FALSE(contentTitled<InputRow>(screen->table(), hidden));
    // Pasted, then typed.
    world.send<InputRow>(*screen, title, TextEdited{u"postgresql://anna:s%40@tv/guide"_s});
    EXPECT_EQ(field(title).text, u"postgresql://anna@tv/guide"_s);
    EXPECT_EQ(field(hidden).text, u"s@"_s);
    EXPECT_EQ(field(hidden).kind, InputRow::Kind::Password);
    const int revision = field(title).revision;
    world.send<InputRow>(*screen, title, TextEdited{u"postgresql://anna:@tv/guide"_s});
    world.send<InputRow>(*screen, title, TextEdited{u"postgresql://anna:x@tv/guide"_s});
    EXPECT_EQ(field(title).revision, revision) << "not while it is typed";
    world.send<InputRow>(*screen, title, TextEdited{u"postgresql://anna:x@tv/guide"_s, true});
    EXPECT_EQ(field(hidden).text, u"x"_s);
    world.send<InputRow>(*screen, hidden, TextEdited{u"a/b"_s, true, true});
    answer(1);
    EXPECT_EQ(sharedPlace.chosen, QStringList(u"postgresql://anna:a%2Fb@tv/guide"_s));
    EXPECT_FALSE(contentTitled<InputRow>(screen->table(), hidden)) << "forgotten";

    world.send<ButtonRow>(*screen, u"Enter another password…"_s, Tapped{});
    sharedPlace.why = u"The database does not accept the user or the password."_s;
    world.send<InputRow>(*screen, hidden, TextEdited{u"y"_s, true, true});
    world.queues.runAll();
    EXPECT_EQ(sharedPlace.chosen.back(), u"postgresql://anna:y@tv/guide"_s) << "without a question";
    EXPECT_EQ(field(hidden).error, sharedPlace.why) << "below the password";
    EXPECT_EQ(field(title).error, QString());
    sharedPlace.why.clear();
    world.send<ButtonRow>(*screen, u"Use this password"_s, Tapped{});
    world.queues.runAll();
    EXPECT_EQ(world.app.notices.back().text, u"The password works and is kept."_s);
    EXPECT_FALSE(contentTitled<InputRow>(screen->table(), hidden));
}

TEST_F(OptionsTest, TheDeviceHasAName) {
    sharedPlace.now.state = {.lastSeen = world.begin, .device = u"Notebook"_s};
    const auto screen = open<SharedPlaceViewController>();
    EXPECT_TRUE(
        screen->table().sections().front().footer.contains(u"another device with the name Notebook"_s));
    world.send<InputRow>(*screen, u"Name of this device"_s, TextEdited{u"Desk"_s});
    EXPECT_EQ(sharedPlace.now.deviceName, u"Notebook"_s) << "not while it is typed";
    world.send<InputRow>(*screen, u"Name of this device"_s, TextEdited{u"Desk"_s, true});
    EXPECT_EQ(sharedPlace.now.deviceName, u"Desk"_s);
}

TEST_F(OptionsTest, ErasingSaysBeforeAndAfterWhatItRemoves) {
    const auto options = open<OptionsViewController>();
    world.send<ButtonRow>(*options, u"Delete…"_s, Tapped{});
    auto& screen = dynamic_cast<TableViewController&>(world.top());
    EXPECT_TRUE(contentTitled<TextRow>(screen.table(), u"5 favourite(s)"_s));
    const QString more = contentTitled<SwitchRow>(screen.table(), u"Also"_s)->subtitle;
    EXPECT_EQ(more, u"silent hours, the choice of the calendar, 4 alert(s) of other shows"_s);
    world.send<ButtonRow>(screen, u"Delete"_s, Tapped{});
    answer(0);
    EXPECT_TRUE(userData.erased.isEmpty()) << "cancelled";
    userData.counts.otherAlarms = 0;
    world.send<ButtonRow>(screen, u"Delete"_s, Tapped{});
    answer(1);
    EXPECT_EQ(userData.erased, QList<bool>{true});
    ASSERT_EQ(world.app.alerts.size(), 1U);
    EXPECT_FALSE(world.app.alerts[0].message.contains(u"other shows"_s)) << "what was really removed";
    EXPECT_FALSE(contentTitled<ButtonRow>(screen.table(), u"Delete"_s)->enabled) << "nothing is left";
    userData.counts.channels = 1;
    userData.counts.silentHours = true;
    leave();
    world.send<ButtonRow>(*options, u"Delete…"_s, Tapped{});
    auto& again = dynamic_cast<TableViewController&>(world.top());
    world.send<SwitchRow>(again, u"Also"_s, Toggled{false});
    world.app.alerts.clear();
    world.send<ButtonRow>(again, u"Delete"_s, Tapped{});
    answer(1);
    EXPECT_EQ(userData.erased, QList<bool>({true, false}));
}

TEST_F(OptionsTest, AListThatWasReplacedIsRestored) {
    const auto options = open<OptionsViewController>();
    world.send<ButtonRow>(*options, u"Restore…"_s, Tapped{});
    EXPECT_TRUE(dynamic_cast<TableViewController&>(world.top()).table().emptyNote());
    leave();
    userData.lists = {{ReplacedList::Kind::Selection, world.begin, 7, u"selection-a"_s},
                      {ReplacedList::Kind::Favorites, world.begin, 12, u"favorites-b"_s}};
    world.send<ButtonRow>(*options, u"Restore…"_s, Tapped{});
    auto& screen = dynamic_cast<TableViewController&>(world.top());
    world.send<TextRow>(screen, u"12 favourite(s)"_s, Tapped{});
    answer(1);
    EXPECT_EQ(userData.restored, QStringList(u"favorites-b"_s));
    EXPECT_EQ(world.app.notices.size(), 1U);
    userData.works = false;
    world.send<TextRow>(screen, u"7 selected channel(s)"_s, Tapped{});
    answer(1);
    ASSERT_EQ(world.app.alerts.size(), 1U);
    EXPECT_EQ(world.app.alerts[0].title, u"Error"_s);
}

TEST_F(OptionsTest, TheSilentHoursFollowTheirSwitch) {
    const auto options = open<OptionsViewController>();
    const QString label = u"From:\nTo:"_s;
    EXPECT_FALSE(contentTitled<TextRow>(options->table(), label));
    world.send<SwitchRow>(*options, u"Scheduled no alarm time"_s, Toggled{true});
    EXPECT_TRUE(SilentHours(world.keyValueStore, world.device).enabled());
    EXPECT_EQ(std::exchange(world.app.done, {}), QStringList({u"alarms"_s, u"check"_s}));
    EXPECT_EQ(contentTitled<TextRow>(options->table(), label)->detail, u"00:00\n07:00"_s);

    world.send<TextRow>(*options, label, Tapped{});
    auto& hours = dynamic_cast<SilentHoursViewController&>(world.top());
    world.send<TimeRow>(hours, u"To"_s, TimePicked{QTime(6, 30)});
    EXPECT_TRUE(world.app.done.isEmpty()) << "before the screen is left";
    leave();
    EXPECT_EQ(std::exchange(world.app.done, {}), QStringList({u"alarms"_s, u"check"_s}));
    EXPECT_EQ(contentTitled<TextRow>(options->table(), label)->detail, u"00:00\n06:30"_s);
    world.send<SwitchRow>(*options, u"Scheduled no alarm time"_s, Toggled{false});
    EXPECT_FALSE(contentTitled<TextRow>(options->table(), label));
    EXPECT_EQ(period().to, 6 * 60 + 30) << "the times stay";
}

TEST_F(OptionsTest, AlarmsRingByOneTouch) {
    const QString title = u"Ring alerts on this device"_s;
    const auto options = open<OptionsViewController>();
    const auto row = [&] { return *contentTitled<SwitchRow>(options->table(), title); };
    EXPECT_FALSE(row().on);
    world.send<SwitchRow>(*options, title, Toggled{true});
    EXPECT_TRUE(ringing.now.isOn && row().on);
    EXPECT_TRUE(row().subtitle.contains(u"while the guide is closed"_s));
    ringing.works = false;
    ringing.now.desktopRings = true;
    world.send<SwitchRow>(*options, title, Toggled{false});
    EXPECT_TRUE(row().on) << "it could not be changed";
    EXPECT_EQ(world.app.alerts.size(), 1U);
    EXPECT_TRUE(row().subtitle.contains(u"reminders of your desktop"_s));
}

TEST_F(OptionsTest, UpdatesOfAClosedGuideAreOfferedWhereTheDeviceMakesThem) {
    const QString title = u"Update while the guide is closed"_s;
    const auto options = open<OptionsViewController>();
    const auto isOn = [&] { return contentTitled<SwitchRow>(options->table(), title)->on; };
    EXPECT_FALSE(isOn());
    world.send<SwitchRow>(*options, title, Toggled{true});
    EXPECT_TRUE(updates.now == BackgroundUpdates::State::On && isOn());
    updates.works = false;
    world.send<SwitchRow>(*options, title, Toggled{false});
    EXPECT_TRUE(isOn()) << "it could not be changed";
    EXPECT_EQ(world.app.alerts.size(), 1U);
    leave();
    updates.now = BackgroundUpdates::State::Unavailable;
    EXPECT_FALSE(contentTitled<SwitchRow>(open<OptionsViewController>()->table(), title));
}

TEST_F(OptionsTest, ASpanAcrossMidnightIsSwitchedOnWhereItIsPicked) {
    const auto hours = open<SilentHoursViewController>();
    const QString midnight = u"Across midnight"_s;
    const QString warning = u"All recurring alerts are silent, all day: the time span crosses midnight."_s;
    const auto parts = [&] { return std::get<DayBarRow>(hours->table().rowAt(2).content).parts; };
    using Parts = std::vector<DayBarRow::Part>;
    EXPECT_EQ(parts(), (Parts{{0, 420}}));
    EXPECT_FALSE(contentTitled<SwitchRow>(hours->table(), midnight));

    world.send<TimeRow>(*hours, u"From"_s, TimePicked{QTime(23, 0)});
    EXPECT_TRUE(period().acrossMidnight && contentTitled<SwitchRow>(hours->table(), midnight)->on);
    EXPECT_FALSE(contentTitled<TextRow>(hours->table(), warning));
    EXPECT_EQ(parts(), (Parts{{0, 420}, {1380, 1440}}));

    world.send<SwitchRow>(*hours, midnight, Toggled{false});
    EXPECT_TRUE(contentTitled<TextRow>(hours->table(), warning));
    EXPECT_EQ(parts(), (Parts{{0, 1440}}));
    world.send<TimeRow>(*hours, u"From"_s, TimePicked{QTime(22, 0)});
    EXPECT_FALSE(period().acrossMidnight) << "the person switched it off";

    world.send<TimeRow>(*hours, u"To"_s, TimePicked{QTime(22, 0)});
    EXPECT_FALSE(contentTitled<SwitchRow>(hours->table(), midnight));
    EXPECT_EQ(parts(), (Parts{{0, 1440}})) << "begin and end are the same";
}

TEST_F(OptionsTest, ASpanThatOnceCrossedMidnightIsSwitchedOnWhenItIsPicked) {
    // As another device may have stored it.
    setSilentHoursFrom(world.keyValueStore, Moment(23h));
    const auto hours = open<SilentHoursViewController>();
    world.send<TimeRow>(*hours, u"From"_s, TimePicked{QTime(22, 0)});
    EXPECT_TRUE(period().acrossMidnight);
    world.send<TimeRow>(*hours, u"To"_s, TimePicked{QTime(0, 0)});
    EXPECT_EQ(std::get<DayBarRow>(hours->table().rowAt(2).content).parts,
              (std::vector<DayBarRow::Part>{{1320, 1440}}));
    // The window is closed.
    world.broadcast->applicationDidEnterBackground();
    EXPECT_EQ(world.app.done, QStringList({u"alarms"_s, u"check"_s}));
    leave();
    EXPECT_EQ(world.app.done.size(), 2) << "applied already";
}

TEST_F(OptionsTest, ATimeThatTodayLeavesOutIsKept) {
    // 29 March 2026, when clocks go from 2:00 to 3:00.
    const QDateTime noon(QDate(2026, 3, 29), QTime(12, 0), world.device.zone);
    world.wait(std::chrono::milliseconds(noon.toMSecsSinceEpoch()) - world.clock.now().time_since_epoch());
    const auto hours = open<SilentHoursViewController>();
    world.send<TimeRow>(*hours, u"To"_s, TimePicked{QTime(2, 30)});
    EXPECT_EQ(period().to, 150);
}

TEST_F(OptionsTest, DisplaySettingsAreSetAtOnce) {
    world.app.shows = 7;
    world.app.interval = 90min;
    const auto options = open<OptionsViewController>();
    const auto choices = [&](const QString& title) {
        const auto* row = contentTitled<ChoiceRow>(options->table(), title);
        return row->choices[static_cast<std::size_t>(*row->chosen)];
    };
    EXPECT_EQ(choices(u"Shows per channel"_s), u"7"_s) << "a value that is not offered otherwise";
    EXPECT_EQ(choices(u"Look for new schedules"_s), u"Every 90 min"_s);
    world.send<ChoiceRow>(*options, u"Shows per channel"_s, Chosen{1});
    EXPECT_EQ(world.app.shows, 2);
    world.send<ChoiceRow>(*options, u"Look for new schedules"_s, Chosen{1});
    EXPECT_EQ(world.app.interval, 3h);
    world.send<SwitchRow>(*options, u"Show coloring"_s, Toggled{false});
    EXPECT_FALSE(world.app.colorized);
    world.send<SwitchRow>(*options, u"Large pictures without cutting"_s, Toggled{true});
    EXPECT_TRUE(world.app.wholeImages);
    world.send<SwitchRow>(*options, u"Pictures of shows"_s, Toggled{false});
    EXPECT_FALSE(world.app.images);
    world.send<SwitchRow>(*options, u"Large pictures on the pages of shows"_s, Toggled{false});
    EXPECT_TRUE(world.app.largeImages) << "there are no pictures at all";
}

TEST_F(OptionsTest, CalendarsAreListedByAccount) {
    world.app.calendarAccess = false;
    const auto options = open<OptionsViewController>();
    EXPECT_TRUE(options->rightBarButtons().empty());
    world.app.calendarAccess = true;
    world.broadcast->notificationsSynched();
    calendars.choice.calendars->push_back(worldCalendar(u"Files"_s, u"~/.local/share/guide/calendars"_s));
    options->pressRightBarButton(0);
    world.queues.runAll();
    auto& screen = dynamic_cast<CalendarsViewController&>(world.top());
    EXPECT_EQ(linesOf(screen.table()),
              QStringList({u"# Server"_s, u"Home"_s, u"Holidays"_s, u"# Device"_s, u"Local"_s,
                           u"# Folder ~/…/guide/calendars"_s, u"Files"_s, u"[New calendar “TV”]"_s}));
    EXPECT_TRUE(contentTitled<TextRow>(screen.table(), u"Home"_s)->checked);
    EXPECT_EQ(contentTitled<TextRow>(screen.table(), u"Holidays"_s)->subtitle, u"Read-only"_s);
    world.send<TextRow>(screen, u"Holidays"_s, Tapped{});
    EXPECT_EQ(calendars.choice.selected, u"Server/Home"_s);

    const auto known = std::exchange(calendars.choice.calendars, std::nullopt);
    world.broadcast->notificationsSynched();
    world.queues.runAll();
    EXPECT_EQ(linesOf(screen.table()), QStringList()) << "none that could be made twice";
    ASSERT_TRUE(screen.table().emptyNote());
    calendars.choice.calendars = known;
    screen.table().emptyNote()->action();
    world.queues.runAll();
    EXPECT_TRUE(contentTitled<TextRow>(screen.table(), u"Home"_s));
}

TEST_F(OptionsTest, TheCalendarChangesOnlyWhileThereAreNoAlarms) {
    const auto screen = open<CalendarsViewController>();
    const ObjectId channel = ScreenWorld::channelId(1);
    world.setAlarm(channel, {0, 60, u"News"_s});
    world.send<TextRow>(*screen, u"Local"_s, Tapped{});
    world.send<ButtonRow>(*screen, u"New calendar “TV”"_s, Tapped{});
    ASSERT_EQ(world.app.alerts.size(), 2U);
    EXPECT_EQ(world.app.alerts[0].message, u"You have to remove all your alerts before changing calendar"_s);
    EXPECT_TRUE(contentTitled<TextRow>(screen->table(), u"Home"_s)->checked);
    EXPECT_EQ(calendars.choice.calendars->size(), 3U);

    world.alarms.events.clear();
    world.send<TextRow>(*screen, u"Local"_s, Tapped{});
    EXPECT_EQ(calendars.choice.selected, u"Device/Local"_s);
    EXPECT_TRUE(contentTitled<TextRow>(screen->table(), u"Local"_s)->checked);
    calendars.makes = false;
    world.send<ButtonRow>(*screen, u"New calendar “TV”"_s, Tapped{});
    EXPECT_EQ(world.app.alerts.size(), 3U);
    calendars.makes = true;
    screen->sendRowEvent(rowTitled<ButtonRow>(screen->table(), u"New calendar “TV”"_s)->id, Tapped{});
    world.setAlarm(channel, {0, 60, u"News"_s});
    world.queues.runAll();
    EXPECT_EQ(world.app.alerts.size(), 4U) << "an alarm was set while the calendar was made";
    EXPECT_EQ(calendars.choice.selected, u"Device/Local"_s);
    world.alarms.events.clear();
    world.send<TextRow>(*screen, u"TV"_s, Tapped{});
    EXPECT_EQ(calendars.choice.selected, u"Device/TV"_s);
    EXPECT_FALSE(contentTitled<ButtonRow>(screen->table(), u"New calendar “TV”"_s));
}

} // namespace
} // namespace guide::test
