#pragma once

#include "alarms/AlarmOperations.h"
#include "alarms/AlarmService.h"
#include "alarms/AlarmSynchroniser.h"
#include "app/NullServices.h"

#include <functional>
#include <memory>
#include <optional>

namespace guide {

/// The alarms of the application: none before start(), and for good on a device without calendars.
class GuideAlarms final : public AlarmsSource,
                          public AlarmSynchronisation,
                          public AlertsSchedule,
                          public AlarmActions {
  public:
    GuideAlarms(DispatchQueue& mainQueue, const KeyValueStore& keyValueStore)
        : m_none(mainQueue)
        , m_noActions(keyValueStore) {}
    ~GuideAlarms() override;

    /// Once, during the launch, before anything else can ask for alarms. `heldBack` is called on the main
    /// queue when a run has held removals back.
    void start(AlarmsEnvironment environment, const std::function<void(std::size_t count)>& heldBack);
    /// No change of a calendar starts a run from now on.
    void stopWatching();

    /// As AlarmSynchroniser::whenIdle.
    void whenIdle(Block block) {
        if (m_synchroniser) {
            m_synchroniser->whenIdle(std::move(block));
        } else {
            block();
        }
    }

    /// Calls the block on the main queue after the changes of the calendar that were asked for before.
    void afterChanges(Block block);
    /// The events of the guide as last read; null on a device without calendars.
    std::shared_ptr<const KnownEvents> knownEvents() const {
        return m_calendar ? m_calendar->knownEvents() : nullptr;
    }

    /// Null before the start.
    CalendarActions* calendarActions() { return m_service ? &*m_service : nullptr; }
    AlarmExplanations* explanations() { return m_service ? &*m_service : nullptr; }

    // After a run that held removals back. Main queue.
    void removeHeldBack() { m_synchroniser->removeHeldBack(); }
    void keepHeldBack() { m_synchroniser->keepHeldBack(); }

    std::shared_ptr<const AlarmsSnapshot> snapshot() const override {
        return m_synchroniser ? m_synchroniser->snapshot() : m_none.snapshot();
    }
    void setSynchronized(bool synchronized) override { runs().setSynchronized(synchronized); }
    bool isSynchronized() const override {
        return m_synchroniser ? m_synchroniser->isSynchronized() : m_none.isSynchronized();
    }
    void syncAlarms() override { runs().syncAlarms(); }
    bool isRunning() const override { return m_synchroniser && m_synchroniser->isRunning(); }
    void commit() override { runs().commit(); }
    bool hasCalendarAccess() const override { return m_synchroniser && m_synchroniser->hasCalendarAccess(); }
    void alertsScheduleWithPriority(QueuePriority priority, MainBlock<ShowSpan> mainBlock) override;

    void setAlarmForTitle(const QString& title, const ObjectId& onChannel, Moment at, Moment until,
                          int minutes, bool sync, bool manual) override {
        actions().setAlarmForTitle(title, onChannel, at, until, minutes, sync, manual);
    }
    void removeAlarmForTitle(const QString& title, const ObjectId& onChannel, Moment at, bool sync,
                             bool manual) override {
        actions().removeAlarmForTitle(title, onChannel, at, sync, manual);
    }
    void setAlarmForTitle(const QString& title, int minutes, std::optional<bool> previouslyShown,
                          bool manual) override {
        actions().setAlarmForTitle(title, minutes, previouslyShown, manual);
    }
    void removeAlarmForTitle(const QString& title, bool sync, bool manual) override {
        actions().removeAlarmForTitle(title, sync, manual);
    }
    void removeAlarmsForTitles(const QStringList& titles, bool sync) override {
        actions().removeAlarmsForTitles(titles, sync);
    }
    int lastAlarmMinutes() const override {
        return m_operations ? m_operations->lastAlarmMinutes() : m_noActions.lastAlarmMinutes();
    }

  private:
    AlarmSynchronisation& runs() {
        return m_synchroniser ? static_cast<AlarmSynchronisation&>(*m_synchroniser) : m_none;
    }
    AlarmActions& actions() { return m_operations ? static_cast<AlarmActions&>(*m_operations) : m_noActions; }

    NoAlarms m_none;
    NoAlarmActions m_noActions;
    EventStore* m_eventStore = nullptr;
    std::shared_ptr<AlarmCalendar> m_calendar;
    std::optional<AlarmSynchroniser> m_synchroniser;
    std::optional<AlarmOperations> m_operations;
    std::optional<AlarmService> m_service;
};

} // namespace guide
