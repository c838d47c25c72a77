#include "alarms/SilentHours.h"

#include "platform/Device.h"
#include "platform/KeyValueStore.h"

#include <QDateTime>

#include <algorithm>
#include <array>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kEnabledKey("noAlarmsSchedule");
constexpr QLatin1StringView kFromKey("noAlarmsSchedule.0");
constexpr QLatin1StringView kToKey("noAlarmsSchedule.1");
constexpr QLatin1StringView kAcrossMidnightKey("noAlarmsSchedule.acrossMidnight");
constexpr std::array kKeys{kEnabledKey, kFromKey, kToKey, kAcrossMidnightKey};

bool storedSwitch(const KeyValueStore& store, const QString& key) {
    const auto value = store.valueForKey(key);
    return value && value->toBool(false);
}

QCborValue dateValue(Moment moment) {
    return QCborValue(QDateTime::fromMSecsSinceEpoch(moment.time_since_epoch().count(), Qt::UTC));
}

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
    if (from > to && acrossMidnight) {
        return to <= minuteOfDay && minuteOfDay <= from;
    }
    return from < to ? !inside : inside;
}

SilentHours::SilentHours(const KeyValueStore& store, const Device& device)
    : m_zone(device.timeZone()) {
    m_enabled = storedSwitch(store, kEnabledKey);
    m_period.from = storedMinute(store, kFromKey, m_zone, m_period.from);
    m_period.to = storedMinute(store, kToKey, m_zone, m_period.to);
    m_period.acrossMidnight = storedSwitch(store, kAcrossMidnightKey);
}

bool SilentHours::mayBeAlarmedAt(Moment moment) const {
    LocalTime local = clock();
    return mayBeAlarmedAt(moment, local);
}

bool SilentHours::mayBeAlarmedAt(Moment moment, LocalTime& clock) const {
    return !m_enabled || m_period.mayBeAlarmedAt(clock.minuteOfDayAt(moment));
}

void setSilentHoursEnabled(KeyValueStore& store, bool enabled) {
    store.setValue(kEnabledKey, enabled);
}

void setSilentHoursFrom(KeyValueStore& store, Moment from) {
    store.setValue(kFromKey, dateValue(from));
}

void setSilentHoursTo(KeyValueStore& store, Moment to) {
    store.setValue(kToKey, dateValue(to));
}

void setSilentHoursAcrossMidnight(KeyValueStore& store, bool acrossMidnight) {
    store.setValue(kAcrossMidnightKey, acrossMidnight);
}

bool hasSilentHours(const KeyValueStore& store) {
    return std::ranges::any_of(kKeys,
                               [&store](const QString& key) { return store.valueForKey(key).has_value(); });
}

void removeSilentHours(KeyValueStore& store) {
    for (const QLatin1StringView key : kKeys) {
        store.removeKey(key);
    }
}

bool isSilentHoursAcrossMidnightSet(const KeyValueStore& store) {
    return store.valueForKey(kAcrossMidnightKey).has_value();
}

} // namespace guide
