#include "cloud/UserData.h"

#include "CloudDevice.h"
#include "alarms/FavoriteOperations.h"
#include "alarms/SilentHours.h"

#include <QFile>

#include <gtest/gtest.h>

namespace guide::test {
namespace {

using namespace std::chrono_literals;

/// The alarms of titles, which go with the rules and one by one.
struct Alarms final : AlarmActions {
    void setAlarmForTitle(const QString&, const ObjectId&, Moment, Moment, int, bool, bool) override {}
    void removeAlarmForTitle(const QString&, const ObjectId&, Moment, bool, bool) override {}
    void setAlarmForTitle(const QString&, int, std::optional<bool>, bool) override {}
    void removeAlarmForTitle(const QString&, bool, bool) override {}
    void removeAlarmsForTitles(const QStringList& titles, bool) override {
        std::erase_if(known.events, [&](const CalendarEvent& event) {
            return titles.contains(event.title) && !kept.contains(event.identifier);
        });
    }
    int lastAlarmMinutes() const override { return 0; }

    KnownEvents known;
    QStringList kept;
};

struct Counters final : ShowCounters {
    void incrementCounterByAmount(int, const QString&) override {}
    void countAddedFavorite(const QString&) override {}
    void countRemovedFavorite(const QString& title) override { removed << title; }
    QStringList removed;
};

class UserDataTest : public testing::Test {
  protected:
    UserDataTest() {
        const auto event = [this](const char* id, const QString& title, std::chrono::hours from) {
            CalendarEvent made;
            made.identifier = QString::fromLatin1(id);
            made.title = title;
            made.startDate = clock.now() + from;
            made.endDate = clock.now() + from + 1h;
            alarms.known.events.push_back(made);
        };
        event("past", u"News"_s, -2h);
        event("running", u"News"_s, 0h);
        event("kept", u"Film"_s, 2h);
        event("other", u"Other"_s, 3h);
        device.catalogue.replace(CatalogueSnapshot({{.id = CloudDevice::channelsNumbered({1})[0],
                                                     .title = u"Žlutá"_s,
                                                     .language = {},
                                                     .region = {}}}));
        device.channels.setSelected(CloudDevice::channelsNumbered({1, 2}));
        device.shows.setFavorites({{u"b"_s, {}, Moment(), {}},
                                   {u"News"_s, 0, Moment(), {}},
                                   {u"Film"_s, 120, Moment(), true},
                                   {u"Film"_s, 5, Moment(), {}},
                                   {u"Éa"_s, {}, Moment(), {}}});
        device.store.setValue(u"selectedCalendar"_s, u"TV:Local:"_s);
        device.store.setValue(u"lastAlarmMinutes"_s, 15);
        device.userDefaults.setString(u"selectedCalendar"_s, u"TV:Local:"_s);
        setSilentHoursEnabled(device.store, true);
        device.replaced.keep(CloudDevice::rules(u"Before"_s));
        queues.runAll();
    }
    UserDataCounts erase(bool more) {
        UserDataCounts counts;
        data.erase(more, {[&counts](const UserDataCounts& answer) { counts = answer; }});
        queues.runAll();
        return counts;
    }

    ManualClock clock;
    ManualQueues queues{clock};
    SharedValues values;
    CloudDevice device{clock, queues, values};
    Alarms alarms;
    Counters counters;
    FavoriteOperations favorites{
        {clock, queues.mainQueue(), device.shows, alarms, device.alarms, counters, [] {}}};
    const QTemporaryDir folder;
    int disabled = 0;
    UserData data{
        {.clock = clock,
         .queues = queues,
         .catalogue = device.catalogue,
         .channels = device.channels,
         .shows = device.shows,
         .listings = device.listings,
         .keyValueStore = device.store,
         .userDefaults = device.userDefaults,
         .alarmSynchronisation = device.alarms,
         .alarmActions = alarms,
         .favoriteActions = favorites,
         .replacedLists = device.replaced,
         .cloudSync = device.sync,
         .exportFolder = folder.path(),
         .knownEvents = [this] { return std::make_shared<const KnownEvents>(alarms.known); },
         .afterCalendarChanges = [this](Block block) { queues.mainQueue().async(std::move(block)); },
         .selectionErased = [this] { ++disabled; }}};
};

TEST_F(UserDataTest, ExportsEverything) {
    std::optional<QString> path;
    data.exportData({[&path](const std::optional<QString>& answer) { path = answer; }});
    queues.runAll();
    ASSERT_TRUE(path);
    QFile file(*path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "Selected channels:\r\n\tŽlutá\r\n\t000000000000000000000002\r\n"
                              "\r\n\r\nFavorites:\r\n\t\"b\"\r\n\t\"Éa\"\r\n\t\"Film\"\t120min\r\n"
                              "\t\"Film\"\t5min\r\n\t\"News\"\t0min\r\n"
                              "\r\n\r\nSelected calendar:\r\nTV:Local:"
                              "\r\n\r\nLast set alarm:\r\n15min before the show\r\n");
    device.shows.setFavorites({{QString(u"a\0b"_s), {}, Moment(), {}}});
    EXPECT_TRUE(data.exportedText().endsWith("Favorites:\r\n\t\"a")) << "up to the zero character";
    for (int time = 0; time < 2; ++time) {
        data.exportData({[&path](const std::optional<QString>& answer) { path = answer; }});
        queues.runAll();
    }
    EXPECT_EQ(QDir(folder.path()).entryList({u"*.txt"_s}),
              QStringList({u"tv-app-data-1.txt"_s, u"tv-app-data.txt"_s}))
        << "the earlier one is kept, an equal one is not";

    ASSERT_TRUE(QFile::remove(*path) && QDir().mkpath(*path + u"/in the way"_s));
    data.exportData({[&path](const std::optional<QString>& answer) { path = answer; }});
    queues.runAll();
    EXPECT_FALSE(path);
}

TEST_F(UserDataTest, ErasesHereAndForAllDevices) {
    UserDataCounts before;
    data.count({[&before](const UserDataCounts& answer) { before = answer; }});
    queues.runAll();
    EXPECT_EQ(before, (UserDataCounts{2, 5, 2, 1, 1, true, true}));

    const QString damaged = device.folder.filePath(u"selectedChannels.plist.damaged-2"_s);
    ASSERT_TRUE(QFile::copy(device.folder.filePath(u"selectedChannels.plist"_s), damaged));
    EXPECT_EQ(erase(false), (UserDataCounts{2, 5, 2, 1, 0, false, false}));
    EXPECT_TRUE(device.channels.selected().empty());
    EXPECT_TRUE(device.shows.snapshot()->empty()) << "also the second rule of a title";
    EXPECT_EQ(counters.removed, QStringList({u"b"_s, u"News"_s, u"Film"_s, u"Éa"_s}));
    EXPECT_EQ(disabled, 1);
    EXPECT_FALSE(device.alarms.isSynchronized());
    EXPECT_EQ(values.values.keys(),
              QStringList({u"Favorites"_s, u"SelectedChannels"_s, u"noAlarmsSchedule"_s}));
    EXPECT_TRUE(device.userDefaults.stringForKey(u"selectedCalendar"_s));
    EXPECT_EQ(device.replaced.count(), 0);
    EXPECT_FALSE(QFile::exists(damaged));
}

TEST_F(UserDataTest, ErasesWhatIsLeftOtherwiseAndCountsWhatWasRemoved) {
    alarms.kept << u"kept"_s;
    EXPECT_EQ(erase(true), (UserDataCounts{2, 5, 1, 1, 1, true, true})) << "the calendar kept one";
    EXPECT_EQ(values.values.keys(), QStringList({u"Favorites"_s, u"SelectedChannels"_s}));
    EXPECT_FALSE(device.userDefaults.stringForKey(u"selectedCalendar"_s));
}

} // namespace
} // namespace guide::test
