#pragma once

#include "platform/calendar/EventTimes.h"
#include "platform/linux/calendar/ICalendarText.h"
#include "platform/linux/calendar/ICalendarZones.h"

#include <QByteArray>
#include <QString>

#include <chrono>
#include <cstddef>
#include <optional>
#include <vector>

namespace guide {

/// The end of the UIDs that the guide gives.
inline constexpr QByteArrayView kOwnUidEnd = "@quellin";

/// An alarm of an event, with what it needs to be changed.
struct StoredAlarm {
    /// Index in the text's components.
    std::size_t component = 0;
    std::chrono::seconds offset{};
    /// Counts from the start of the event; false for a fixed time and for one that counts from the end.
    bool isRelativeToStart = true;
};

/// An event in an iCalendar text.
struct StoredEvent {
    QByteArray uid;
    /// Index in the text's components.
    std::size_t component = 0;
    /// One occurrence of a repeated event that differs from the others.
    bool isOccurrence = false;
    /// Without identifier, calendar and revision.
    CalendarEvent event;
    std::vector<StoredAlarm> alarms;
};

/// Reads events. Must be used by one thread at a time.
class EventReading {
  public:
    /// `scheme` is that of the guide's URLs.
    explicit EventReading(const QString& scheme, ICalendarZones::LookUp zones = nullptr);

    /// Those that have a UID and a start, in the order of the text.
    std::vector<StoredEvent> events(const ICalendarText& text);

    /// Whether it is an event of the guide.
    bool isOwn(const CalendarEvent& event) const;

  private:
    std::optional<QUrl> url(const ICalendarText& text, const ICalendarText::Component& component,
                            const QByteArray& uid) const;
    void readAlarm(const ICalendarText& text, std::size_t component, ICalendarZones::Definitions& zones,
                   StoredEvent& into);

    const QString m_scheme;
    ICalendarZones m_zones;
};

/// The first that is no occurrence; of this UID, unless it is empty. Null when there is none.
const StoredEvent* findEvent(const std::vector<StoredEvent>& events, const QByteArray& uid = {});

/// Names one state of a text.
QString contentRevision(const QByteArray& content);

/// Without characters that no iCalendar text may contain.
QString withoutControlCharacters(QString text);

/// The text of a property of that type.
QString iCalendarString(QByteArrayView value);

/// Keeps those that start before `end` and end after `start`, in ascending order of their starts.
void keepBetween(Moment start, Moment end, std::vector<CalendarEvent>& events);

} // namespace guide
