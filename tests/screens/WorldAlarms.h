#pragma once

#include "ScreenWorld.h"
#include "alarms/AlarmExplanations.h"
#include "alarms/CalendarActions.h"

namespace guide::test {

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

inline EventCalendar worldCalendar(const QString& title, const QString& source, bool writable = true) {
    return {.identifier = source + u'/' + title,
            .title = title,
            .source = source,
            .allowsContentModifications = writable};
}

/// Calendars in memory. The answers come from the main queue.
struct WorldCalendars final : CalendarActions {
    explicit WorldCalendars(DispatchQueue& ownMainQueue)
        : mainQueue(ownMainQueue) {}
    void calendars(MainBlock<CalendarChoice> mainBlock) override { mainBlock.post(mainQueue, choice); }
    void selectCalendar(const EventCalendar& own) override { choice.selected = own.identifier; }
    void createCalendar(const QString& title, MainBlock<std::optional<EventCalendar>> mainBlock) override {
        std::optional<EventCalendar> made;
        if (makes) {
            made = worldCalendar(title, u"Device"_s);
            choice.calendars->push_back(*made);
        }
        mainBlock.post(mainQueue, std::move(made));
    }
    DispatchQueue& mainQueue;
    CalendarChoice choice{.calendars = std::vector{worldCalendar(u"Home"_s, u"Server"_s),
                                                   worldCalendar(u"Local"_s, u"Device"_s),
                                                   worldCalendar(u"Holidays"_s, u"Server"_s, false)},
                          .selected = u"Server/Home"_s};
    bool makes = true;
};

} // namespace guide::test
