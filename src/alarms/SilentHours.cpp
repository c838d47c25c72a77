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

bool SilentStretch::mayBeAlarmedAt(int minuteOfDay) const {
    const bool inside = from < minuteOfDay && minuteOfDay < to;
    return from < to ? !inside : inside;
}

bool SilentHours::enabled() const {
    const auto value = m_store.valueForKey(u"noAlarmsSchedule"_s);
    return value && value->toBool(false);
}

SilentStretch SilentHours::stretch() const {
    const QTimeZone zone = m_device.timeZone();
    const SilentStretch byDefault;
    return {storedMinute(m_store, u"noAlarmsSchedule.0"_s, zone, byDefault.from),
            storedMinute(m_store, u"noAlarmsSchedule.1"_s, zone, byDefault.to)};
}

bool SilentHours::mayBeAlarmedAt(Moment moment) const {
    if (!enabled()) {
        return true;
    }
    const auto local = QDateTime::fromMSecsSinceEpoch(moment.time_since_epoch().count(), Qt::UTC);
    return stretch().mayBeAlarmedAt(minuteOfDay(local, m_device.timeZone()));
}

} // namespace guide
