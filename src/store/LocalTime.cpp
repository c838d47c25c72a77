#include "store/LocalTime.h"

#include <QDateTime>

namespace guide {

namespace {

constexpr qint64 kJulianDayOf1970 = 2'440'588;

using Quarter = std::chrono::duration<std::int64_t, std::ratio<900>>;
using Days = std::chrono::days;

} // namespace

LocalTime::LocalTime(const QTimeZone& zone)
    : m_zone(zone) {}

std::chrono::seconds LocalTime::localSecondsAt(Moment moment) {
    const std::int64_t quarter = std::chrono::floor<Quarter>(moment).time_since_epoch().count();
    if (quarter != m_quarter) {
        m_quarter = quarter;
        const QDateTime time = QDateTime::fromMSecsSinceEpoch(moment.time_since_epoch().count(), Qt::UTC);
        m_offset = std::chrono::seconds(m_zone.offsetFromUtc(time));
    }
    return std::chrono::floor<std::chrono::seconds>(moment).time_since_epoch() + m_offset;
}

QDate LocalTime::dateAt(Moment moment) {
    return QDate::fromJulianDay(kJulianDayOf1970 + std::chrono::floor<Days>(localSecondsAt(moment)).count());
}

int LocalTime::hourAt(Moment moment) {
    const std::chrono::seconds local = localSecondsAt(moment);
    const std::chrono::seconds inDay = local - std::chrono::floor<Days>(local);
    return static_cast<int>(std::chrono::floor<std::chrono::hours>(inDay).count());
}

} // namespace guide
