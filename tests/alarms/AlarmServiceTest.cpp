#include "alarms/AlarmService.h"

#include "fakes/AlarmWorld.h"

namespace guide::test {
namespace {

TEST(AlarmServiceTest, ABroadcastIsRefusedAndAllowedAgain) {
    MemoryAlarmWorld world(u"rule News 10\nshow One News 12:00\nshow One News 14:00"_s);
    AlarmService service(world->alarmCalendar, *world->operations, *world->alarms);
    world->sync();
    const TVEntry& show = *world->shows[1];
    EXPECT_EQ(service.alarmOf(show).reason, ShowAlarmReason::HasByRule);

    service.refuseBroadcast(*alarmBroadcastOf(show));
    world->queues.runAll();
    EXPECT_EQ(service.alarmOf(show).reason, ShowAlarmReason::Refused);
    EXPECT_EQ(world->lead(1), -1);
    world->sync();
    EXPECT_EQ(world->lead(1), -1) << "a run does not bring it back";

    service.allowBroadcast(*alarmBroadcastOf(show));
    world->queues.runAll();
    EXPECT_EQ(world->lead(1), 10);
    JournalEntries journal;
    service.journal(
        MainBlock<JournalEntries>([&journal](const JournalEntries& entries) { journal = entries; }));
    world->queues.runAll();
    EXPECT_EQ(journal->size(), 4U);
}

TEST(AlarmServiceTest, CalendarsAreListedMadeAndSelected) {
    MemoryAlarmWorld world;
    AlarmService service(world->alarmCalendar, *world->operations, *world->alarms);
    CalendarChoice choice;
    const auto ask = [&] {
        service.calendars(
            MainBlock<CalendarChoice>([&choice](const CalendarChoice& answer) { choice = answer; }));
        world->queues.runAll();
    };
    ask();
    ASSERT_EQ(choice.calendars->size(), 1U);
    EXPECT_EQ(choice.selected, choice.calendars->front().identifier) << "without a run before";

    std::optional<EventCalendar> made;
    using Made = std::optional<EventCalendar>;
    service.createCalendar(u"Mine"_s, MainBlock<Made>([&made](const Made& answer) { made = answer; }));
    world->queues.runAll();
    ASSERT_TRUE(made);
    service.selectCalendar(*made);
    ask();
    EXPECT_EQ(choice.calendars->size(), 2U);
    EXPECT_EQ(choice.selected, made->identifier);
}

} // namespace
} // namespace guide::test
