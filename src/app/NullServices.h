#pragma once

#include "alarms/AlarmActions.h"
#include "alarms/AlarmSynchronisation.h"
#include "alarms/AlertsSchedule.h"
#include "alarms/PendingAlarms.h"
#include "platform/KeyValueStore.h"
#include "platform/RecordStore.h"

#include <QString>

#include <algorithm>
#include <cstdint>
#include <utility>

namespace guide {

// Implementations for a guide without alarms and without other users: all of them are empty.

/// No show has an alarm, so there is nothing to synchronise.
class NoAlarms final : public AlarmsSource, public AlarmSynchronisation, public AlertsSchedule {
  public:
    explicit NoAlarms(DispatchQueue& mainQueue)
        : m_mainQueue(mainQueue) {}

    std::shared_ptr<const AlarmsSnapshot> snapshot() const override { return m_none; }
    void setSynchronized(bool) override {}
    bool isSynchronized() const override { return true; }
    void syncAlarms() override {}
    bool isRunning() const override { return false; }
    void commit() override {}
    bool hasCalendarAccess() const override { return false; }
    void alertsScheduleWithPriority(QueuePriority, MainBlock<ShowSpan> mainBlock) override {
        mainBlock.post(m_mainQueue, ShowSpan());
    }

  private:
    DispatchQueue& m_mainQueue;
    const std::shared_ptr<const AlarmsSnapshot> m_none = std::make_shared<const AlarmsSnapshot>();
};

/// There is no access to a calendar, so no alarm can be set or removed.
class NoAlarmActions final : public AlarmActions {
  public:
    explicit NoAlarmActions(const KeyValueStore& keyValueStore)
        : m_keyValueStore(keyValueStore) {}

    void setAlarmForTitle(const QString&, const ObjectId&, Moment, Moment, int, bool, bool) override {}
    void removeAlarmForTitle(const QString&, const ObjectId&, Moment, bool, bool) override {}
    void setAlarmForTitle(const QString&, int, std::optional<bool>, bool) override {}
    void removeAlarmForTitle(const QString&, bool, bool) override {}
    void removeAlarmsForTitles(const QStringList&, bool) override {}
    int lastAlarmMinutes() const override {
        const auto value = m_keyValueStore.valueForKey(QStringLiteral("lastAlarmMinutes"));
        const std::int64_t minutes = value ? value->toInteger(0) : 0;
        return std::in_range<int>(minutes) ? std::max(static_cast<int>(minutes), 0) : 0;
    }

  private:
    const KeyValueStore& m_keyValueStore;
};

/// Nobody shares counters with this user.
class NoRecordStore final : public RecordStore {
  public:
    std::optional<CounterRecord> counter(const QString&) override { return std::nullopt; }
    bool setCounter(const QString&, std::int64_t) override { return true; }
    bool incrementCounter(const QString&, std::int64_t, const CounterRule&) override { return true; }
    bool removeCounters(const std::vector<QString>&) override { return true; }
    std::optional<std::vector<CounterRecord>> countersByModification(std::size_t) override {
        return std::nullopt;
    }
};

} // namespace guide
