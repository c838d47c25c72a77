#pragma once

#include "platform/calendar/EventStore.h"
#include "store/ShowDigest.h"

#include <QString>

#include <cstdint>
#include <optional>

namespace guide {

/// Why an event is made, moved or removed. The values are stored.
enum class AlarmReason : std::uint8_t {
    /// Made by the rule of a favourite.
    Rule = 0,
    /// The same, of a broadcast whose event was removed in the calendar.
    RuleAgain = 1,
    /// Set or removed by the user in the guide.
    User = 2,
    /// The broadcast is at another time or on another channel now.
    ShowMoved = 3,
    /// The listings no longer have the broadcast.
    NotListed = 4,
    SilentHours = 5,
    /// The user removed the alarm from the event.
    AlarmRemoved = 6,
    /// The event had no channel.
    NoChannel = 7,
    Duplicate = 8,
    /// The recurring alarm of the title was ended.
    RecurringEnded = 9,
};
inline constexpr int kLastAlarmReason = 9;

/// A change of the calendar that a plan contains.
struct AlarmChange {
    EventChange change;
    AlarmReason reason = AlarmReason::Rule;
    /// The broadcast of the event, after the change.
    std::optional<ShowDigest> show = {};
    /// The event before it is moved.
    std::optional<CalendarEvent> before = {};
    /// The title of the rule; empty when no rule is concerned.
    QString rule = {};
    /// Of the rule that makes the event: false for premieres only, true for replays only.
    std::optional<bool> previouslyShown = {};

    /// As it will be saved, or the one that is removed.
    const CalendarEvent& event() const {
        const auto* save = std::get_if<SaveEvent>(&change);
        return save ? save->event : std::get<RemoveEvent>(change).event;
    }
    bool removes() const { return std::holds_alternative<RemoveEvent>(change); }
};

} // namespace guide
