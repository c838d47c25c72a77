#pragma once

#include "platform/Moment.h"
#include "store/LocalTime.h"

#include <QDate>
#include <QTimeZone>

#include <chrono>
#include <optional>
#include <string_view>

namespace guide {

/// A time of day as pages write it, "HH:mm" with one or two digits of the hour, from midnight; nothing for
/// anything else.
std::optional<std::chrono::minutes> timeOfDay(std::string_view text);

/// The clock on the wall of a schedule's zone: which moment it means by a date and a time. Quick for times
/// between two changes of the clock. For one thread.
class ZoneClock {
  public:
    explicit ZoneClock(const QTimeZone& zone);

    QDate dateAt(Moment moment) { return m_localTime.dateAt(moment); }
    /// 0 to 23.
    int hourAt(Moment moment) { return m_localTime.hourAt(moment); }
    /// What the clock is ahead of UTC.
    std::chrono::seconds offsetAt(Moment moment) { return m_localTime.offsetAt(moment); }

    /// The moment at which the clock shows the time on that date; `time` may reach beyond the day. A time
    /// that a change of the clock leaves out lies as far behind the change as it would have, and of a time
    /// that comes twice it is the first. Nothing for an invalid date.
    std::optional<Moment> momentAt(const QDate& date, std::chrono::seconds time);

  private:
    LocalTime m_localTime;
    /// The offsets well before and well after the day asked for last.
    QDate m_day;
    std::chrono::seconds m_before{0};
    std::chrono::seconds m_after{0};
};

} // namespace guide
