#include "platform/linux/calendar/EventReading.h"

#include <QCryptographicHash>
#include <QStringList>

#include <algorithm>
#include <libical/ical.h>
#include <tuple>

namespace guide {

namespace {

constexpr qsizetype kLongestDuration = 40;

std::optional<std::chrono::seconds> duration(const QByteArray& value) {
    if (value.size() > kLongestDuration) {
        return std::nullopt;
    }
    const icaldurationtype read = icaldurationtype_from_string(value.trimmed().constData());
    if (icaldurationtype_is_bad_duration(read) != 0) {
        return std::nullopt;
    }
    const std::chrono::seconds span = std::chrono::days(read.days) + std::chrono::weeks(read.weeks) +
                                      std::chrono::hours(read.hours) + std::chrono::minutes(read.minutes) +
                                      std::chrono::seconds(read.seconds);
    return read.is_neg != 0 ? -span : span;
}

} // namespace

const StoredEvent* findEvent(const std::vector<StoredEvent>& events, const QByteArray& uid) {
    const auto found = std::ranges::find_if(events, [&](const StoredEvent& stored) {
        return !stored.isOccurrence && (uid.isEmpty() || stored.uid == uid);
    });
    return found == events.end() ? nullptr : &*found;
}

QString contentRevision(const QByteArray& content) {
    return QString::fromLatin1(QCryptographicHash::hash(content, QCryptographicHash::Sha1).toHex());
}

QString withoutControlCharacters(QString text) {
    text.removeIf([](QChar character) {
        return (character < u' ' && character != u'\n' && character != u'\t') || character == QChar(0x7F);
    });
    return text;
}

QString iCalendarString(QByteArrayView value) {
    QByteArray text;
    text.reserve(value.size());
    for (qsizetype at = 0; at < value.size(); ++at) {
        if (value[at] == '\\' && at + 1 < value.size()) {
            ++at;
            text += value[at] == 'n' || value[at] == 'N' ? '\n' : value[at];
        } else {
            text += value[at];
        }
    }
    return withoutControlCharacters(QString::fromUtf8(text));
}

void keepBetween(Moment start, Moment end, std::vector<CalendarEvent>& events) {
    std::erase_if(events, [&](const CalendarEvent& event) { return !isBetween(start, end, event); });
    std::ranges::sort(events, [](const CalendarEvent& one, const CalendarEvent& other) {
        return std::tie(one.startDate, one.identifier) < std::tie(other.startDate, other.identifier);
    });
}

EventReading::EventReading(const QString& scheme, ICalendarZones::LookUp zones)
    : m_scheme(scheme)
    , m_zones(std::move(zones)) {}

bool EventReading::isOwn(const CalendarEvent& event) const {
    return event.url && event.url->scheme() == m_scheme;
}

std::vector<StoredEvent> EventReading::events(const ICalendarText& text) {
    std::vector<StoredEvent> events;
    ICalendarZones::Definitions zones(text);
    // Of each component, the index of its event.
    std::vector<std::optional<std::size_t>> eventOf(text.components().size());
    for (std::size_t i = 0; i < text.components().size(); ++i) {
        const ICalendarText::Component& component = text.components()[i];
        if (component.name == "VALARM" && component.parent && eventOf[*component.parent]) {
            readAlarm(text, i, zones, events[*eventOf[*component.parent]]);
            continue;
        }
        if (component.name != "VEVENT" ||
            (component.parent && text.components()[*component.parent].name != "VCALENDAR")) {
            continue;
        }
        const auto uid = text.property(component, "UID");
        const auto startLine = text.property(component, "DTSTART");
        const auto start = startLine ? m_zones.time(*startLine, zones) : std::nullopt;
        if (!uid || uid->value.isEmpty() || !start) {
            continue;
        }
        StoredEvent stored;
        stored.uid = uid->value;
        stored.component = i;
        stored.isOccurrence = text.property(component, "RECURRENCE-ID").has_value();
        CalendarEvent& event = stored.event;
        event.startDate = start->moment;
        event.isAllDay = start->isDate;
        if (const auto end = text.property(component, "DTEND")) {
            if (const auto time = m_zones.time(*end, zones)) {
                event.endDate = time->moment;
            }
        } else if (const auto lasts = text.property(component, "DURATION")) {
            if (const auto span = duration(lasts->value)) {
                event.endDate = event.startDate + *span;
            }
        }
        if (const auto summary = text.property(component, "SUMMARY")) {
            event.title = iCalendarString(summary->value);
        }
        if (const auto location = text.property(component, "LOCATION")) {
            event.location = iCalendarString(location->value);
        }
        event.url = url(text, component, stored.uid);
        eventOf[i] = events.size();
        events.push_back(std::move(stored));
    }
    return events;
}

std::optional<QUrl> EventReading::url(const ICalendarText& text, const ICalendarText::Component& component,
                                      const QByteArray& uid) const {
    std::optional<QUrl> found;
    if (const auto line = text.property(component, "URL")) {
        const QUrl url(QString::fromUtf8(line->value.trimmed()), QUrl::StrictMode);
        if (url.isValid() && !url.isEmpty()) {
            found = url;
        }
        if (found && found->scheme() == m_scheme) {
            return found;
        }
    }
    // Some servers drop the property. The UID distinguishes such an event from one whose notes end with a
    // link to a show.
    if (!uid.contains(kOwnUidEnd)) {
        return found;
    }
    const auto description = text.property(component, "DESCRIPTION");
    const QStringList lines =
        description ? iCalendarString(description->value).trimmed().split(u'\n') : QStringList();
    if (!lines.isEmpty()) {
        const QUrl url(lines.last().trimmed(), QUrl::StrictMode);
        if (url.isValid() && url.scheme() == m_scheme) {
            return url;
        }
    }
    return found;
}

void EventReading::readAlarm(const ICalendarText& text, std::size_t component,
                             ICalendarZones::Definitions& zones, StoredEvent& into) {
    const ICalendarText::Component& alarm = text.components()[component];
    const auto action = text.property(alarm, "ACTION");
    const auto trigger = text.property(alarm, "TRIGGER");
    // Some programs mark by NONE, with a time in the past, that an event has no alarm.
    if (!trigger || (action && action->value.compare("NONE", Qt::CaseInsensitive) == 0)) {
        return;
    }
    StoredAlarm stored{.component = component};
    const CalendarEvent& event = into.event;
    if (const auto span = duration(trigger->value)) {
        stored.isRelativeToStart =
            iCalendarParameter(*trigger, "RELATED").compare("END", Qt::CaseInsensitive) != 0;
        const Moment from = stored.isRelativeToStart ? event.startDate : endOf(event);
        stored.offset = std::chrono::floor<std::chrono::seconds>(from + *span - event.startDate);
    } else if (const auto time = m_zones.time(*trigger, zones)) {
        stored.isRelativeToStart = false;
        stored.offset = std::chrono::floor<std::chrono::seconds>(time->moment - event.startDate);
    } else {
        return;
    }
    into.event.alarmOffsets.push_back(stored.offset);
    into.alarms.push_back(stored);
}

} // namespace guide
