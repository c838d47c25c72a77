#pragma once

#include "platform/linux/calendar/EventReading.h"

#include <QByteArray>

#include <optional>

namespace guide {

/// The UID of an event with this URL. The first attempt is 1; a later one is for a UID that another event
/// has.
QByteArray uidFor(const QUrl& url, int attempt);

/// The VEVENT of a new event.
QByteArray newEventComponent(const CalendarEvent& event, const QByteArray& uid, Moment now);

/// A VCALENDAR with this component.
QByteArray calendarWith(const QByteArray& component);

/// The text with the guide's properties of `stored` as in `wanted`; everything else in it is kept. Nothing
/// when the event has them already.
std::optional<QByteArray> withChangedEvent(const ICalendarText& text, const StoredEvent& stored,
                                           const CalendarEvent& wanted, Moment now);

/// The text without the event and its occurrences; empty when no other event or task remains.
QByteArray withoutEvent(const ICalendarText& text, const QByteArray& uid);

} // namespace guide
