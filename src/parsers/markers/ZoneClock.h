#pragma once

#include "platform/Moment.h"
#include "store/LocalTime.h"

#include <QDate>
#include <QTimeZone>

#include <chrono>
#include <optional>
#include <string_view>

namespace guide {

/// "HH:mm" or "H:mm" as the time since midnight; nothing for anything else.
std::optional<std::chrono::minutes> timeOfDay(std::string_view text);

/// Converts between moments and the local dates and times of a schedule's zone. Caches offsets, so that
/// conversions within one offset period are cheap. Not thread-safe.
class ZoneClock {
  public:
    explicit ZoneClock(const QTimeZone& zone);

    QDate dateAt(Moment moment) { return m_localTime.dateAt(moment); }
    /// 0 to 23.
    int hourAt(Moment moment) { return m_localTime.hourAt(moment); }
    /// The offset from UTC.
    std::chrono::seconds offsetAt(Moment moment) { return m_localTime.offsetAt(moment); }

    /// The moment of a local date and time; `time` may exceed a day. A time skipped by a clock change is
    /// moved forward by the length of the gap; of a repeated time the first one is taken. Nothing for an
    /// invalid date.
    std::optional<Moment> momentAt(const QDate& date, std::chrono::seconds time);

  private:
    LocalTime m_localTime;
    /// The offsets before and after the most recent day.
    QDate m_day;
    std::chrono::seconds m_before{0};
    std::chrono::seconds m_after{0};
};

} // namespace guide
