#include "alarms/AlarmJournal.h"
#include "alarms/RecordCounters.h"
#include "alarms/RefusedBroadcasts.h"
#include "alarms/ShowAlarm.h"
#include "fakes/AlarmWorld.h"
#include "fakes/Files.h"
#include "platform/archive/Archive.h"
#include "platform/memory/MemoryRecordStore.h"

#include <QCborArray>
#include <QCborMap>
#include <QDir>

namespace guide::test {
namespace {

using namespace std::chrono_literals;

const Moment kNow = AlarmWorld::time(u"10:00"_s);

struct AlarmRecords : testing::Test {
    const QTemporaryDir folder;
    const Folders folders{folder.path(), folder.path(), {}, {}, {}, {}};
    const QString journalPath = folder.path() + u"/alarm-journal.plist"_s;
};

JournalEntry entryAt(Moment at) {
    return {.at = at,
            .deed = AlarmDeed::Moved,
            .reason = AlarmReason::ShowMoved,
            .title = u"Žirafa"_s,
            .channel = u"One"_s,
            .oldStart = at + 1h,
            .newStart = at + 2h,
            .end = std::nullopt,
            .rule = u"žirafa"_s,
            .previouslyShown = false,
            .message = u"full"_s,
            .show = ShowDigest{1, 2, 255}};
}

TEST_F(AlarmRecords, TheJournalKeepsSixtyDays) {
    AlarmJournal journal(folders);
    journal.append({entryAt(kNow - 60 * 24h - 1ms), entryAt(kNow - 60 * 24h)}, kNow);
    JournalEntry made = entryAt(kNow);
    made.deed = AlarmDeed::Made;
    made.oldStart.reset();
    made.show.reset();
    journal.append({made}, kNow);
    const std::vector<JournalEntry> expected{entryAt(kNow - 60 * 24h), made};
    EXPECT_EQ(*journal.entries(), expected);
    EXPECT_EQ(*AlarmJournal(folders).entries(), expected);
    journal.append({made}, kNow + 1ms);
    EXPECT_EQ(AlarmJournal(folders).entries()->size(), 2U);
}

TEST_F(AlarmRecords, TheJournalIsBounded) {
    AlarmJournal journal(folders);
    std::vector<JournalEntry> many(7000, entryAt(kNow));
    many.back().title = QString(100'000, u'x');
    journal.append(many, kNow);
    const JournalEntries read = AlarmJournal(folders).entries();
    EXPECT_EQ(read->size(), 5000U);
    EXPECT_EQ(read->back().title.size(), 300);
}

TEST_F(AlarmRecords, ADamagedJournalCountsAsEmpty) {
    AlarmJournal(folders).append({entryAt(kNow)}, kNow);
    const QByteArray intact = contentOf(journalPath);
    const std::pair<const char*, QByteArray> cases[] = {
        {"nothing", {}},
        {"cut off", intact.chopped(1)},
        {"another archive", archivedData(QCborArray{1, 2})},
        {"another version",
         archivedData(QCborMap{{u"version"_s, 2}, {u"entries"_s, QCborArray{QCborArray{}}}})},
    };
    for (const auto& [name, content] : cases) {
        ASSERT_TRUE(writeFile(journalPath, content));
        AlarmJournal journal(folders);
        EXPECT_TRUE(journal.entries()->empty()) << name;
        journal.append({entryAt(kNow)}, kNow);
        EXPECT_EQ(AlarmJournal(folders).entries()->size(), 1U) << name;
    }
    QCborArray rows{QCborArray{}, 7, QCborArray{0, 99, 0, {}, {}, {}, {}, {}, {}, {}, {}},
                    QCborArray{0, 0, -1, {}, {}, {}, {}, {}, {}, {}, {}},
                    QCborArray{0, 0, 0, {}, {}, {}, {}, {}, {}, {}, {}}};
    const auto read = journalOfFile(archivedData(QCborMap{{u"version"_s, 1}, {u"entries"_s, rows}}));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->size(), 1U) << "bad rows are left out, those of earlier guides are read";
}

TEST_F(AlarmRecords, AProfileThatCannotBeWrittenIsNot) {
    Folders readOnly = folders;
    readOnly.writable = false;
    AlarmJournal journal(readOnly);
    journal.append({entryAt(kNow)}, kNow);
    EXPECT_EQ(journal.entries()->size(), 1U);
    RefusedBroadcasts(readOnly).refuse({1}, kNow + 1h, kNow);
    SynchronizedMark(readOnly).set(true);
    EXPECT_TRUE(QDir(folder.path()).isEmpty(QDir::Files | QDir::Hidden));
}

TEST_F(AlarmRecords, RefusalsLastUntilTheShowIsOver) {
    RefusedBroadcasts refused(folders);
    refused.refuse({1}, kNow + 1h, kNow);
    refused.refuse({2}, kNow + 2h, kNow);
    EXPECT_EQ(RefusedBroadcasts(folders).all()->size(), 2U);
    refused.allow({2});
    EXPECT_EQ(*RefusedBroadcasts(folders).all(), (RefusedBroadcasts::EndsByShow{{ShowDigest{1}, kNow + 1h}}));
    refused.refuse({3}, kNow + 5h, kNow + 1h);
    EXPECT_EQ(*RefusedBroadcasts(folders).all(), (RefusedBroadcasts::EndsByShow{{ShowDigest{3}, kNow + 5h}}));
    ASSERT_TRUE(writeFile(folder.path() + u"/refused-alarms.plist"_s, "x"));
    EXPECT_TRUE(RefusedBroadcasts(folders).all()->empty());
}

TEST(RecordCountersTest, FollowTheActions) {
    enum Action { Added, Removed, Plus, Minus };
    const struct {
        const char* name;
        std::optional<int> before;
        Action action;
        std::optional<int> after;
    } cases[] = {
        {"a new favourite", {}, Added, 2},
        {"one more", 5, Added, 7},
        {"a negative one", -3, Added, -1},
        {"removed without a counter", {}, Removed, {}},
        {"one less", 2, Removed, 1},
        {"the last", 1, Removed, {}},
        {"raised without a counter", {}, Plus, 3},
        {"raised", 4, Plus, 7},
        {"raised to below one", -5, Plus, {}},
        {"lowered without a counter", {}, Minus, -1},
        {"lowered", 2, Minus, 1},
        {"lowered to nothing", 1, Minus, {}},
    };
    for (const auto& each : cases) {
        ManualClock clock;
        ManualQueues queues(clock);
        MemoryRecordStore records(clock);
        if (each.before) {
            records.setCounter(u"News"_s, *each.before);
        }
        clock.advance(1h);
        RecordCounters counters(records, queues);
        switch (each.action) {
        case Added:
            counters.countAddedFavorite(u"News"_s);
            break;
        case Removed:
            counters.countRemovedFavorite(u"News"_s);
            break;
        case Plus:
            counters.incrementCounterByAmount(3, u"News"_s);
            break;
        case Minus:
            counters.incrementCounterByAmount(-1, u"News"_s);
            break;
        }
        queues.runAll();
        const auto record = records.counter(u"News"_s);
        EXPECT_EQ(record ? std::optional(int(record->counter)) : std::nullopt, each.after) << each.name;
        EXPECT_TRUE(!record || record->modified == clock.now()) << each.name;
    }
}

TEST(ShowAlarmTest, SaysWhyAShowHasAnAlarmOrNone) {
    const struct {
        const char* name;
        const char* given;
        ShowAlarmReason reason;
        std::optional<int> minutes = {};
    } cases[] = {
        {"by its rule", "rule News 10\nshow One News 12:00", ShowAlarmReason::HasByRule, 10},
        {"by the user", "rule News -\nshow One News 12:00\nevent e1 One News 12:00 20",
         ShowAlarmReason::HasByUser, 20},
        {"by the user, of a replay",
         "rule News 10 premieres\nshow One News 12:00 replay\nevent e1 One News 12:00 20",
         ShowAlarmReason::HasByUser, 20},
        {"begun", "rule News 10\nshow One News 10:00", ShowAlarmReason::Begun},
        {"no favourite", "rule Film 10\nshow One News 12:00", ShowAlarmReason::NoRule},
        {"no recurring alarm", "rule News -\nshow One News 12:00", ShowAlarmReason::RuleWithoutAlarm},
        {"a replay", "rule News 10 premieres\nshow One News 12:00 replay", ShowAlarmReason::OnlyPremieres},
        {"a premiere", "rule News 10 replays\nshow One News 12:00", ShowAlarmReason::OnlyReplays},
        {"silent", "rule News 10\nsilent 00:00 07:00\nshow One News 05:00+1", ShowAlarmReason::SilentHours},
        {"refused", "rule News 10\nrefused One News 12:00\nshow One News 12:00", ShowAlarmReason::Refused},
        {"too far", "rule News 10\nshow One News 10:00+60", ShowAlarmReason::TooFar},
    };
    for (const auto& each : cases) {
        MemoryAlarmWorld world(QString::fromUtf8(each.given));
        world->sync();
        const ShowAlarm alarm = alarmReasonFor(*world->shows[0], world->alarmCalendar->showAlarmSituation());
        EXPECT_EQ(int(alarm.reason), int(each.reason)) << each.name;
        EXPECT_EQ(alarm.minutes, each.minutes) << each.name;
    }

    MemoryAlarmWorld world(u"rule News 10\nshow One News 12:00"_s);
    const TVEntry& entry = *world->shows[0];
    const auto reason = [&](const std::function<void(ShowAlarmSituation&)>& change) {
        ShowAlarmSituation situation = world->alarmCalendar->showAlarmSituation();
        change(situation);
        return alarmReasonFor(entry, situation).reason;
    };
    const auto nothing = [](ShowAlarmSituation&) {};
    EXPECT_EQ(reason(nothing), ShowAlarmReason::NoCalendar) << "no run was made yet";
    world->alarmCalendar->mark().set(true);
    world->alarms->syncAlarms();
    world->queues.runAll();
    EXPECT_EQ(reason(nothing), ShowAlarmReason::NextRun);
    EXPECT_EQ(reason([](auto& s) { s.access = CalendarAccess::Refused; }), ShowAlarmReason::NoCalendarAccess);
    EXPECT_EQ(reason([](auto& s) { s.calendar->allowsContentModifications = false; }),
              ShowAlarmReason::ReadOnlyCalendar);
    EXPECT_EQ(reason([](auto& s) { s.run.settledChannels.clear(); }), ShowAlarmReason::ChannelNotLoaded);
    EXPECT_EQ(reason([&entry](auto& s) {
                  s.alarms = std::make_shared<const AlarmsSnapshot>(
                      AlarmsSnapshot::MinutesByShow{{*entry.digest(), {}}});
              }),
              ShowAlarmReason::AlarmRemoved);
}

} // namespace
} // namespace guide::test
