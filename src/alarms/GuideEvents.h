#pragma once

#include "platform/calendar/EventStore.h"
#include "store/ShowDigest.h"

#include <optional>

namespace guide {

/// The start of the event of a broadcast is that of the show, its URL the show's digest, its location the
/// channel's title. An event is the guide's own if its URL has the guide's scheme.
bool isOfGuide(const CalendarEvent& event, const QString& scheme);

/// The broadcast whose URL the event has; nothing when the URL is of another form.
std::optional<ShowDigest> showOfEvent(const CalendarEvent& event, const QString& scheme);

/// Minutes between an alarm of the event and its start, on the scale of normalizedMinutes(); unset when the
/// event has no alarm or the alarm follows the start.
/// The first alarm before the start counts, or else the last one.
std::optional<int> leadOfEvent(const CalendarEvent& event);
/// The last alarm counts.
std::optional<int> leadOfLastAlarm(const CalendarEvent& event);

} // namespace guide
