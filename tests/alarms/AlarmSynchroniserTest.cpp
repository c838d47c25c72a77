#include "fakes/AlarmScenarios.h"

namespace guide::test {
namespace {

using namespace std::chrono_literals;

QString linesOf(int count, const char* pattern) {
    QString lines;
    for (int i = 0; i < count; ++i) {
        lines += QString::fromUtf8(pattern).arg(i) + u'\n';
    }
    return lines;
}

TEST(AlarmSynchroniser, FullRuns) {
    for (const AlarmScenario& scenario : kAlarmScenarios) {
        MemoryAlarmWorld world;
        play(scenario, world.world);
    }
}

TEST(AlarmSynchroniser, RunsWithFaults) {
    const struct {
        const char* name;
        const char* given;
        const char* calendar;
        std::function<void(MemoryEventStore&)> fault;
        const char* journal = "";
        /// Whether the next run has nothing to repeat.
        bool synchronized = false;
    } cases[] = {
        {"an event cannot be made, the other is",
         "rule News 10\nrule Film 10\nshow One News 12:00\nshow One Film 13:00", "new One Film 13:00 10",
         [](auto& store) { store.failToSave({u"News"_s}); }, "NotMade Rule News 12:00\nMade Rule Film 13:00"},
        {"an event cannot be moved", "rule Film -\nshow One Film 13:00\nevent e1 One Film 12:00 10",
         "e1 One Film 12:00 10", [](auto& store) { store.failToSave({u"Film"_s}); },
         "NotMoved ShowMoved Film 12:00>13:00"},
        {"an event was changed elsewhere meanwhile",
         "rule Film -\nshow One Film 13:00\nevent e1 One Film 12:00 10", "e1 One Film 12:00 10",
         [](auto& store) { store.failToSave({u"Film"_s}, EventFault::Conflict); }},
        {"an event cannot be removed",
         "rule Film -\nrule News -\nshow Two News 13:00\nevent e1 One Film 12:00 10", "e1 One Film 12:00 10",
         [](auto& store) { store.failToRemove({u"made-1"_s}); }, "NotRemoved NotListed Film 12:00"},
        {"an event is already gone",
         "rule Film -\nrule News -\nshow Two News 13:00\nevent e1 One Film 12:00 10", "e1 One Film 12:00 10",
         [](auto& store) { store.failToRemove({u"made-1"_s}, EventFault::NotFound); },
         "Removed NotListed Film 12:00", true},
        {"a duplicate cannot be removed",
         "rule Film -\nevent e1 One Film 12:00 10\nevent e2 One Film 12:00 10",
         "e1 One Film 12:00 10\ne2 One Film 12:00 10",
         [](auto& store) { store.failToRemove({u"made-2"_s}); }},
        {"the calendar became read-only", "rule News 10\nshow One News 12:00", "",
         [](auto& store) { store.setWritable(u"calendar-0"_s, false); }, "NotMade Rule News 12:00", true},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        MemoryAlarmWorld world(QString::fromUtf8(each.given));
        world->alarmCalendar->ensureSelectedCalendarIsSet();
        each.fault(world.events);
        world->sync();
        EXPECT_EQ(world->calendar().toStdString(), each.calendar);
        if (*each.journal != '\0') {
            EXPECT_EQ(world->journal().toStdString(), each.journal);
        }
        EXPECT_EQ(world->alarmCalendar->mark().isSet(), each.synchronized);
        EXPECT_EQ(world->runs.back().complete, each.synchronized);
        EXPECT_EQ(world->notifications, 1);
    }
}

TEST(AlarmSynchroniser, ARangeThatCannotBeReadChangesNothing) {
    MemoryAlarmWorld world(u"rule News 10\nshow One News 12:00\nshow One News 14:00"_s);
    world->sync();
    world->setShows({u"Two Film 12:00"_s});
    world.events.failToReadRanges();
    world->sync();
    EXPECT_EQ(world->alarms->snapshot()->eventCount(), 2U) << "what was known stays";
    EXPECT_FALSE(world->alarmCalendar->mark().isSet()) << "the next run is a full one";
    EXPECT_EQ(world->tasks.running(), 0U);
    world.events.failToReadRanges(false);
    world->alarms->syncAlarms();
    world->queues.runAll();
    EXPECT_TRUE(world->alarmCalendar->mark().isSet());
    EXPECT_EQ(world->calendar(), u"new One News 12:00 10\nnew One News 14:00 10"_s)
        << "no favourite is listed";
}

TEST(AlarmSynchroniser, WithoutBrakeOrRepetitionTheMarkIsSetAnyway) {
    MemoryAlarmWorld world(u"rule News 10\nshow One News 12:00"_s,
                           {.brake = false, .repeatsUnfinished = false});
    world.events.failToReadRanges();
    world->sync();
    EXPECT_TRUE(world->alarmCalendar->mark().isSet());
}

TEST(AlarmSynchroniser, AnotherRunRemovesWhatAMoveMadeWrong) {
    const struct {
        const char* name;
        const char* given;
        const char* calendar;
        std::size_t runs = 2;
        bool fails = false;
    } cases[] = {
        {"two events of one show",
         "rule Film -\nshow One Film 12:00\nevent e1 One Film 11:00 10\nevent e2 One Film 13:00 20",
         "e1 One Film 12:00 10"},
        {"an alarm in silent hours",
         "rule News 10\nsilent 00:00 07:00\nshow One News 05:00+1\nevent e1 One News 08:00+1 10", ""},
        {"nothing is wrong", "rule Film -\nshow One Film 12:00\nevent e1 One Film 11:00 10",
         "e1 One Film 12:00 10", 1},
        {"a refused move is not tried at once",
         "rule Film -\nrule News -\nshow One Film 12:00\nshow One News 12:00\nevent e1 One Film 11:00 "
         "10\nevent e2 One News 11:00 10",
         "e1 One Film 11:00 10\ne2 One News 12:00 10", 1, true},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        MemoryAlarmWorld world(QString::fromUtf8(each.given), {});
        if (each.fails) {
            world.events.failToSave({u"Film"_s});
        }
        world->sync();
        EXPECT_EQ(world->calendar().toStdString(), each.calendar);
        EXPECT_EQ(world->runs.size(), each.runs);
        EXPECT_EQ(world->alarmCalendar->mark().isSet(), !each.fails);
    }
}

TEST(AlarmSynchroniser, CleanUpRuns) {
    const struct {
        const char* name;
        const char* given;
        const char* calendar;
        int notifications = 1;
        std::size_t alarms = 0;
    } cases[] = {
        {"makes and moves nothing", "rule Film 10\nshow One Film 13:00\nevent e1 One Film 12:00 10",
         "e1 One Film 12:00 10", 1, 1},
        {"removes an event without an alarm", "rule Film 10\nevent e1 One Film 12:00 none", ""},
        {"knows only what is to come", "rule Film 10\nevent e1 One Film 09:50 10\nevent e2 One Film 12:00 10",
         "e1 One Film 09:50 10\ne2 One Film 12:00 10", 1, 1},
        {"two events of one show are one alarm",
         "rule Film 10\nevent e1 One Film 12:00 10\nevent e2 One Film 13:00 10 of 12:00",
         "e1 One Film 12:00 10\ne2 One Film 13:00 10 *", 1, 1},
        {"without favourites it ends at once", "event e1 One Film 12:00 none", "e1 One Film 12:00 none", 0},
        {"without channels too",
         "rule Film 10\nchannel One unselected\nchannel Two unselected\nchannel Three unselected\nevent e1 "
         "One Film "
         "12:00 none",
         "e1 One Film 12:00 none", 0},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        MemoryAlarmWorld world(QString::fromUtf8(each.given));
        world->alarmCalendar->mark().set(true);
        world->alarms->syncAlarms();
        world->queues.runAll();
        EXPECT_EQ(world->calendar().toStdString(), each.calendar);
        EXPECT_EQ(world->notifications, each.notifications);
        EXPECT_EQ(world->alarms->snapshot()->eventCount(), each.alarms);
    }
}

TEST(AlarmSynchroniser, ARunThatIsAskedForDuringARunFollowsIt) {
    MemoryAlarmWorld world(u"rule News 10\nshow One News 12:00"_s);
    world->alarms->resynchronize();
    EXPECT_TRUE(world->alarms->isRunning());
    world->alarms->syncAlarms();
    world->alarms->resynchronize();
    world->queues.runAll();
    EXPECT_FALSE(world->alarms->isRunning());
    ASSERT_EQ(world->runs.size(), 2U);
    EXPECT_TRUE(world->runs[0].full && world->runs[1].full);
    EXPECT_TRUE(world->alarmCalendar->mark().isSet());
    world->alarms->syncAlarms();
    world->alarms->syncAlarms();
    world->queues.runAll();
    ASSERT_EQ(world->runs.size(), 4U);
    EXPECT_FALSE(world->runs[3].full);
}

TEST(AlarmSynchroniser, AMarkThatIsClearedDuringARunStaysCleared) {
    MemoryAlarmWorld world(u"rule News 10\nshow One News 12:00"_s);
    world->alarms->resynchronize();
    world->alarms->setSynchronized(false);
    world->queues.runAll();
    EXPECT_FALSE(world->alarmCalendar->mark().isSet());
}

TEST(AlarmSynchroniser, TheMarkIsAFile) {
    MemoryAlarmWorld world(u"rule News 10\nshow One News 12:00"_s);
    const QString path = world->folders.caches + u"/.alarms.synchronized"_s;
    EXPECT_FALSE(QFile::exists(path));
    world->sync();
    EXPECT_TRUE(QFile::exists(path));
    EXPECT_TRUE(SynchronizedMark(world->folders).isSet());
    world->alarms->setSynchronized(false);
    EXPECT_FALSE(QFile::exists(path));
}

TEST(AlarmSynchroniser, AsksForAccessOnce) {
    const struct {
        CalendarAccess access;
        const char* calendar;
        std::size_t runs;
        bool loaded;
    } cases[] = {
        {CalendarAccess::NotAsked, "new One News 12:00 10", 1, true},
        {CalendarAccess::Refused, "", 0, true},
    };
    for (const auto& each : cases) {
        MemoryAlarmWorld world(u"rule News 10\nshow One News 12:00"_s);
        world.events.setAccess(each.access);
        world->sync();
        EXPECT_EQ(world->calendar().toStdString(), each.calendar);
        EXPECT_EQ(world->runs.size(), each.runs);
        EXPECT_TRUE(world->alarmCalendar->mark().isSet()) << "no attempt follows";
        EXPECT_FALSE(world->alarms->isRunning());
        EXPECT_EQ(world->alarms->hasCalendarAccess(), each.runs > 0);
    }
}

TEST(AlarmSynchroniser, FollowsWhatTheUserDoesInTheCalendar) {
    MemoryAlarmWorld world(u"rule News 10\nshow One News 12:00\nshow One News 14:00"_s);
    world.events.setCalendarsChanged([&world] { world->alarms->calendarsChanged(); });
    world->sync();
    const std::vector<CalendarEvent> made = world.events.events();
    ASSERT_EQ(made.size(), 2U);
    const auto setAlarms = [&](std::vector<std::chrono::seconds> offsets) {
        world.events.edit(made[0].identifier,
                          [&offsets](CalendarEvent& event) { event.alarmOffsets = std::move(offsets); });
        world->queues.runAll();
        return world->lead(0);
    };
    EXPECT_EQ(world->lead(0), 10);
    EXPECT_EQ(setAlarms({-420s}), 5) << "7 minutes";
    EXPECT_EQ(setAlarms({-480s}), 10) << "8 minutes";
    EXPECT_EQ(setAlarms({60s, -1200s, -300s}), 20) << "the first before the show";
    EXPECT_EQ(setAlarms({60s, 0s}), 0) << "or else the last";
    EXPECT_EQ(setAlarms({0s, 60s}), -1) << "after the beginning";
    EXPECT_EQ(setAlarms({}), -1);
    EXPECT_EQ(world->alarms->snapshot()->eventCount(), 2U);

    world.events.remove(made[1].identifier);
    world->queues.runAll();
    EXPECT_EQ(world->lead(1), -1);
    world->sync();
    EXPECT_EQ(world->lead(0), 10);
    EXPECT_TRUE(world->journal().endsWith(u"Removed AlarmRemoved News 12:00\nMade RuleAgain News 12:00\n"
                                          "Made RuleAgain News 14:00"_s))
        << world->journal().toStdString();

    world->operations->refuseBroadcast(*alarmBroadcastOf(*world->shows[1]));
    world->queues.runAll();
    EXPECT_EQ(world->calendar(), u"new One News 12:00 10"_s);
    world->sync();
    EXPECT_EQ(world->calendar(), u"new One News 12:00 10"_s);
}

TEST(AlarmSynchroniser, TheBrakeHoldsMostRemovalsBack) {
    const QString rules = u"rule News 5\nrule Other -\nshow Two Other 20:00\nshow One News 12:00+1\n"_s;
    const struct {
        const char* name;
        int listed;
        int gone;
        bool brake;
        std::size_t heldBack;
        int left;
    } cases[] = {
        {"more than half of ten", 4, 6, true, 6, 10}, {"half of ten", 5, 5, true, 0, 5},
        {"all of ten", 0, 10, true, 10, 10},          {"all of nine", 0, 9, true, 0, 0},
        {"without a brake", 0, 20, false, 0, 0},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        MemoryAlarmWorld world({}, {.brake = each.brake, .repeatsUnfinished = true});
        world->give(rules + linesOf(each.listed, "show Three Other 1%1:30\nevent l%1 Three Other 1%1:30 10") +
                    linesOf(each.gone, "event g%1 One Gone %1:00+2 10"));
        world->sync();
        EXPECT_EQ(world->runs.back().heldBack, each.heldBack);
        EXPECT_TRUE(world->alarmCalendar->mark().isSet());
        EXPECT_EQ(world->calendar().count(u'\n'), each.left) << "and the new one";
        EXPECT_EQ(world->journal().count(u"HeldBack NotListed"_s), int(each.heldBack));
    }
}

TEST(AlarmSynchroniser, TheUserDecidesAboutWhatIsHeldBack) {
    const QString given =
        u"rule Other -\nshow Two Other 20:00\n"_s + linesOf(10, "event g%1 One Gone 0%1:00+2 10");
    MemoryAlarmWorld kept(given);
    kept->sync();
    EXPECT_EQ(kept->runs.back().heldBack, 10U);
    kept->sync();
    EXPECT_EQ(kept->runs.back().heldBack, 0U) << "it has been said";
    EXPECT_EQ(kept->journal().count(u"HeldBack"_s), 10);
    kept->alarms->keepHeldBack();
    kept->sync();
    EXPECT_EQ(kept->runs.back().heldBack, 0U) << "the user keeps them";
    kept->give(u"event more One Gone 20:00+2 10"_s);
    kept->sync();
    EXPECT_EQ(kept->runs.back().heldBack, 11U) << "one more, which the user does not know of";
    EXPECT_EQ(kept->journal().count(u"HeldBack"_s), 11);
    EXPECT_EQ(kept->alarms->snapshot()->eventCount(), 11U);

    MemoryAlarmWorld removed(given + linesOf(2, "event n%1 One Silenced 1%1:00+2 none"));
    removed->sync();
    EXPECT_EQ(removed->alarms->snapshot()->eventCount(), 10U);
    EXPECT_FALSE(removed->calendar().contains(u"Silenced"_s)) << "the user removed these alarms";
    const auto channel = removed->channels.channelWithChannelId(AlarmWorld::channelNamed(u"One"_s));
    channel->setLoading(true);
    removed->alarms->removeHeldBack();
    removed->queues.runAll();
    EXPECT_EQ(removed->alarms->snapshot()->eventCount(), 10U)
        << "a channel that is being loaded proves nothing";
    channel->setLoading(false);
    removed->sync();
    EXPECT_EQ(removed->runs.back().heldBack, 0U) << "the user has decided";
    EXPECT_EQ(removed->calendar(), QString());
    EXPECT_TRUE(removed->alarmCalendar->mark().isSet());
    removed->give(linesOf(10, "event h%1 One Gone 0%1:00+2 10"));
    removed->sync();
    EXPECT_EQ(removed->runs.back().heldBack, 10U) << "another time";
}

TEST(AlarmSynchroniser, NoAlarmIsLeftWhenTheLastEventIsRemovedElsewhere) {
    MemoryAlarmWorld world(u"rule News -\nshow One News 12:00\nevent e1 One News 12:00 10"_s);
    world->sync();
    EXPECT_EQ(world->alarms->snapshot()->eventCount(), 1U);
    ASSERT_TRUE(world->alarmCalendar->mark().isSet());
    world.events.remove(world.events.events().front().identifier);
    world->alarms->syncAlarms();
    world->queues.runAll();
    EXPECT_EQ(world->alarms->snapshot()->eventCount(), 0U) << "by a run that is not full";
}

TEST(AlarmSynchroniser, TheJournalSaysWhoSetAnAlarm) {
    MemoryAlarmWorld world(
        u"rule News 10 premieres\nrule Film -\nshow One News 12:00\nshow Two Film 13:00 replay"_s);
    world->sync();
    world->operations->setAlarmForTitle(u"Film"_s, 5, true, true);
    world->queues.runAll();
    const JournalEntries entries = world->alarmCalendar->journal().entries();
    ASSERT_EQ(entries->size(), 2U);
    EXPECT_EQ(entries->at(0).previouslyShown, false);
    EXPECT_EQ(entries->at(1).previouslyShown, true);
    // By the swipe that also makes the show a favourite, which counts it.
    world->operations->setAlarmForTitle(u"Film"_s, AlarmWorld::channelNamed(u"One"_s),
                                        AlarmWorld::time(u"15:00"_s), AlarmWorld::time(u"16:00"_s), 5, true,
                                        false);
    world->queues.runAll();
    EXPECT_EQ(world->alarmCalendar->journal().entries()->at(2).reason, AlarmReason::User);
}

TEST(AlarmSynchroniser, ListsShowsWithAlerts) {
    const struct {
        const char* name;
        const char* given;
        const char* starts;
    } cases[] = {
        {"in ascending start time", "rule News 10\nrule Film 60\nshow One News 14:00\nshow Two Film 12:00",
         "12:00 14:00"},
        {"not one that is no favourite",
         "rule News 10\nshow One News 14:00\nshow One Film 12:00\nevent e1 One Film 12:00 10", "14:00"},
        {"not one without an event", "rule News 10\nrule Film -\nshow One News 14:00\nshow One Film 12:00",
         "14:00"},
        {"not one whose last alarm follows the show",
         "rule News -\nshow One News 14:00\nevent e1 One News 14:00 10,-10", ""},
        {"one whose last alarm precedes it",
         "rule News -\nshow One News 14:00\nevent e1 One News 14:00 -10,10", "14:00"},
        {"not one whose alarm is silenced",
         "rule News -\nsilent 00:00 07:00\nshow One News 05:00+1\nevent e1 One News 05:00+1 10", ""},
        {"one whose event is elsewhere in time",
         "rule News -\nshow One News 14:00\nshow One News 15:00\nevent e1 One News 13:00 10 of 14:00",
         "14:00"},
        {"twice when it has two events",
         "rule News -\nshow One News 14:00\nevent e1 One News 14:00 10\nevent e2 One News 13:00 10 of 14:00",
         "14:00 14:00"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        MemoryAlarmWorld world(QString::fromUtf8(each.given));
        world->sync();
        const int reads = world.events.readCount();
        QStringList starts;
        world->alarms->alertsScheduleWithPriority(
            QueuePriority::UserInitiated, MainBlock<ShowSpan>([&starts](const ShowSpan& shows) {
                for (const ShowItem& show : shows) {
                    starts << AlarmWorld::textOf(*show.entry()->dateTime());
                }
            }));
        world->queues.runAll();
        EXPECT_EQ(starts.join(u' ').toStdString(), each.starts);
        EXPECT_EQ(world.events.readCount(), reads) << "answered from memory";
    }
}

TEST(AlarmSynchroniser, MakesTheChangesOfAPhaseInOneBatch) {
    MemoryAlarmWorld world(
        u"rule News 5\nrule Film 5\nevent d1 One Old 12:00 none\nevent d2 One Old 13:00 none\n"_s +
        linesOf(9, "show One News 1%1:00\nshow Two Film 1%1:30\nevent m%1 Three Film 1%1:10 5"));
    const int batches = world.events.batchCount();
    world->sync();
    EXPECT_EQ(world.events.batchCount() - batches, 3);
}

} // namespace
} // namespace guide::test
