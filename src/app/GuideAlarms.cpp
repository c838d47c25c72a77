#include "app/GuideAlarms.h"

#include <utility>

namespace guide {

GuideAlarms::~GuideAlarms() {
    stopWatching();
}

void GuideAlarms::start(AlarmsEnvironment environment,
                        const std::function<void(std::size_t count)>& heldBack) {
    m_eventStore = &environment.eventStore;
    environment.runEnded = [heldBack](const AlarmRunResult& result) {
        if (result.heldBack > 0) {
            heldBack(result.heldBack);
        }
    };
    m_calendar = AlarmCalendar::make(std::move(environment));
    const std::shared_ptr<AlarmCalendar>& calendar = m_calendar;
    m_synchroniser.emplace(calendar);
    m_operations.emplace(calendar, *m_synchroniser);
    m_service.emplace(calendar, *m_operations, *m_synchroniser);
    m_eventStore->setCalendarsChanged([this, &mainQueue = calendar->mainQueue()] {
        m_synchroniser->calendarsChanged();
        mainQueue.async([this] { m_synchroniser->syncAlarms(); });
    });
}

void GuideAlarms::afterChanges(Block block) {
    if (!m_calendar) {
        block();
        return;
    }
    m_calendar->queue().async([calendar = m_calendar, block = std::move(block)]() mutable {
        calendar->mainQueue().async(std::move(block));
    });
}

void GuideAlarms::stopWatching() {
    if (EventStore* store = std::exchange(m_eventStore, nullptr)) {
        store->setCalendarsChanged({});
    }
}

void GuideAlarms::alertsScheduleWithPriority(QueuePriority priority, MainBlock<ShowSpan> mainBlock) {
    AlertsSchedule& schedule = m_synchroniser ? static_cast<AlertsSchedule&>(*m_synchroniser) : m_none;
    schedule.alertsScheduleWithPriority(priority, std::move(mainBlock));
}

} // namespace guide
