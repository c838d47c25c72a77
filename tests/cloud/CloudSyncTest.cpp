#include "CloudDevice.h"
#include "alarms/FavoritesFile.h"
#include "core/SelectionFile.h"

#include <QCborArray>

#include <gtest/gtest.h>

namespace guide::test {
namespace {

using namespace std::chrono_literals;

class CloudSyncTest : public testing::Test {
  protected:
    /// The titles or the number of channels of each kept list, the newest first.
    QStringList kept(const CloudDevice& device) const {
        QStringList texts;
        for (const ReplacedList& list : device.kept()) {
            texts << u"%1 %2"_s.arg(list.kind == ReplacedList::Kind::Favorites ? u"rules"_s : u"channels"_s)
                         .arg(list.count);
        }
        return texts;
    }

    ManualClock clock;
    ManualQueues queues{clock};
    SharedValues values;
    CloudDevice one{clock, queues, values};
};

TEST_F(CloudSyncTest, TwoDevicesFollowEachOtherAndFallSilent) {
    CloudDevice two{clock, queues, values};
    one.shows.setFavorites(CloudDevice::rules(u"News Film"_s));
    one.channels.setSelected(CloudDevice::channelsNumbered({1, 2}));
    queues.runAll();
    EXPECT_EQ(two.titles(), u"News Film"_s);
    EXPECT_EQ(two.channels.selected(), CloudDevice::channelsNumbered({1, 2}));
    two.shows.setFavorites(CloudDevice::rules(u"Film"_s));
    two.channels.setSelected(CloudDevice::channelsNumbered({2}));
    queues.runAll();
    EXPECT_EQ(one.titles(), u"Film"_s);
    EXPECT_EQ(one.channels.selected(), CloudDevice::channelsNumbered({2}));
    EXPECT_EQ(kept(one), QStringList({u"rules 2"_s, u"channels 2"_s}));
    EXPECT_EQ(kept(two), QStringList()) << "they replaced the lists themselves";
    const int writes = values.writes;
    EXPECT_EQ(writes, 4) << "each change was written once";
    for (int second = 0; second < 60; ++second) {
        clock.advance(1s);
        one.sync.cloudDidChangeExternally({});
        two.sync.cloudDidChangeExternally({});
        queues.runAll();
    }
    EXPECT_EQ(values.writes, writes);
    EXPECT_EQ(kept(one).size(), 2);
}

TEST_F(CloudSyncTest, AnOlderFormIsRewrittenOnce) {
    const QCborArray older{u"Film"_s, 5, QCborValue(QDateTime::fromMSecsSinceEpoch(0, Qt::UTC)), true};
    values.values[u"Favorites"_s] =
        QCborArray{older, QCborArray{u"short"_s, 1}, QByteArray("damaged"), 7, u"text"_s};
    one.sync.cloudDidChangeExternally({});
    queues.runAll();
    const std::vector<Favorite> expected{{u"Film"_s, 5, Moment(), true}};
    EXPECT_EQ(one.shows.favorites(), expected);
    EXPECT_EQ(values.values[u"Favorites"_s], favoritesMirror(expected));
    one.sync.cloudDidChangeExternally({});
    queues.runAll();
    EXPECT_EQ(values.writes, 1);
}

TEST_F(CloudSyncTest, ArchivesThatCannotBeReadLoseNothing) {
    one.shows.setFavorites(CloudDevice::rules(u"Film"_s));
    queues.runAll();
    const QCborArray newer{QByteArray("another form"), QByteArray("of rules")};
    values.values[u"Favorites"_s] = newer;
    one.sync.cloudDidChangeExternally({});
    queues.runAll();
    EXPECT_EQ(one.titles(), u"Film"_s);
    EXPECT_EQ(values.values[u"Favorites"_s], QCborValue(newer));
}

TEST_F(CloudSyncTest, AListThatWasChangedHereWins) {
    CloudDevice two{clock, queues, values};
    one.shows.setFavorites(CloudDevice::rules(u"Here"_s));
    one.channels.setSelected(CloudDevice::channelsNumbered({1}));
    values.values[u"Favorites"_s] = favoritesMirror(CloudDevice::rules(u"There"_s));
    values.values[u"SelectedChannels"_s] = selectionValue(CloudDevice::channelsNumbered({2}));
    one.sync.cloudDidChangeExternally({});
    EXPECT_EQ(one.titles(), u"Here"_s);
    queues.runAll();
    EXPECT_EQ(two.titles(), u"Here"_s);
    EXPECT_EQ(two.channels.selected(), CloudDevice::channelsNumbered({1}));

    one.store.refuses = true;
    one.shows.setFavorites(CloudDevice::rules(u"Refused"_s));
    queues.runAll();
    one.sync.cloudDidChangeExternally({});
    queues.runAll();
    EXPECT_EQ(one.titles(), u"Refused"_s) << "although the store still has another list";
    one.store.refuses = false;
    one.sync.cloudDidChangeExternally({});
    queues.runAll();
    EXPECT_EQ(two.titles(), u"Refused"_s);
}

TEST_F(CloudSyncTest, AGuideThatStartsWithoutItsStoreTakesWhatIsNewer) {
    const QTemporaryDir profile;
    SharedStore store(values);
    {
        SyncedGuide guide(clock, queues, store, profile.path());
        guide.shows.setFavorites(CloudDevice::rules(u"Old"_s));
        queues.runAll();
    }
    values.values.clear();
    store.refuses = true;
    SyncedGuide guide(clock, queues, store, profile.path());
    EXPECT_EQ(guide.shows.favorites(), CloudDevice::rules(u"Old"_s));
    queues.runAll();
    store.refuses = false;
    values.values[u"Favorites"_s] = favoritesMirror(CloudDevice::rules(u"Newer"_s));
    guide.sync.cloudDidChangeExternally(CloudSync::Reason::Server);
    queues.runAll();
    EXPECT_EQ(guide.titles(), u"Newer"_s);
}

TEST_F(CloudSyncTest, AListThatArrivesDuringTheWriteOfAnEarlierOneStays) {
    values.values[u"Favorites"_s] =
        QCborArray{QCborArray{u"Old"_s, 5, QCborValue(QDateTime::currentDateTimeUtc())}};
    one.sync.cloudDidChangeExternally({});
    const QCborValue newer = favoritesMirror(CloudDevice::rules(u"Newer"_s));
    values.values[u"Favorites"_s] = newer;
    queues.runAll();
    EXPECT_EQ(values.values[u"Favorites"_s], newer);
    one.sync.cloudDidChangeExternally(CloudSync::Reason::Server);
    queues.runAll();
    EXPECT_EQ(one.titles(), u"Newer"_s);
}

TEST_F(CloudSyncTest, ReconcilesAsLittleAsIsNeeded) {
    const auto none = QStringList();
    const struct {
        const char* name;
        const char* local;
        std::vector<int> localChannels;
        std::optional<const char*> stored;
        std::vector<int> storedChannels;
        // What it leads to.
        const char* titles;
        bool synchronized;
        int syncs;
        int checks;
        int refreshes;
        int emptied;
        QStringList kept;
    } cases[] = {
        {"nothing is stored", "A", {1}, {}, {}, "A", true, 0, 0, 0, 0, none},
        {"two empty lists", "", {1}, "", {}, "", true, 0, 0, 0, 0, none},
        {"equal rules count as new ones", "A", {1}, "A", {}, "A", false, 1, 0, 0, 0, none},
        {"an empty list in place of few", "A B C", {1}, "", {}, "", false, 1, 0, 0, 0, {u"rules 3"_s}},
        {"an empty list in place of many", "A B C D", {1}, "", {}, "", false, 1, 0, 0, 1, {u"rules 4"_s}},
        {"an equal selection is only checked", "A", {1}, {}, {1}, "A", false, 0, 1, 0, 0, none},
        {"another selection", "A", {1, 2}, {}, {2, 3}, "A", false, 0, 1, 1, 0, {u"channels 2"_s}},
        {"longer lists lose nothing", "B", {1, 2}, "A B", {1, 3, 2}, "A B", false, 1, 1, 1, 0, none},
        {"another order of channels", "A", {1, 2}, {}, {2, 1}, "A", false, 0, 1, 1, 0, {u"channels 2"_s}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        SharedValues shared;
        CloudDevice device{clock, queues, shared};
        device.shows.setFavorites(CloudDevice::rules(QString::fromLatin1(each.local)));
        device.channels.setSelected(CloudDevice::channelsNumbered(each.localChannels));
        queues.runAll();
        shared.values.clear();
        if (each.stored) {
            shared.values[u"Favorites"_s] =
                favoritesMirror(CloudDevice::rules(QString::fromLatin1(*each.stored)));
        }
        if (!each.storedChannels.empty()) {
            shared.values[u"SelectedChannels"_s] =
                selectionValue(CloudDevice::channelsNumbered(each.storedChannels));
        }
        device.sync.cloudDidChangeExternally(CloudSync::Reason::QuotaViolation);
        queues.runAll();
        EXPECT_TRUE(device.alarms.isSynchronized()) << "the values cannot be trusted";
        device.sync.cloudDidChangeExternally(CloudSync::Reason::InitialSync);
        queues.runAll();
        EXPECT_EQ(device.titles().toStdString(), each.titles);
        EXPECT_EQ(device.alarms.isSynchronized(), each.synchronized);
        EXPECT_EQ(device.alarms.syncs, each.syncs);
        EXPECT_EQ(device.updates, each.syncs);
        EXPECT_EQ(device.checks, each.checks);
        EXPECT_EQ(device.refreshes, each.refreshes);
        EXPECT_EQ(device.emptied, each.emptied);
        EXPECT_EQ(kept(device), each.kept);
    }
}

TEST_F(CloudSyncTest, ADeviceWithAlarmsKeepsItsCalendar) {
    values.values[u"selectedCalendar"_s] = u"TV:There:"_s;
    one.userDefaults.setString(u"selectedCalendar"_s, u"TV:Here:"_s);
    one.alarms.events[ShowDigest()] = 10;
    one.sync.cloudDidChangeExternally({});
    EXPECT_EQ(one.userDefaults.stringForKey(u"selectedCalendar"_s), u"TV:Here:"_s);
    one.alarms.events.clear();
    one.sync.cloudDidChangeExternally({});
    one.sync.cloudDidChangeExternally({});
    EXPECT_EQ(one.userDefaults.stringForKey(u"selectedCalendar"_s), u"TV:There:"_s);
    EXPECT_EQ(one.alarms.syncs, 1) << "once";
}

TEST_F(CloudSyncTest, TenListsAreKeptAndCanBeRestored) {
    for (int round = 0; round < 12; ++round) {
        clock.advance(round == 11 ? -1h : 1s);
        one.replaced.keep(CloudDevice::rules(u"Rule%1 More"_s.arg(round)));
        one.replaced.keep(CloudDevice::rules(u"Rule%1 More"_s.arg(round)));
    }
    one.replaced.keep(CloudDevice::channelsNumbered({1, 2, 3}));
    one.replaced.keep(std::vector<ObjectId>());
    const std::vector<ReplacedList> lists = one.kept();
    ASSERT_EQ(lists.size(), 11);
    std::vector<ReplacedList> rules;
    std::ranges::copy_if(lists, std::back_inserter(rules),
                         [](const ReplacedList& list) { return list.kind == ReplacedList::Kind::Favorites; });
    EXPECT_EQ(one.replaced.favorites(rules.front().name), CloudDevice::rules(u"Rule11 More"_s))
        << "although the clock was set back";
    EXPECT_EQ(one.replaced.favorites(rules.back().name), CloudDevice::rules(u"Rule0 More"_s)) << "the oldest";
    EXPECT_EQ(rules[1].date - rules[2].date, 1s) << "of those of late, all";
    one.shows.setFavorites(CloudDevice::rules(u"More"_s));
    const std::vector<ReplacedList> now = one.kept();
    const auto oldest = std::ranges::find(now, rules.back().name, &ReplacedList::name);
    EXPECT_EQ(oldest->titles, QStringList(u"Rule0"_s)) << "what it would bring back";
    EXPECT_FALSE(one.replaced.favorites(u"favorites-/../../favorites.plist"_s));

    one.shows.setFavorites(CloudDevice::rules(u"Now"_s));
    queues.runAll();
    one.sync.restoreFavorites(CloudDevice::rules(u"Rule2 More"_s));
    one.sync.restoreSelection(CloudDevice::channelsNumbered({1, 2, 3}));
    queues.runAll();
    EXPECT_EQ(one.titles(), u"Rule2 More"_s);
    EXPECT_FALSE(one.alarms.isSynchronized());
    EXPECT_EQ(one.refreshes, 1);
    EXPECT_EQ(one.checks, 1);
    EXPECT_TRUE(kept(one).contains(u"rules 1"_s)) << "what it replaced is kept";
    EXPECT_EQ(one.replaced.removeAll(), 11);
    EXPECT_EQ(one.replaced.count(), 0);
}

} // namespace
} // namespace guide::test
