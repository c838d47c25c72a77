#include "platform/linux/calendar/EventWriting.h"

#include <QDateTime>
#include <QStringList>

#include <algorithm>
#include <cstdlib>
#include <libical/ical.h>
#include <limits>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

using Component = ICalendarText::Component;

/// The folded line of a property, which is freed.
QByteArray lineOf(icalproperty* property) {
    char* text = icalproperty_as_ical_string_r(property);
    QByteArray line(text);
    icalmemory_free_buffer(text);
    icalproperty_free(property);
    return line;
}

QByteArray cleanText(const QString& text) {
    return withoutControlCharacters(text).toUtf8();
}

std::chrono::sys_seconds inSeconds(Moment moment) {
    return std::chrono::floor<std::chrono::seconds>(moment);
}

icaltimetype utc(Moment moment) {
    return icaltime_from_timet_with_zone(static_cast<time_t>(inSeconds(moment).time_since_epoch().count()), 0,
                                         icaltimezone_get_utc_timezone());
}

/// As a day of the device's zone, or in UTC.
icaltimetype eventTime(Moment moment, bool isAllDay) {
    if (!isAllDay) {
        return utc(moment);
    }
    const QDate day = QDateTime::fromMSecsSinceEpoch(moment.time_since_epoch().count()).date();
    icaltimetype time = icaltime_null_date();
    time.year = day.year();
    time.month = day.month();
    time.day = day.day();
    return time;
}

QByteArray startLine(const CalendarEvent& event) {
    return lineOf(icalproperty_new_dtstart(eventTime(event.startDate, event.isAllDay)));
}

QByteArray endLine(const CalendarEvent& event) {
    return event.endDate ? lineOf(icalproperty_new_dtend(eventTime(*event.endDate, event.isAllDay)))
                         : QByteArray();
}

QByteArray summaryLine(const CalendarEvent& event) {
    return lineOf(icalproperty_new_summary(cleanText(event.title).constData()));
}

QByteArray locationLine(const CalendarEvent& event) {
    return event.location.isEmpty()
               ? QByteArray()
               : lineOf(icalproperty_new_location(cleanText(event.location).constData()));
}

QByteArray urlLine(const QUrl& url) {
    return lineOf(icalproperty_new_url(url.toEncoded().constData()));
}

QByteArray descriptionLine(const QString& text) {
    return lineOf(icalproperty_new_description(cleanText(text).constData()));
}

QByteArray triggerLine(std::chrono::seconds offset) {
    icaltriggertype trigger{};
    trigger.time = icaltime_null_time();
    constexpr std::chrono::seconds kMost = std::chrono::days(366);
    trigger.duration = icaldurationtype_from_int(static_cast<int>(std::clamp(offset, -kMost, kMost).count()));
    return lineOf(icalproperty_new_trigger(trigger));
}

QByteArray alarmComponent(const QString& title, std::chrono::seconds offset) {
    return "BEGIN:VALARM\r\nACTION:DISPLAY\r\n" + descriptionLine(title) + triggerLine(offset) +
           "END:VALARM\r\n";
}

QByteArray stampLines(Moment modified, int sequence) {
    return lineOf(icalproperty_new_dtstamp(utc(modified))) +
           lineOf(icalproperty_new_lastmodified(utc(modified))) + lineOf(icalproperty_new_sequence(sequence));
}

/// The edits of one text.
class Edits {
  public:
    explicit Edits(const ICalendarText& text)
        : m_text(text) {}

    bool empty() const { return m_edits.empty(); }
    QByteArray result() && { return m_text.edited(std::move(m_edits)); }

    /// Puts lines in the place of all properties of this name, or after the component's first property.
    void set(const Component& component, QByteArrayView name, const QByteArray& lines) {
        std::vector<ICalendarText::Line> old;
        std::ranges::copy_if(component.lines, std::back_inserter(old),
                             [&](const auto& line) { return m_text.hasName(line, name); });
        for (std::size_t i = 0; i < old.size(); ++i) {
            m_edits.push_back({old[i].begin, old[i].end, i == 0 ? lines : QByteArray()});
        }
        if (old.empty() && !lines.isEmpty()) {
            const qsizetype at = component.lines.front().end;
            m_edits.push_back({at, at, lines});
        }
    }
    void append(const Component& component, const QByteArray& lines) {
        m_edits.push_back({component.last, component.last, lines});
    }
    void remove(const Component& component) { m_edits.push_back({component.begin, component.end, {}}); }

  private:
    const ICalendarText& m_text;
    std::vector<ICalendarText::Edit> m_edits;
};

/// The notes with the new URL as the last line, in the place of the old one.
QString notesWithUrl(const QString& notes, const std::optional<QUrl>& old, const QUrl& url) {
    QStringList lines = notes.isEmpty() ? QStringList() : notes.split(u'\n');
    if (old) {
        lines.removeAll(QString::fromLatin1(old->toEncoded()));
    }
    lines.removeAll(QString::fromLatin1(url.toEncoded()));
    return (lines << QString::fromLatin1(url.toEncoded())).join(u'\n');
}

void changeTimes(const Component& component, const StoredEvent& stored, const CalendarEvent& wanted,
                 const ICalendarText& text, Edits& edits) {
    const auto seconds = [](const std::optional<Moment>& moment) {
        return moment ? std::optional(inSeconds(*moment)) : std::nullopt;
    };
    const bool changesKind = stored.event.isAllDay != wanted.isAllDay;
    const bool startMoves = changesKind || inSeconds(stored.event.startDate) != inSeconds(wanted.startDate);
    const bool hasDuration = text.property(component, "DURATION").has_value();
    if (startMoves) {
        edits.set(component, "DTSTART", startLine(wanted));
    }
    if (changesKind || seconds(stored.event.endDate) != seconds(wanted.endDate) ||
        (startMoves && hasDuration)) {
        if (hasDuration) {
            edits.set(component, "DURATION", {});
        }
        edits.set(component, "DTEND", endLine(wanted));
    }
}

void changeAlarms(const Component& component, const StoredEvent& stored, const CalendarEvent& wanted,
                  const ICalendarText& text, Edits& edits) {
    std::vector<std::chrono::seconds> missing = wanted.alarmOffsets;
    std::vector<const Component*> others;
    const bool moves = inSeconds(stored.event.startDate) != inSeconds(wanted.startDate) ||
                       stored.event.endDate != wanted.endDate;
    for (const StoredAlarm& alarm : stored.alarms) {
        const Component& its = text.components()[alarm.component];
        const auto kept = std::ranges::find(missing, alarm.offset);
        if (kept == missing.end()) {
            others.push_back(&its);
            continue;
        }
        missing.erase(kept);
        if (moves && !alarm.isRelativeToStart) {
            edits.set(its, "TRIGGER", triggerLine(alarm.offset));
        }
    }
    for (std::size_t i = 0; i < std::max(others.size(), missing.size()); ++i) {
        if (i >= others.size()) {
            edits.append(component, alarmComponent(wanted.title, missing[i]));
        } else if (i < missing.size()) {
            edits.set(*others[i], "TRIGGER", triggerLine(missing[i]));
        } else {
            edits.remove(*others[i]);
        }
    }
}

} // namespace

QByteArray uidFor(const QUrl& url, int attempt) {
    const QByteArray suffix = attempt > 1 ? '-' + QByteArray::number(attempt) : QByteArray();
    return url.host().toLatin1() + suffix + kOwnUidEnd.toByteArray();
}

QByteArray newEventComponent(const CalendarEvent& event, const QByteArray& uid, Moment now) {
    QByteArray text = "BEGIN:VEVENT\r\n" + lineOf(icalproperty_new_uid(uid.constData())) +
                      lineOf(icalproperty_new_created(utc(now))) + stampLines(now, 0) + startLine(event) +
                      endLine(event) + summaryLine(event) + locationLine(event) +
                      "CATEGORIES:TV\r\nTRANSP:TRANSPARENT\r\n";
    if (event.url) {
        text += urlLine(*event.url) + descriptionLine(notesWithUrl({}, std::nullopt, *event.url));
    }
    for (const std::chrono::seconds offset : event.alarmOffsets) {
        text += alarmComponent(event.title, offset);
    }
    return text + "END:VEVENT\r\n";
}

QByteArray calendarWith(const QByteArray& component) {
    return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Quellin//Guide//EN\r\n" + component +
           "END:VCALENDAR\r\n";
}

std::optional<QByteArray> withChangedEvent(const ICalendarText& text, const StoredEvent& stored,
                                           const CalendarEvent& wanted, Moment now) {
    const Component& component = text.components()[stored.component];
    Edits edits(text);
    changeTimes(component, stored, wanted, text, edits);
    if (cleanText(wanted.title) != cleanText(stored.event.title)) {
        edits.set(component, "SUMMARY", summaryLine(wanted));
    }
    if (cleanText(wanted.location) != cleanText(stored.event.location)) {
        edits.set(component, "LOCATION", locationLine(wanted));
    }
    if (wanted.url && wanted.url != stored.event.url) {
        const auto notes = text.property(component, "DESCRIPTION").value_or(ICalendarProperty{});
        edits.set(component, "URL", urlLine(*wanted.url));
        edits.set(component, "DESCRIPTION",
                  descriptionLine(notesWithUrl(iCalendarString(notes.value), stored.event.url, *wanted.url)));
    }
    changeAlarms(component, stored, wanted, text, edits);
    if (edits.empty()) {
        return std::nullopt;
    }
    // Raised even when the clock is behind that of the program that wrote last.
    Moment modified = now;
    if (const auto line = text.property(component, "LAST-MODIFIED")) {
        const icaltimetype before = icaltime_from_string(line->value.left(40).constData());
        if (icaltime_is_null_time(before) == 0) {
            const Moment last{std::chrono::seconds(icaltime_as_timet(before))};
            if (last < now + std::chrono::years(1)) {
                modified = std::max(modified, last + std::chrono::seconds(1));
            }
        }
    }
    const int sequence = text.property(component, "SEQUENCE").value_or(ICalendarProperty{}).value.toInt();
    edits.set(component, "DTSTAMP", lineOf(icalproperty_new_dtstamp(utc(modified))));
    edits.set(component, "LAST-MODIFIED", lineOf(icalproperty_new_lastmodified(utc(modified))));
    edits.set(
        component, "SEQUENCE",
        lineOf(icalproperty_new_sequence(std::clamp(sequence, 0, std::numeric_limits<int>::max() - 1) + 1)));
    return std::move(edits).result();
}

QByteArray withoutEvent(const ICalendarText& text, const QByteArray& uid) {
    Edits edits(text);
    bool isLast = true;
    for (const Component& component : text.components()) {
        const bool isInside = component.parent && text.components()[*component.parent].name != "VCALENDAR";
        if (isInside || component.name == "VCALENDAR" || component.name == "VTIMEZONE") {
            continue;
        }
        if (component.name == "VEVENT" &&
            text.property(component, "UID").value_or(ICalendarProperty{}).value == uid) {
            edits.remove(component);
        } else {
            isLast = false;
        }
    }
    return isLast ? QByteArray() : std::move(edits).result();
}

} // namespace guide
