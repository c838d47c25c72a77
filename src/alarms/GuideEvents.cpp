#include "alarms/GuideEvents.h"

#include "alarms/AlarmMinutes.h"

#include <algorithm>
#include <limits>

namespace guide {

namespace {

std::optional<int> leadOf(std::chrono::seconds offset) {
    const auto minutes = normalizedMinutes(static_cast<double>(offset.count()) / -60);
    return minutes ? std::optional(
                         static_cast<int>(std::min<long long>(*minutes, std::numeric_limits<int>::max())))
                   : std::nullopt;
}

} // namespace

bool isOfGuide(const CalendarEvent& event, const QString& scheme) {
    return event.url && event.url->scheme().compare(scheme, Qt::CaseInsensitive) == 0;
}

std::optional<ShowDigest> showOfEvent(const CalendarEvent& event, const QString& scheme) {
    if (!isOfGuide(event, scheme) || event.url->hasQuery() || event.url->hasFragment() ||
        !event.url->path().isEmpty() || event.url->port() >= 0 || !event.url->userInfo().isEmpty()) {
        return std::nullopt;
    }
    return digestOfUrl(*event.url);
}

std::optional<int> leadOfEvent(const CalendarEvent& event) {
    if (!event.hasAlarms()) {
        return std::nullopt;
    }
    const auto before = std::ranges::find_if(event.alarmOffsets, [](std::chrono::seconds offset) {
        return offset < std::chrono::seconds::zero();
    });
    return leadOf(before == event.alarmOffsets.end() ? event.alarmOffsets.back() : *before);
}

std::optional<int> leadOfLastAlarm(const CalendarEvent& event) {
    return event.hasAlarms() ? leadOf(event.alarmOffsets.back()) : std::nullopt;
}

} // namespace guide
