#include "alarms/CalendarDescription.h"

#include <algorithm>

namespace guide {

using namespace Qt::StringLiterals;

QString calendarDescription(const EventCalendar& calendar) {
    QString text = calendar.title + u':' + calendar.source;
    for (const double component : calendar.color) {
        text += u':' + QString::number(component, 'f', 6);
    }
    return text;
}

std::optional<EventCalendar> calendarOfDescription(const std::vector<EventCalendar>& calendars,
                                                   const QString& description) {
    if (description.isEmpty()) {
        return std::nullopt;
    }
    const auto first = [&calendars](auto matches) -> std::optional<EventCalendar> {
        const auto found = std::ranges::find_if(calendars, [&matches](const EventCalendar& calendar) {
            return calendar.allowsContentModifications && matches(calendar);
        });
        return found == calendars.end() ? std::nullopt : std::optional(*found);
    };
    if (auto same = first([&description](const EventCalendar& calendar) {
            return calendarDescription(calendar) == description;
        })) {
        return same;
    }
    if (auto recoloured = first([&description](const EventCalendar& calendar) {
            return description.startsWith(calendar.title + u':' + calendar.source + u':');
        })) {
        return recoloured;
    }
    return first([&description](const EventCalendar& calendar) {
        return description.startsWith(calendar.title + u':');
    });
}

} // namespace guide
