#include "alarms/AlarmSettings.h"
#include "alarms/CalendarDescription.h"
#include "fakes/AlarmWorld.h"

namespace guide::test {
namespace {

using namespace std::chrono_literals;

/// "set One News 12:00 10 [sync] [manual]", "remove One News 12:00 …", "recur News 10 [premieres|replays] …",
/// "end News …", "unfavorite News"
void perform(AlarmWorld& world, const QString& line) {
    const QStringList words = line.split(u' ');
    const bool sync = words.contains(u"sync"_s);
    const bool manual = words.contains(u"manual"_s);
    const QString& kind = words[0];
    if (kind == "set"_L1) {
        const Moment at = AlarmWorld::time(words[3]);
        world.operations->setAlarmForTitle(words[2], AlarmWorld::channelNamed(words[1]), at, at + 30min,
                                           words[4].toInt(), sync, manual);
    } else if (kind == "remove"_L1) {
        world.operations->removeAlarmForTitle(words[2], AlarmWorld::channelNamed(words[1]),
                                              AlarmWorld::time(words[3]), sync, manual);
    } else if (kind == "recur"_L1) {
        const std::optional<bool> type = words.contains(u"replays"_s)     ? std::optional(true)
                                         : words.contains(u"premieres"_s) ? std::optional(false)
                                                                          : std::nullopt;
        world.operations->setAlarmForTitle(words[1], words[2].toInt(), type, manual);
    } else if (kind == "end"_L1) {
        world.operations->removeAlarmForTitle(words[1], sync, manual);
    } else if (kind == "unfavorite"_L1) {
        world.favorites->removeFavorite(words[1]);
    } else {
        FAIL() << line.toStdString();
    }
    world.queues.runAll();
}

QString rulesOf(const AlarmWorld& world) {
    QStringList lines;
    const auto snapshot = world.rules.snapshot();
    for (const Favorite& rule : snapshot->rules()) {
        lines << rule.identificator + u' ' + (rule.minutes ? QString::number(*rule.minutes) : u"-"_s) +
                     (!rule.previouslyShown   ? QString()
                      : *rule.previouslyShown ? u" replays"_s
                                              : u" premieres"_s);
    }
    return lines.join(u", "_s);
}

TEST(AlarmOperationsTest, ChangeCalendarRulesAndCounters) {
    const struct {
        const char* name;
        const char* given;
        const char* step;
        const char* calendar;
        const char* counted = "";
        int notifications = 0;
        /// -1: none was stored.
        int lastMinutes = -1;
        const char* rules = nullptr;
    } cases[] = {
        // ---- one broadcast
        {"set", "", "set One News 12:00 10 sync manual", "new One News 12:00 10", "News 2", 1, 10},
        {"set by a rule", "", "set One News 12:00 10", "new One News 12:00 10", "", 0, 10},
        {"its moment has passed", "", "set One News 10:05 10 sync manual", "", "News 2", 1},
        {"its moment is now", "", "set One News 10:10 10 sync", "", "", 1},
        {"the user's own in silent hours", "silent 00:00 07:00", "set One News 05:00+1 10 sync manual",
         "new One News 05:00+1 10", "News 2", 1, 10},
        {"a rule's in silent hours", "silent 00:00 07:00", "set One News 05:00+1 10 sync", "", "", 0},
        {"a refused broadcast is wanted again", "refused One News 12:00", "set One News 12:00 10 manual",
         "new One News 12:00 10", "News 2", 0, 10},
        {"remove", "event e1 One News 12:00 10", "remove One News 12:00 sync manual", "", "News -1", 1},
        {"remove without telling", "event e1 One News 12:00 10", "remove One News 12:00", "", "", 0},
        {"remove compares case", "event e1 One NEWS 12:00 10", "remove One News 12:00 sync",
         "e1 One NEWS 12:00 10"},
        {"remove compares the start", "event e1 One News 12:01 10", "remove One News 12:00 sync",
         "e1 One News 12:01 10"},
        {"remove compares the channel", "event e1 Two News 12:00 10", "remove One News 12:00 sync",
         "e1 Two News 12:00 10"},
        {"a running show keeps its event", "event e1 One News 09:50 10", "remove One News 09:50 sync manual",
         "e1 One News 09:50 10", "News -1"},
        {"one that begins now does not", "event e1 One News 10:00 10", "remove One News 10:00 sync", "", "",
         1},
        {"foreign events stay", "event e1 One News 12:00 10 url=http://x/1", "remove One News 12:00 sync",
         "e1 One News 12:00 10 *"},

        // ---- a title
        {"recurring", "rule News -\nshow One News 12:00\nshow Two News 13:00\nshow One Film 13:00",
         "recur News 10 manual", "new One News 12:00 10\nnew Two News 13:00 10", "News 3", 1, 10, "News 10"},
        {"recurring on premieres", "rule News -\nshow One News 12:00\nshow Two News 13:00 replay",
         "recur News 10 premieres", "new One News 12:00 10", "", 1, 10, "News 10 premieres"},
        {"recurring on replays", "rule News -\nshow One News 12:00\nshow Two News 13:00 replay",
         "recur News 10 replays", "new Two News 13:00 10", "", 1, 10, "News 10 replays"},
        {"recurring in silent hours", "rule News -\nsilent 00:00 07:00\nshow One News 05:00+1",
         "recur News 10", "", "", 1, -1, "News 10"},
        {"recurring where it is refused",
         "rule News -\nrefused One News 12:00\nshow One News 12:00\nshow One News 13:00", "recur News 10",
         "new One News 13:00 10", "", 1, 10, "News 10"},
        {"recurring on a title of another case", "rule news -\nshow One NEWS 12:00", "recur News 10",
         "new One News 12:00 10 *", "", 1, 10, "News 10"},
        {"recurring where nothing is listed", "rule News -\nshow One Film 12:00", "recur News 10", "", "", 0,
         -1, "News 10"},
        {"recurring on no favourite", "rule Film -\nshow One News 12:00", "recur News 10", "", "", 0, -1,
         "Film -"},
        {"another lead time is for new events",
         "rule News 5\nshow One News 12:00\nshow One News 13:00\nevent e1 One News 12:00 5", "recur News 10",
         "e1 One News 12:00 5\nnew One News 13:00 10", "", 1, 10, "News 10"},
        {"of two rules the first", "rule News -\nrule news -\nshow One News 12:00", "recur News 10",
         "new One News 12:00 10", "", 1, 10, "News 10, news -"},
        {"end",
         "rule News 10 replays\nevent e1 One News 12:00 10\nevent e2 Two NEWS 13:00 5\nevent e3 Two Film "
         "13:00 5",
         "end news sync manual", "e3 Two Film 13:00 5", "news -1", 1, -1, "news -"},
        {"end without events", "rule News 10", "end News sync", "", "", 0, -1, "News -"},
        {"end leaves the past", "rule News 10\nevent e1 One News 09:00 10\nevent e2 One News 12:00-1 10",
         "end News sync", "e2 One News 12:00-1 10\ne1 One News 09:00 10", "", 0, -1, "News -"},
        {"end takes a running one", "rule News 10\nevent e1 One News 09:45 10", "end News sync", "", "", 1,
         -1, "News -"},
        {"end leaves foreign events", "rule News 10\nevent e1 One News 12:00 10 url=http://x/1",
         "end News sync", "e1 One News 12:00 10 *", "", 0, -1, "News -"},
        {"no favourite any more",
         "rule News 10\nrule Film 5\nevent e1 One News 12:00 10\nevent e2 One Film 12:00 10",
         "unfavorite News", "e2 One Film 12:00 10", "News removed", 1, -1, "Film 5"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        MemoryAlarmWorld world;
        // Selects the calendar, as a run at the start does.
        world->alarmCalendar->mark().set(true);
        world->alarms->syncAlarms();
        world->queues.runAll();
        world->give(QString::fromUtf8(each.given));
        world->notifications = 0;
        perform(world.world, QString::fromUtf8(each.step));
        EXPECT_EQ(world->calendar().toStdString(), each.calendar);
        EXPECT_EQ(world->counted.join(u", "_s).toStdString(), each.counted);
        EXPECT_EQ(world->notifications, each.notifications);
        const auto minutes = world->keyValueStore.valueForKey(u"lastAlarmMinutes"_s);
        EXPECT_EQ(minutes ? minutes->toInteger() : -1, each.lastMinutes);
        if (each.rules) {
            EXPECT_EQ(rulesOf(world.world).toStdString(), each.rules);
        }
        EXPECT_TRUE(world->alarmCalendar->mark().isSet());
    }
}

TEST(AlarmOperationsTest, NeedACalendarAndAccess) {
    for (const CalendarAccess access : {CalendarAccess::Refused, CalendarAccess::Granted}) {
        MemoryEventStore events;
        events.setAccess(access);
        AlarmWorld world(events, {});
        world.give(u"rule News -\nshow One News 12:00"_s);
        for (const char* step : {"set One News 12:00 10 sync manual", "recur News 10 manual",
                                 "end News sync manual", "remove One News 12:00 sync manual"}) {
            perform(world, QString::fromLatin1(step));
        }
        EXPECT_EQ(events.batchCount(), 0);
        EXPECT_EQ(world.counted.size(), 4) << "counted all the same";
        EXPECT_FALSE(world.keyValueStore.valueForKey(u"lastAlarmMinutes"_s));
        EXPECT_EQ(rulesOf(world), u"News -"_s);
    }
}

TEST(AlarmOperationsTest, AManualAlarmIsKnownAtOnce) {
    MemoryAlarmWorld world(u"rule News -\nshow One News 12:00\nshow Two News 13:00"_s);
    world->sync();
    perform(world.world, u"set One News 12:00 15 sync manual"_s);
    EXPECT_EQ(world->lead(0), 15);
    perform(world.world, u"set Two News 13:00 15 manual"_s);
    EXPECT_EQ(world->lead(1), -1) << "the caller makes more changes";
    world.events.failToRemove({u"made-1"_s});
    perform(world.world, u"remove One News 12:00 sync manual"_s);
    EXPECT_EQ(world->lead(0), -1);
    EXPECT_TRUE(world->journal().endsWith(u"NotRemoved User News 12:00"_s));
    world->sync();
    EXPECT_EQ(world->lead(0), 15) << "the calendar kept it";
}

TEST(AlarmOperationsTest, AFailureLeavesTheMarkCleared) {
    MemoryAlarmWorld world(u"rule News 10\nevent e1 One News 12:00 10"_s);
    world->sync();
    world.events.failToRemove({u"made-1"_s});
    perform(world.world, u"end News sync"_s);
    EXPECT_FALSE(world->alarmCalendar->mark().isSet());
    world.events.failToRemove({});
    world.events.failToReadRanges();
    world->alarmCalendar->mark().set(true);
    perform(world.world, u"end News sync"_s);
    EXPECT_FALSE(world->alarmCalendar->mark().isSet());
}

TEST(AlarmOperationsTest, ManyTitlesAreEndedInOneBatch) {
    QString lines;
    QStringList titles;
    for (int i = 0; i < 30; ++i) {
        titles << u"T%1"_s.arg(i);
        lines += u"rule T%1 5\nevent e%1 One T%1 12:%1 5\n"_s.arg(i);
    }
    MemoryAlarmWorld world(lines);
    world->sync();
    const int batches = world.events.batchCount();
    const int reads = world.events.readCount();
    world->favorites->removeFavorites(titles);
    world->queues.runAll();
    EXPECT_EQ(world.events.batchCount() - batches, 1);
    EXPECT_EQ(world.events.readCount() - reads, 1);
    EXPECT_EQ(world->calendar(), QString());
}

TEST(AlarmOperationsTest, TheCalendarIsFoundAgain) {
    const auto calendar = [](const char* title, const char* source, double red, bool writable = true) {
        return EventCalendar{.identifier = {},
                             .title = QString::fromLatin1(title),
                             .source = QString::fromLatin1(source),
                             .color = {red, 0.4, 0.6, 1},
                             .allowsContentModifications = writable};
    };
    const std::vector<EventCalendar> calendars{
        calendar("TV", "Home", 0.1), calendar("TV", "Local", 0.1), calendar("TV", "Local", 0.2),
        calendar("Read", "Local", 0.2, false), calendar("", "Local", 0.2)};
    const std::tuple<const char*, const char*, int> cases[] = {
        {"exactly", "TV:Local:0.200000:0.400000:0.600000:1.000000", 2},
        {"by title and source", "TV:Local:0.900000:0.400000:0.600000:1.000000", 1},
        {"by title", "TV:Work:0.200000:0.400000:0.600000:1.000000", 0},
        {"renamed", "Television:Local:0.200000:0.400000:0.600000:1.000000", -1},
        {"read-only, exactly", "Read:Local:0.200000:0.400000:0.600000:1.000000", -1},
        {"without a title", ":Local:0.200000:0.400000:0.600000:1.000000", 4},
        {"nothing stored", "", -1},
    };
    for (const auto& [name, text, expected] : cases) {
        const auto found = calendarOfDescription(calendars, QString::fromLatin1(text));
        EXPECT_EQ(found, expected < 0 ? std::nullopt : std::optional(calendars[std::size_t(expected)]))
            << name;
    }
    EXPECT_EQ(calendarDescription(calendars[2]), QString::fromLatin1(std::get<1>(cases[0])));
}

TEST(AlarmOperationsTest, ACalendarIsSelectedOnAllDevices) {
    MemoryEventStore events;
    AlarmWorld world(events, {});
    const EventCalendar first = events.addCalendar({.identifier = {}, .title = u"A"_s, .source = u"Local"_s});
    const EventCalendar second =
        events.addCalendar({.identifier = {}, .title = u"B"_s, .source = u"Local"_s});
    events.setDefaultCalendar(first.identifier);
    world.sync();
    EXPECT_EQ(world.alarmCalendar->selectedCalendar(), first) << "the default, even if it is read-only";
    EXPECT_TRUE(world.userDefaults.stringForKey(u"selectedCalendar"_s)->startsWith("A:Local:"_L1));
    EXPECT_FALSE(world.keyValueStore.valueForKey(u"selectedCalendar"_s));
    for (int i = 0; i < 2; ++i) {
        world.operations->saveCalendar(second);
        world.queues.runAll();
        EXPECT_EQ(world.badges, 1) << "selected again, nothing happens";
    }
    EXPECT_TRUE(world.keyValueStore.valueForKey(u"selectedCalendar"_s)->toString().startsWith(u"B:Local:"_s));
    EXPECT_EQ(world.userDefaults.stringForKey(u"selectedCalendar"_s),
              world.keyValueStore.valueForKey(u"selectedCalendar"_s)->toString());
}

// While a service starts slowly, nothing may take the place of the calendar that the user chose.
TEST(AlarmOperationsTest, TheChosenCalendarIsWaitedFor) {
    MemoryEventStore events;
    const EventCalendar other = events.addCalendar({.identifier = u"a"_s, .title = u"A"_s, .source = {}});
    events.setDefaultCalendar(other.identifier);
    events.addCalendar({.identifier = u"c"_s,
                        .title = u"B"_s,
                        .source = u"Elsewhere"_s,
                        .allowsContentModifications = true});
    EventCalendar chosen{.identifier = u"b"_s, .title = u"B"_s, .source = {}};
    AlarmWorld world(events, chosen);
    events.failToList();
    world.sync();
    EXPECT_EQ(world.alarmCalendar->selectedCalendar(), std::nullopt) << "the list cannot be read";
    events.failToList(false);
    events.addCalendar(chosen);
    events.setState(chosen.identifier, CalendarState::Unavailable);
    world.sync();
    EXPECT_EQ(world.alarmCalendar->selectedCalendar(), std::nullopt) << "it does not answer yet";
    events.setState(chosen.identifier, CalendarState::Ready);
    events.setWritable(chosen.identifier, true);
    chosen.allowsContentModifications = true;
    world.sync();
    EXPECT_EQ(world.alarmCalendar->selectedCalendar(), chosen);
}

TEST(AlarmOperationsTest, TheChosenCalendarMayBecomeReadOnlyOrGo) {
    MemoryAlarmWorld world(u"rule News 10\nshow One News 12:00"_s);
    world->sync();
    const QString chosen = world->alarmCalendar->selectedCalendar()->identifier;
    const auto run = [&world] {
        world->alarmCalendar->mark().set(false);
        world->sync();
    };
    world->give(u"show One News 14:00"_s);
    world.events.setWritable(chosen, false);
    run();
    run();
    EXPECT_FALSE(world->alarmCalendar->selectedCalendar()->allowsContentModifications);
    EXPECT_EQ(world->journal().count(u"NotMade"_s), 1) << "not told by each run";

    const EventCalendar other = world.events.addCalendar(
        {.identifier = {}, .title = u"Other"_s, .source = {}, .allowsContentModifications = true});
    world.events.setDefaultCalendar(other.identifier);
    world.events.removeCalendar(chosen);
    run();
    world->sync();
    EXPECT_EQ(world->alarmCalendar->selectedCalendar(), other);
    EXPECT_EQ(world.events.events().size(), 1U) << "the alarm is made again";
}

TEST(AlarmOperationsTest, AChangeOfListingsMeanwhileIsNotForgotten) {
    MemoryAlarmWorld world(u"rule News 10"_s);
    world->sync();
    world->alarmCalendar->mark().set(true);
    world->operations->setAlarmForTitle(u"News"_s, 5, {}, false);
    world->alarmCalendar->mark().set(false);
    world->queues.runAll();
    EXPECT_FALSE(world->alarmCalendar->mark().isSet());
}

// ---- the choice of an alarm

TEST(AlarmSettingsTest, OffersWhatIsPossible) {
    using Recurring = std::optional<RecurringAlarm>;
    const struct {
        const char* name;
        int startsIn;
        Recurring recurring;
        std::optional<int> minutes;
        bool hasOtherType;
        std::array<int, 4> expected;
    } cases[] = {
        // Repetitions, repetition, lead times, lead time.
        {"no alarm", 240, {}, {}, false, {2, 0, 12, 0}},
        {"four minutes away", 4, {}, {}, true, {4, 0, 5, 0}},
        {"an hour away", 60, {}, {}, false, {2, 0, 10, 0}},
        {"begins now", 0, {}, {}, false, {2, 0, 1, 0}},
        {"once, ten minutes", 240, {}, 10, false, {2, 0, 12, 6}},
        {"once, further than possible", 30, {}, 60, false, {2, 0, 9, 10}},
        {"any broadcast", 0, RecurringAlarm{0, {}}, 10, false, {2, 1, 12, 1}},
        {"premieres", 240, RecurringAlarm{5, false}, {}, false, {4, 2, 12, 5}},
        {"replays", 240, RecurringAlarm{120, true}, {}, false, {4, 3, 12, 11}},
        {"a lead time of other devices", 240, RecurringAlarm{45, {}}, {}, false, {2, 1, 12, 11}},
    };
    for (const auto& each : cases) {
        const ManualClock clock;
        const Alphabet latin;
        const auto entry = std::make_shared<TVEntry>(latin);
        entry->setDateTime(clock.now() + std::chrono::minutes(each.startsIn));
        const AlarmSettings settings(entry, {each.recurring, each.minutes, each.hasOtherType}, clock);
        EXPECT_EQ((std::array{settings.repetitionCount(), static_cast<int>(settings.repetition()),
                              settings.triggerCount(), settings.trigger()}),
                  each.expected)
            << each.name;
    }
}

TEST(AlarmSettingsTest, ApplyingReplacesTheFormerAlarm) {
    const struct {
        const char* name;
        const char* given;
        /// -1: not chosen.
        int repetition;
        int trigger;
        const char* calendar;
        const char* rules;
        const char* counted;
    } cases[] = {
        {"nothing chosen", "rule News 10\nshow One News 12:00\nevent e1 One News 12:00 10", -1, -1,
         "e1 One News 12:00 10", "News 10", ""},
        {"the same chosen", "rule News 10\nshow One News 12:00\nevent e1 One News 12:00 10", 1, 6,
         "e1 One News 12:00 10", "News 10", ""},
        {"once", "rule News -\nshow One News 12:00\nshow One News 14:00", -1, 5, "new One News 12:00 5",
         "News -", "News -1, News 2"},
        {"once, another time", "rule News -\nshow One News 12:00\nevent e1 One News 12:00 10", 0, 5,
         "new One News 12:00 5", "News -", "News -1, News 2"},
        {"none any more", "rule News -\nshow One News 12:00\nevent e1 One News 12:00 10", -1, 0, "", "News -",
         "News -1"},
        {"once to recurring",
         "rule News -\nshow One News 12:00\nshow One News 14:00\nevent e1 One News 12:00 10", 1, 6,
         "new One News 12:00 10\nnew One News 14:00 10", "News 10", "News -1, News 3"},
        {"recurring to once",
         "rule News 10\nshow One News 12:00\nshow One News 14:00\nevent e1 One News 12:00 10\nevent e2 One "
         "News 14:00 10",
         0, -1, "new One News 12:00 10", "News -", "News -1, News 2"},
        {"recurring to another time", "rule News 10\nshow One News 12:00\nevent e1 One News 12:00 10", -1, 2,
         "new One News 12:00 1", "News 1", "News -1, News 3"},
        {"recurring to none", "rule News 10\nshow One News 12:00\nevent e1 One News 12:00 10", -1, 0, "",
         "News -", "News -1"},
        {"premieres", "rule News -\nshow One News 12:00\nshow One News 13:00 replay", 2, 1,
         "new One News 12:00 0", "News 0 premieres", "News -1, News 3"},
        {"replays", "rule News -\nshow One News 12:00\nshow One News 13:00 replay", 3, 1,
         "new One News 13:00 0", "News 0 replays", "News -1, News 3"},
        {"premieres are not offered", "rule News -\nshow One News 12:00", 2, -1, "", "News -", ""},
        {"a time that is over is not offered", "rule News -\nshow One News 10:04", 0, 5, "", "News -", ""},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        MemoryAlarmWorld world(QString::fromUtf8(each.given));
        world->alarmCalendar->mark().set(true);
        world->alarms->syncAlarms();
        world->queues.runAll();
        const auto& entry = world->shows[0];
        const auto minutes = world->alarms->snapshot()->alarmedEntry(*entry);
        AlarmSettings settings(entry,
                               {world->operations->alarmedIdentificatorType(u"News"_s), minutes,
                                world->shows.size() > 1 && world->shows[1]->previouslyShown()},
                               world->clock);
        settings.chooseRepetition(each.repetition);
        settings.chooseTrigger(each.trigger);
        if (settings.isChanged()) {
            settings.removeFormerAlarm(*world->operations);
            settings.setChosenAlarm(*world->operations, *world->favorites);
        }
        world->queues.runAll();
        EXPECT_EQ(world->calendar().toStdString(), each.calendar);
        EXPECT_EQ(rulesOf(world.world).toStdString(), each.rules);
        EXPECT_EQ(world->counted.join(u", "_s).toStdString(), each.counted);
    }
}

TEST(AlarmSettingsTest, ATimeThatIsNotPossibleOnceGivesWay) {
    const ManualClock clock;
    const Alphabet latin;
    const auto entry = std::make_shared<TVEntry>(latin);
    entry->setDateTime(clock.now() + 4min);
    AlarmSettings settings(entry, {RecurringAlarm{30, {}}, {}, false}, clock);
    settings.chooseRepetition(0);
    EXPECT_EQ(settings.trigger(), 4) << "3 minutes";
}

} // namespace
} // namespace guide::test
