#include "parsers/markers/ZoneClock.h"

namespace guide {

namespace {

using std::chrono::days;
using std::chrono::minutes;
using std::chrono::seconds;
using std::chrono::sys_seconds;

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

} // namespace

std::optional<minutes> timeOfDay(std::string_view text) {
    const std::size_t colon = text.find(':');
    if ((colon != 1 && colon != 2) || text.size() != colon + 3 || !isDigit(text[0]) ||
        !isDigit(text[colon - 1]) || !isDigit(text[colon + 1]) || !isDigit(text[colon + 2])) {
        return std::nullopt;
    }
    const int hour = colon == 1 ? text[0] - '0' : (text[0] - '0') * 10 + text[1] - '0';
    const int minute = (text[colon + 1] - '0') * 10 + text[colon + 2] - '0';
    if (hour > 23 || minute > 59) {
        return std::nullopt;
    }
    return minutes(hour * 60 + minute);
}

ZoneClock::ZoneClock(const QTimeZone& zone)
    : m_localTime(zone) {}

std::optional<Moment> ZoneClock::momentAt(const QDate& date, seconds time) {
    if (!date.isValid()) {
        return std::nullopt;
    }
    const sys_seconds midnight = utcDay(date);
    if (date != m_day) {
        m_day = date;
        m_before = offsetAt(midnight - days(1));
        m_after = offsetAt(midnight + days(2));
    }
    const sys_seconds local = midnight + time;
    const sys_seconds early = local - m_before;
    if (m_before == m_after || offsetAt(early) == m_before) {
        return early;
    }
    const sys_seconds late = local - m_after;
    return offsetAt(late) == m_after ? late : early;
}

} // namespace guide
