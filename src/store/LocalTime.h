#pragma once

#include "platform/Moment.h"

#include <QDate>
#include <QTimeZone>

#include <limits>

namespace guide {

/// The wall clock of one zone. Quick for moments that come in order: a zone is asked once for a quarter of an
/// hour, the step on which all zones change. For one thread.
class LocalTime {
  public:
    explicit LocalTime(const QTimeZone& zone);

    QDate dateAt(Moment moment);
    /// 0 to 23.
    int hourAt(Moment moment);

  private:
    std::chrono::seconds localSecondsAt(Moment moment);

    QTimeZone m_zone;
    std::int64_t m_quarter = std::numeric_limits<std::int64_t>::min();
    std::chrono::seconds m_offset{0};
};

} // namespace guide
