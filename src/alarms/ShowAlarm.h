#pragma once

#include "alarms/AlarmSituation.h"
#include "alarms/PendingAlarms.h"
#include "store/TVEntry.h"

#include <memory>
#include <optional>

namespace guide {

/// Why a show has an alarm or has none.
enum class ShowAlarmReason {
    /// It has one, made by the rule of its title.
    HasByRule,
    /// It has one, set on this broadcast.
    HasByUser,
    /// It has an event whose alarm was removed in the calendar.
    AlarmRemoved,

    // It has none:
    NoCalendarAccess,
    NoCalendar,
    ReadOnlyCalendar,
    Begun,
    /// Its title is no favourite.
    NoRule,
    /// The title is a favourite without a recurring alarm.
    RuleWithoutAlarm,
    OnlyPremieres,
    OnlyReplays,
    SilentHours,
    /// The user wants none for this broadcast.
    Refused,
    /// Its channel is not selected, or its list is not loaded.
    ChannelNotLoaded,
    /// It is too far in the future.
    TooFar,
    /// It is due to get one with the next run.
    NextRun,
};

struct ShowAlarm {
    ShowAlarmReason reason = ShowAlarmReason::NoRule;
    /// Minutes before the show, of the alarm that it has or would get; unset when there is none.
    std::optional<int> minutes;
    /// The title of the rule that decides; empty when there is none.
    QString rule;

    friend bool operator==(const ShowAlarm&, const ShowAlarm&) = default;
};

/// What decides about the alarm of a show, beside the show.
struct ShowAlarmSituation {
    CalendarAccess access = CalendarAccess::Granted;
    /// Unset when there is none.
    std::optional<EventCalendar> calendar;
    std::shared_ptr<const AlarmsSnapshot> alarms = std::make_shared<const AlarmsSnapshot>();
    /// Without events and shows.
    AlarmSituation run;
};

ShowAlarm alarmReasonFor(const TVEntry& entry, const ShowAlarmSituation& situation);

} // namespace guide
