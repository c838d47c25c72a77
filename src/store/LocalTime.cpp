#include "store/LocalTime.h"

#include <QDateTime>

namespace guide {

namespace {

using Days = std::chrono::days;

} // namespace

LocalTime::LocalTime(const QTimeZone& zone)
    : m_zone(zone) {}

std::chrono::seconds LocalTime::offsetAt(Moment moment) {
    if (moment < m_from || moment >= m_until) {
        const auto momentOf = [](const QDateTime& time) {
            return Moment(std::chrono::milliseconds(time.toMSecsSinceEpoch()));
        };
        const QDateTime time = QDateTime::fromMSecsSinceEpoch(moment.time_since_epoch().count(), Qt::UTC);
        const auto from = m_zone.previousTransition(time.addMSecs(1));
        const auto until = m_zone.nextTransition(time);
        m_from = from.atUtc.isValid() ? momentOf(from.atUtc) : Moment::min();
        m_until = until.atUtc.isValid() ? momentOf(until.atUtc) : Moment::max();
        m_offset = std::chrono::seconds(m_zone.offsetFromUtc(time));
    }
    return m_offset;
}

std::chrono::seconds LocalTime::localSecondsAt(Moment moment) {
    return std::chrono::floor<std::chrono::seconds>(moment).time_since_epoch() + offsetAt(moment);
}

QDate LocalTime::dateAt(Moment moment) {
    return QDate::fromJulianDay(kJulianDayOf1970 + std::chrono::floor<Days>(localSecondsAt(moment)).count());
}

int LocalTime::minuteOfDayAt(Moment moment) {
    const std::chrono::seconds local = localSecondsAt(moment);
    const std::chrono::seconds inDay = local - std::chrono::floor<Days>(local);
    return static_cast<int>(std::chrono::floor<std::chrono::minutes>(inDay).count());
}

int LocalTime::hourAt(Moment moment) {
    return minuteOfDayAt(moment) / 60;
}

} // namespace guide
