#pragma once

#include "agent/RungAlarms.h"
#include "platform/Moment.h"
#include "platform/calendar/EventStore.h"

#include <QString>

#include <chrono>
#include <optional>
#include <vector>

namespace guide {

/// An event of the guide, as far as it matters for ringing.
struct RingEvent {
    EventNames names;
    QString title;
    QString channel;
    Moment start;
    Moment end;
    /// When it rings, without reminders at its start; in no order.
    std::vector<Moment> alerts;
};

/// The events whose alerts come soon. Later ones are left out, to keep the process small.
struct RingEvents {
    std::vector<RingEvent> events;
    /// The calendars must be read again by then.
    Moment readAgain;
};

/// What the calendars must be asked for.
struct RingRange {
    Moment start;
    Moment end;
};
RingRange ringRange(Moment now);

/// The events of the guide in the range that have not ended, those of a URL once for each alert.
RingEvents ringEvents(const std::vector<CalendarEvent>& events, const QString& scheme, Moment now);

/// An event that rings, once for all alerts that are due.
struct Ring {
    RingEvent event;
    /// Ascending.
    std::vector<Moment> alerts;
    /// The user had asked to be reminded at the start.
    bool hasReminder = false;
};

struct RingPlan {
    /// What rings now, in ascending order of the starts. An alert that was missed rings until the end of the
    /// show.
    std::vector<Ring> due;
    /// When something is due next; nothing when nothing is.
    std::optional<Moment> next;
};

RingPlan ringPlan(const RingEvents& events, const RungAlarms& rung, Moment now);

/// Notes that a ring was shown, or could not be.
void setRung(RungAlarms& rung, const Ring& ring);
void setNotRung(RungAlarms& rung, const Ring& ring);

} // namespace guide
