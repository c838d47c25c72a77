#pragma once

#include "platform/Moment.h"

#include <QDate>
#include <QTimeZone>

namespace guide {

inline constexpr qint64 kJulianDayOf1970 = 2'440'588;

/// Midnight UTC of the date.
inline std::chrono::sys_days utcDay(const QDate& date) {
    return std::chrono::sys_days(std::chrono::days(date.toJulianDay() - kJulianDayOf1970));
}

/// The wall clock of one zone. Fast for moments that are close together: it queries the zone once for each
/// period between two changes of its offset. For one thread.
class LocalTime {
  public:
    explicit LocalTime(const QTimeZone& zone);

    QDate dateAt(Moment moment);
    int minuteOfDayAt(Moment moment);
    /// 0 to 23.
    int hourAt(Moment moment);
    /// Positive when the clock is ahead of UTC.
    std::chrono::seconds offsetAt(Moment moment);

  private:
    std::chrono::seconds localSecondsAt(Moment moment);

    QTimeZone m_zone;
    /// The period in which the offset applies.
    Moment m_from = Moment::max();
    Moment m_until = Moment::min();
    std::chrono::seconds m_offset{0};
};

} // namespace guide
