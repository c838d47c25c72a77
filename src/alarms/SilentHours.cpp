#include "alarms/SilentHours.h"

#include "platform/Device.h"
#include "platform/KeyValueStore.h"

#include <QDateTime>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

int minuteOfDay(const QDateTime& moment, const QTimeZone& zone) {
    const QTime time = moment.toTimeZone(zone).time();
    return time.hour() * 60 + time.minute();
}

int storedMinute(const KeyValueStore& store, const QString& key, const QTimeZone& zone, int otherwise) {
    const auto value = store.valueForKey(key);
    return value && value->isDateTime() ? minuteOfDay(value->toDateTime(), zone) : otherwise;
}

} // namespace

bool SilentPeriod::mayBeAlarmedAt(int minuteOfDay) const {
    const bool inside = from < minuteOfDay && minuteOfDay < to;
    return from < to ? !inside : inside;
}

SilentHours::SilentHours(const KeyValueStore& store, const Device& device)
    : m_zone(device.timeZone()) {
    const auto value = store.valueForKey(u"noAlarmsSchedule"_s);
    m_enabled = value && value->toBool(false);
    m_period.from = storedMinute(store, u"noAlarmsSchedule.0"_s, m_zone, m_period.from);
    m_period.to = storedMinute(store, u"noAlarmsSchedule.1"_s, m_zone, m_period.to);
}

bool SilentHours::mayBeAlarmedAt(Moment moment) const {
    const auto utc = QDateTime::fromMSecsSinceEpoch(moment.time_since_epoch().count(), Qt::UTC);
    return !m_enabled || m_period.mayBeAlarmedAt(minuteOfDay(utc, m_zone));
}

} // namespace guide
