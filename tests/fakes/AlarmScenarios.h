#pragma once

#include "fakes/AlarmWorld.h"

namespace guide::test {

/// One full run: lines of AlarmWorld in, the calendar and the journal out.
struct AlarmScenario {
    const char* name;
    const char* given;
    const char* calendar;
    const char* journal = "";
    /// Whether a second run changes nothing more.
    bool settles = true;
    /// Whether the store must be one that makes a second event of the same show; others return the first.
    bool repeatsEvents = false;
};

/// A run over any store whose calendars can be written.
inline constexpr AlarmScenario kAlarmScenarios[] = {
    // ---- what rules make
    {"each broadcast of a rule",
     "rule News 10\nshow One News 12:00\nshow Two News 14:00\nshow One Film 13:00",
     "new One News 12:00 10\nnew Two News 14:00 10", "Made Rule News 12:00\nMade Rule News 14:00"},
    {"the lead time of each rule", "rule News 10\nrule Film 120\nshow One News 12:00\nshow Two Film 14:00",
     "new One News 12:00 10\nnew Two Film 14:00 120"},
    {"at the beginning of the show", "rule News 0\nshow One News 12:00", "new One News 12:00 0"},
    {"a rule without an alarm", "rule News -\nshow One News 12:00", ""},
    {"case of the title", "rule nEWS 10\nshow One News 12:00", "new One News 12:00 10"},
    {"part of the title", "rule News 10\nshow One Newsroom 12:00", ""},
    {"running or beginning now", "rule News 10\nshow One News 09:45\nshow Two News 10:00", ""},
    {"beginning within the lead time", "rule News 60\nshow One News 10:01", "new One News 10:01 60"},
    {"only premieres", "rule News 10 premieres\nshow One News 12:00\nshow One News 13:00 replay",
     "new One News 12:00 10"},
    {"only replays", "rule News 10 replays\nshow One News 12:00\nshow One News 13:00 replay",
     "new One News 13:00 10"},
    {"just inside the range", "rule News 10\nshow One News 09:59+60", "new One News 09:59+60 10"},
    {"behind the range, where the next run would not find it", "rule News 10\nshow One News 10:00+60", ""},
    {"an event that is there", "rule News 10\nshow One News 12:00\nevent e1 One News 12:00 10",
     "e1 One News 12:00 10"},
    {"an event with another lead time", "rule News 10\nshow One News 12:00\nevent e1 One News 12:00 60",
     "e1 One News 12:00 60"},
    {"an event of another program at the same time",
     "rule News 10\nshow One News 12:00\nevent e1 One News 12:00 10 url=http://x/1",
     "e1 One News 12:00 10 *\nnew One News 12:00 10"},
    {"a channel that is loading gets alarms", "rule News 10\nshow One News 12:00\nchannel One loading",
     "new One News 12:00 10"},
    {"a refused broadcast", "rule News 10\nshow One News 12:00\nshow One News 14:00\nrefused One News 12:00",
     "new One News 14:00 10"},
    {"of two rules for a title each makes an event; the next run removes one",
     "rule News 10\nrule news 20\nshow One News 12:00", "new One News 12:00 10\nnew One News 12:00 20", "",
     false, true},
    {"the first of two rules with a title has no alarm", "rule News -\nrule news 20\nshow One News 12:00",
     "new One News 12:00 20"},

    // ---- events that follow their shows
    {"later", "rule Film -\nshow One Film 13:00\nevent e1 One Film 12:00 10", "e1 One Film 13:00 10",
     "Moved ShowMoved Film 12:00>13:00"},
    {"earlier", "rule Film -\nshow One Film 11:00\nevent e1 One Film 12:00 10", "e1 One Film 11:00 10"},
    {"by a minute less than four hours", "rule Film -\nshow One Film 15:59\nevent e1 One Film 12:00 10",
     "e1 One Film 15:59 10"},
    {"by a second less than four hours", "rule Film -\nshow One Film 15:59:59\nevent e1 One Film 12:00 10",
     "e1 One Film 15:59 10"},
    {"by four hours", "rule Film -\nshow One Film 16:00\nevent e1 One Film 12:00 10", "",
     "Removed NotListed Film 12:00"},
    {"by four hours with a recurring alarm", "rule Film 5\nshow One Film 16:00\nevent e1 One Film 12:00 10",
     "new One Film 16:00 5", "Removed NotListed Film 12:00\nMade Rule Film 16:00"},
    {"earlier by four hours", "rule Film -\nshow One Film 11:00\nevent e1 One Film 15:00 10", "",
     "Removed NotListed Film 15:00"},
    {"the nearer one, later",
     "rule Film -\nshow One Film 11:00\nshow One Film 12:30\nevent e1 One Film 12:00 10",
     "e1 One Film 12:30 10"},
    {"the nearer one, earlier",
     "rule Film -\nshow One Film 11:31\nshow One Film 12:30\nevent e1 One Film 12:00 10",
     "e1 One Film 11:31 10"},
    {"of two at the same distance the earlier one",
     "rule Film -\nshow One Film 11:00\nshow One Film 13:00\nevent e1 One Film 12:00 10",
     "e1 One Film 11:00 10"},
    {"of two at one time the first channel",
     "rule Film -\nshow Two Film 13:00\nshow Three Film 13:00\nevent e1 One Film 12:00 10",
     "e1 Two Film 13:00 10"},
    {"of two at one time before the event the first channel",
     "rule Film -\nshow Two Film 11:00\nshow Three Film 11:00\nevent e1 One Film 12:00 10",
     "e1 Two Film 11:00 10"},
    {"to another channel at the same time", "rule Film -\nshow Two Film 12:00\nevent e1 One Film 12:00 10",
     "e1 Two Film 12:00 10", "Moved ShowMoved Film 12:00>12:00"},
    {"the show of its URL counts, not its times",
     "rule Film -\nshow One Film 12:00\nevent e1 One Film 18:00 10 of 12:00", "e1 One Film 18:00 10 *"},
    {"case of the title follows", "rule film -\nshow One FILM 13:00\nevent e1 One Film 12:00 10",
     "e1 One Film 13:00 10 *"},
    {"lead time and all alarms stay", "rule Film 5\nshow One Film 13:00\nevent e1 One Film 12:00 60,10",
     "e1 One Film 13:00 60,10"},
    {"two events to one show",
     "rule Film -\nshow One Film 12:00\nevent e1 One Film 11:00 10\nevent e2 One Film 13:00 20",
     "e1 One Film 12:00 10\ne2 One Film 12:00 20",
     "Moved ShowMoved Film 11:00>12:00\nMoved ShowMoved Film 13:00>12:00", false},
    {"a moved one needs no new one", "rule Film 5\nshow One Film 13:00\nevent e1 One Film 12:00 10",
     "e1 One Film 13:00 10", "Moved ShowMoved Film 12:00>13:00"},
    {"even while the channel is loading",
     "rule Film -\nshow One Film 13:00\nevent e1 One Film 12:00 10\nchannel One loading",
     "e1 One Film 13:00 10"},
    {"only to a show that has not begun",
     "rule Film -\nrule News -\nshow One Film 09:50\nshow One News 14:00\nevent e1 One Film 10:30 10", ""},
    {"a show titled like the event's channel", "rule One -\nshow Two One 12:00\nevent e1 One One 12:00 10",
     "", "Removed NotListed One 12:00"},
    {"the same at another time", "rule One -\nshow Two One 12:30\nevent e1 One One 12:00 10",
     "e1 Two One 12:30 10"},
    {"the same beside a nearer show of that time",
     "rule One -\nshow Two One 12:00\nshow Three One 12:10\nevent e1 One One 12:00 10", ""},

    // ---- events that go
    {"no longer listed", "rule Film -\nrule News -\nshow One News 13:00\nevent e1 One Film 12:00 10", "",
     "Removed NotListed Film 12:00"},
    {"a title without a rule",
     "rule News -\nshow One News 13:00\nshow One Film 12:00\nevent e1 One Film 12:00 10", ""},
    {"nothing is listed", "rule Film -\nevent e1 One Film 12:00 10", "e1 One Film 12:00 10"},
    {"no favourite is listed", "rule Film -\nshow One News 12:30\nevent e1 One Film 12:00 10",
     "e1 One Film 12:00 10"},
    {"a channel that is loading keeps it",
     "rule Film -\nrule News -\nshow Two News 13:00\nchannel One loading\nevent e1 One Film 12:00 10",
     "e1 One Film 12:00 10"},
    {"a channel that is due keeps it",
     "rule Film -\nrule News -\nshow Two News 13:00\nchannel One due\nevent e1 One Film 12:00 10",
     "e1 One Film 12:00 10"},
    {"a channel that is not selected keeps it",
     "rule Film -\nrule News -\nshow Two News 13:00\nchannel One unselected\nevent e1 One Film 12:00 10",
     "e1 One Film 12:00 10"},
    {"an unknown channel keeps it", "rule News -\nshow Two News 13:00\nevent e1 Nine Film 12:00 10 of 12:00",
     "e1 Nine Film 12:00 10"},
    {"another channel is loading",
     "rule Film -\nrule News -\nshow Two News 13:00\nchannel Two loading\nevent e1 One Film 12:00 10", ""},
    {"a running show keeps it", "rule Film -\nrule News -\nshow Two News 13:00\nevent e1 One Film 09:45 10",
     "e1 One Film 09:45 10"},
    {"a past show keeps it", "rule Film -\nrule News -\nshow Two News 13:00\nevent e1 One Film 12:00-3 10",
     "e1 One Film 12:00-3 10"},
    {"behind the range", "rule Film -\nrule News -\nshow Two News 13:00\nevent e1 One Film 12:00+61 10",
     "e1 One Film 12:00+61 10"},
    {"a foreign event",
     "rule Film -\nrule News -\nshow Two News 13:00\nevent e1 One Film 12:00 10 url=http://x/1",
     "e1 One Film 12:00 10 *"},
    {"an event without any show's URL",
     "rule Film -\nrule News -\nshow Two News 13:00\nevent e1 One Film 12:00 10 url=guide://mine", ""},

    // ---- the clean-up
    {"the alarm was removed", "rule Film -\nshow One Film 12:00\nevent e1 One Film 12:00 none", "",
     "Removed AlarmRemoved Film 12:00"},
    {"the alarm was removed from a recurring one",
     "rule Film 5\nshow One Film 12:00\nevent e1 One Film 12:00 none", "new One Film 12:00 5",
     "Removed AlarmRemoved Film 12:00\nMade Rule Film 12:00"},
    {"a past one without an alarm", "rule Film -\nevent e1 One Film 12:00-3 none", ""},
    {"without a channel", "rule Film -\nevent e1 - Film 12:00 10", "", "Removed NoChannel Film 12:00"},
    {"duplicate", "rule Film -\nshow One Film 12:00\nevent e1 One Film 12:00 10\nevent e2 One Film 12:00 20",
     "e1 One Film 12:00 10", "Removed Duplicate Film 12:00"},
    {"three of them",
     "rule Film -\nevent e1 One Film 12:00 10\nevent e2 One Film 12:00 20\nevent e3 One film 12:00 10",
     "e1 One Film 12:00 10"},
    {"same time, other title or channel",
     "rule Film -\nevent e1 One Film 12:00 10\nevent e2 Two Film 12:00 10\nevent e3 One News 12:00 10",
     "e1 One Film 12:00 10\ne2 Two Film 12:00 10\ne3 One News 12:00 10"},
    {"one of them without an alarm", "rule Film -\nevent e1 One Film 12:00 none\nevent e2 One Film 12:00 20",
     "e2 One Film 12:00 20"},
    {"foreign ones without alarms, twice",
     "rule Film -\nevent e1 One Film 12:00 none url=http://x/1\nevent e2 One Film 12:00 none url=http://x/1",
     "e1 One Film 12:00 none *\ne2 One Film 12:00 none *"},
    {"past duplicates", "rule Film -\nevent e1 One Film 12:00-5 10\nevent e2 One Film 12:00-5 10",
     "e1 One Film 12:00-5 10"},
    {"older than the range", "rule Film -\nevent e1 One Film 12:00-61 none", "e1 One Film 12:00-61 none"},

    // ---- silent hours
    {"none is made", "rule News 10\nsilent 00:00 07:00\nshow One News 05:00+1\nshow One News 08:00+1",
     "new One News 08:00+1 10"},
    {"the alarm counts, not the show", "rule News 10\nsilent 00:00 07:00\nshow One News 07:05+1", ""},
    {"alarms at both ends", "rule News 10\nsilent 00:00 07:00\nshow One News 00:10+1\nshow One News 07:10+1",
     "new One News 00:10+1 10\nnew One News 07:10+1 10"},
    {"a generated one goes",
     "rule News 10\nsilent 00:00 07:00\nshow One News 05:00+1\nevent e1 One News 05:00+1 10", "",
     "Removed SilentHours News 05:00+1"},
    {"one without a recurring rule stays",
     "rule News -\nsilent 00:00 07:00\nshow One News 05:00+1\nevent e1 One News 05:00+1 10",
     "e1 One News 05:00+1 10"},
    {"and is not moved",
     "rule News -\nsilent 00:00 07:00\nshow One News 08:00+1\nevent e1 One News 05:00+1 10",
     "e1 One News 05:00+1 10"},
    {"its first alarm counts",
     "rule News 10\nsilent 00:00 07:00\nshow One News 07:30+1\nevent e1 One News 07:30+1 60,10\nevent e2 One "
     "Other 07:30+1 10,60",
     "new One News 07:30+1 10",
     "Removed SilentHours News 07:30+1\nRemoved NotListed Other 07:30+1\nMade Rule News 07:30+1"},
    {"a loading channel keeps it",
     "rule News 10\nsilent 00:00 07:00\nchannel One loading\nshow One News 05:00+1\nevent e1 One News "
     "05:00+1 10",
     "e1 One News 05:00+1 10"},
    {"across midnight everything is silent", "rule News 10\nsilent 23:00 07:00\nshow One News 12:00", ""},
    {"across midnight with the switch",
     "rule News 10\nsilent 23:00 07:00 across\nshow One News 12:00\nshow One News 23:30\nshow One News "
     "02:00+1",
     "new One News 12:00 10"},
    {"a show moves into them and goes with the next run",
     "rule News 10\nsilent 00:00 07:00\nshow One News 05:00+1\nevent e1 One News 08:00+1 10",
     "e1 One News 05:00+1 10", "", false},
    {"the first rule of the title decides",
     "rule News -\nrule news 5\nsilent 00:00 07:00\nshow One News 05:00+1\nevent e1 One News 05:00+1 10",
     "e1 One News 05:00+1 10"},
};

/// Plays the scenario; `settles` is checked too.
inline void play(const AlarmScenario& scenario, AlarmWorld& world) {
    SCOPED_TRACE(scenario.name);
    world.give(QString::fromUtf8(scenario.given));
    world.sync();
    const QString after = world.calendar();
    EXPECT_EQ(after.toStdString(), scenario.calendar);
    const QString journal = world.journal();
    if (*scenario.journal != '\0') {
        EXPECT_EQ(journal.toStdString(), scenario.journal);
    }
    EXPECT_EQ(world.notifications, 1);
    world.sync();
    EXPECT_EQ(world.calendar() == after && world.journal() == journal, scenario.settles);
}

} // namespace guide::test
