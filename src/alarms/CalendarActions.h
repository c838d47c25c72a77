#pragma once

#include "platform/calendar/EventStore.h"
#include "platform/queues/MainBlock.h"

#include <QString>

#include <optional>
#include <vector>

namespace guide {

/// The calendars that alarms can be written to.
struct CalendarChoice {
    /// The kind of calendars that the device has, as the store names it.
    QString storeName = {};
    /// Those that cannot be written as well. Unset while they cannot be read.
    std::optional<std::vector<EventCalendar>> calendars = {};
    /// The identifier of the calendar of the alarms; empty when there is none.
    QString selected = {};
};

/// What a user can do about the calendar of the alarms. Main queue; the work is done in the background, in
/// the order of the calls.
class CalendarActions {
  public:
    virtual ~CalendarActions() = default;
    virtual void calendars(MainBlock<CalendarChoice> mainBlock) = 0;
    /// All new alarms go there.
    virtual void selectCalendar(const EventCalendar& calendar) = 0;
    /// Makes a calendar on this device; nothing when that failed.
    virtual void createCalendar(const QString& title, MainBlock<std::optional<EventCalendar>> mainBlock) = 0;
};

} // namespace guide
