#pragma once

#include "platform/calendar/EventStore.h"

#include <QString>

#include <optional>
#include <vector>

namespace guide {

/// A text by which a calendar is found again: its title, source and colour.
QString calendarDescription(const EventCalendar& calendar);

/// The writable calendar that the text describes. One that changed its colour is found by title and source,
/// one that moved to another account by its title.
std::optional<EventCalendar> calendarOfDescription(const std::vector<EventCalendar>& calendars,
                                                   const QString& description);

} // namespace guide
