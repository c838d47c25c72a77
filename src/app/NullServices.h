#pragma once

#include "alarms/AlarmActions.h"
#include "alarms/AlarmSynchronisation.h"
#include "alarms/AlertsSchedule.h"
#include "alarms/PendingAlarms.h"
#include "alarms/ShowCounters.h"
#include "platform/KeyValueStore.h"
#include "store/PopularShows.h"

#include <QString>

#include <algorithm>
#include <cstdint>
#include <utility>

namespace guide {

// Implementations for a guide without alarms, popular shows and other devices: all of them are empty.

/// No show has an alarm, so there is nothing to synchronise.
class NoAlarms final : public AlarmsSource, public AlarmSynchronisation, public AlertsSchedule {
  public:
    explicit NoAlarms(DispatchQueue& mainQueue)
        : m_mainQueue(mainQueue) {}

    std::shared_ptr<const AlarmsSnapshot> snapshot() const override { return m_none; }
    void setSynchronized(bool) override {}
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

/// No show is known to be popular.
class NoPopularShows final : public PopularShows {
  public:
    ShowList popularShows() const override { return nullptr; }
    bool contains(const ShowItem&) const override { return false; }
    void refresh() override {}
};

/// There is no public database.
class NoShowCounters final : public ShowCounters {
  public:
    void incrementCounterByAmount(int, const QString&) override {}
    void countAddedFavorite(const QString&) override {}
    void countRemovedFavorite(const QString&) override {}
};

/// The settings and lists that the user's other devices share.
class CloudValues {
  public:
    virtual ~CloudValues() = default;
    /// Applies changes made on other devices. Main queue.
    virtual void cloudDidChangeExternally() = 0;
};

/// There are no other devices.
class NoCloudValues final : public CloudValues {
  public:
    void cloudDidChangeExternally() override {}
};

} // namespace guide
