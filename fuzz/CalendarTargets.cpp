// Files of calendars, which any program may write.

#include "FuzzInput.h"
#include "FuzzTarget.h"
#include "platform/linux/calendar/EventWriting.h"

#include <algorithm>

namespace guide::fuzz {

namespace {

using namespace Qt::StringLiterals;

CalendarEvent exampleEvent() {
    CalendarEvent event;
    event.title = u"Zprávy, počasí; \\ sport"_s;
    event.location = u"Jedna"_s;
    event.url = QUrl(u"quellin-guide://ca1"_s);
    event.startDate = std::chrono::sys_days(std::chrono::year(2026) / 11 / 23) + std::chrono::hours(19);
    event.endDate = event.startDate + std::chrono::minutes(45);
    event.alarmOffsets = {std::chrono::minutes(-10)};
    return event;
}

/// Reads the events, and moves and removes the first one.
void readCalendar(QByteArrayView bytes) {
    const FuzzInput input(bytes);
    EventReading reading(u"quellin-guide"_s);
    const std::optional<ICalendarText> text = ICalendarText::parse(input.whole());
    if (!text) {
        return;
    }
    const std::vector<StoredEvent> events = reading.events(*text);
    if (events.empty() || events.front().isOccurrence) {
        return;
    }
    const StoredEvent& first = events.front();
    require(!withChangedEvent(*text, first, first.event, first.event.startDate),
            "an event that does not change is not written");
    CalendarEvent wanted = exampleEvent();
    wanted.alarmOffsets = {std::chrono::minutes(-10), std::chrono::minutes(-7)};
    const auto changed = withChangedEvent(*text, first, wanted, wanted.startDate);
    if (!changed) {
        return;
    }
    const auto again = ICalendarText::parse(*changed);
    require(again.has_value(), "a changed event can be read");
    const std::vector<StoredEvent> after = reading.events(*again);
    require(after.size() == events.size() && after.front().uid == first.uid, "no event is lost");
    CalendarEvent got = after.front().event;
    std::ranges::sort(got.alarmOffsets);
    require(got == wanted, "an event is what was written");
    const QByteArray rest = withoutEvent(*text, first.uid);
    require(rest.isEmpty() || ICalendarText::parse(rest).has_value(), "what remains can be read");
}

std::vector<QByteArray> seeds() {
    const QByteArray own = newEventComponent(exampleEvent(), "ca1@quellin", exampleEvent().startDate);
    const QByteArray zone = "BEGIN:VTIMEZONE\r\nTZID:Z\r\nBEGIN:STANDARD\r\nDTSTART:19700101T000000\r\n"
                            "RRULE:FREQ=YEARLY;BYMONTH=10;BYDAY=-1SU\r\nTZOFFSETFROM:+0200\r\n"
                            "TZOFFSETTO:+0100\r\nEND:STANDARD\r\nEND:VTIMEZONE\r\n";
    const QByteArray other =
        "BEGIN:VEVENT\r\nUID:b\r\nDTSTART;TZID=Z:20261124T100000\r\nDURATION:PT1H\r\n"
        "SUMMARY:fol\r\n ded\r\nBEGIN:VALARM\r\nTRIGGER;RELATED=END:-PT5M\r\nEND:VALARM\r\n"
        "END:VEVENT\r\n";
    const QByteArray day =
        "BEGIN:VEVENT\r\nUID:c\r\nDTSTART;VALUE=DATE:20261124\r\nRRULE:FREQ=DAILY\r\nBEGIN:VALARM\r\n"
        "TRIGGER;VALUE=DATE-TIME:20261123T190500Z\r\nEND:VALARM\r\nEND:VEVENT\r\n";
    return {fuzzInput({calendarWith(own)}), fuzzInput({calendarWith(zone + other + own)}),
            fuzzInput({calendarWith(day)}), fuzzInput({calendarWith(other + day).replace("\r\n", "\n")})};
}

} // namespace

std::vector<FuzzTarget> calendarTargets() {
    return {{.name = "calendar",
             .run = readCalendar,
             .seeds = seeds,
             .literals = {"platform/linux/calendar/EventReading.cpp",
                          "platform/linux/calendar/ICalendarZones.cpp"},
             .maxMemoryPerByte = 1000}};
}

} // namespace guide::fuzz
