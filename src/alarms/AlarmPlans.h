#pragma once

#include "alarms/AlarmChange.h"
#include "alarms/AlarmSituation.h"
#include "alarms/ShowsByTitle.h"

#include <vector>

namespace guide {

// The three phases of a run, as pure functions. Each takes time in proportion to events plus shows plus
// rules. `shows` are those of the situation.

/// Phase 1 removes the guide's events that have no alarm or no channel, and repeats of events with the same
/// start, title and channel.
struct CleanUpPlan {
    std::vector<AlarmChange> changes;
    /// The guide's other events.
    std::vector<CalendarEvent> kept;
};
CleanUpPlan planCleanUp(const std::vector<CalendarEvent>& events, const QString& scheme);

/// Phase 2 moves events after their shows, to the nearest broadcast of the title less than four hours away,
/// and removes those whose shows are gone or whose alarms silent hours forbid. Events that have begun and
/// those of channels without a complete list stay.
struct ReconciliationPlan {
    std::vector<AlarmChange> changes;
    /// Removals that the brake holds back.
    std::vector<AlarmChange> heldBack;
};
/// With the brake, removals of more than half of at least ten events to come are held back; a list that
/// suddenly lacks most shows is more likely wrong than right. Events that lost their alarm go anyway.
ReconciliationPlan planReconciliation(const AlarmSituation& situation, const ShowsByTitle& shows, bool brake);

/// Phase 3 makes an event for each broadcast of a rule with an alarm that has none, except in silent hours.
/// `situation.events` are those after phase 2. Broadcasts in `made` had an event from a rule before.
std::vector<AlarmChange> planGeneration(const AlarmSituation& situation, const ShowsByTitle& shows,
                                        const ShowDigests& made);

/// The removal of an event.
AlarmChange removalOf(const CalendarEvent& event, AlarmReason reason, const QString& scheme);

/// An event for a broadcast in the calendar; nothing when the catalogue does not name the channel.
std::optional<CalendarEvent> eventForShow(const AlarmSituation& situation, const TVEntry& entry, int minutes);

} // namespace guide
