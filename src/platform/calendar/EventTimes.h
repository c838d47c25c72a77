#pragma once

#include "platform/calendar/EventStore.h"

#include <chrono>

namespace guide {

/// When the event ends for a query: an event without an end lasts a day when it is all-day, else no time.
inline Moment endOf(const CalendarEvent& event) {
    if (event.endDate) {
        return *event.endDate;
    }
    return event.isAllDay ? event.startDate + std::chrono::days(1) : event.startDate;
}

/// Whether the event belongs to the range of a query.
inline bool isBetween(Moment start, Moment end, const CalendarEvent& event) {
    return event.startDate < end && endOf(event) > start;
}

} // namespace guide
