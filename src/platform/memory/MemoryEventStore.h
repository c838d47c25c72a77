#pragma once

#include "platform/calendar/EventTimes.h"

#include <QSet>

#include <algorithm>
#include <mutex>
#include <utility>

namespace guide {

/// Calendars of the process. Events keep their place when they are changed; new ones come last. Any thread.
class MemoryEventStore final : public EventStore {
  public:
    CalendarAccess access() override {
        const std::lock_guard lock(m_guard);
        return m_access;
    }
    /// Grants access that was not asked for yet.
    void requestAccess(std::function<void(bool granted)> completion) override {
        const bool granted = [this] {
            const std::lock_guard lock(m_guard);
            if (m_access == CalendarAccess::NotAsked) {
                m_access = CalendarAccess::Granted;
            }
            return m_access == CalendarAccess::Granted;
        }();
        completion(granted);
    }

    std::optional<std::vector<EventCalendar>> calendars() override {
        const std::lock_guard lock(m_guard);
        return m_listFails ? std::nullopt : std::optional(m_calendars);
    }
    std::optional<EventCalendar> defaultCalendarForNewEvents() override {
        const std::lock_guard lock(m_guard);
        if (m_listFails) {
            return std::nullopt;
        }
        const auto found = std::ranges::find(m_calendars, m_default, &EventCalendar::identifier);
        return found == m_calendars.end() ? std::nullopt : std::optional(*found);
    }
    std::optional<EventCalendar> createCalendar(const QString& title) override {
        return addCalendar({.identifier = {},
                            .title = title,
                            .source = QStringLiteral("Local"),
                            .allowsContentModifications = true});
    }
    void refreshSources() override {
        const std::lock_guard lock(m_guard);
        ++m_refreshes;
    }

    EventRange eventsBetween(Moment start, Moment end, const EventCalendar& calendar) override {
        const std::lock_guard lock(m_guard);
        ++m_reads;
        if (m_rangesFail || std::ranges::find(m_calendars, calendar.identifier, &EventCalendar::identifier) ==
                                m_calendars.end()) {
            return {{}, QStringLiteral("the range cannot be read")};
        }
        EventRange range;
        for (const CalendarEvent& event : m_events) {
            if (event.calendar == calendar.identifier && isBetween(start, end, event)) {
                range.events.push_back(event);
            }
        }
        std::ranges::stable_sort(range.events, {}, &CalendarEvent::startDate);
        return range;
    }
    std::optional<CalendarEvent> eventWithIdentifier(const QString& identifier) override {
        const std::lock_guard lock(m_guard);
        const auto found = std::ranges::find(m_events, identifier, &CalendarEvent::identifier);
        return found == m_events.end() ? std::nullopt : std::optional(*found);
    }
    std::vector<EventOutcome> apply(const std::vector<EventChange>& changes) override {
        const std::lock_guard lock(m_guard);
        ++m_batches;
        std::vector<EventOutcome> outcomes;
        for (const EventChange& change : changes) {
            const auto* save = std::get_if<SaveEvent>(&change);
            outcomes.push_back(save ? saveEvent(save->event)
                                    : removeEvent(std::get<RemoveEvent>(change).event));
        }
        return outcomes;
    }
    void setCalendarsChanged(std::function<void()> calendarsChanged) override {
        const std::lock_guard lock(m_changedGuard);
        m_changed = std::move(calendarsChanged);
    }
    QString name() const override { return QStringLiteral("Memory"); }

    // ---- what is in the store

    void setAccess(CalendarAccess access) {
        const std::lock_guard lock(m_guard);
        m_access = access;
    }
    /// Gives the calendar an identifier unless it has one.
    EventCalendar addCalendar(EventCalendar calendar) {
        const std::lock_guard lock(m_guard);
        if (calendar.identifier.isEmpty()) {
            calendar.identifier = QStringLiteral("calendar-%1").arg(m_calendars.size());
        }
        m_calendars.push_back(calendar);
        return calendar;
    }
    /// With its events.
    void removeCalendar(const QString& identifier) {
        const std::lock_guard lock(m_guard);
        std::erase_if(m_calendars, [&](const EventCalendar& each) { return each.identifier == identifier; });
        std::erase_if(m_events, [&](const CalendarEvent& each) { return each.calendar == identifier; });
    }
    /// Unset by default.
    void setDefaultCalendar(const QString& identifier) {
        const std::lock_guard lock(m_guard);
        m_default = identifier;
    }
    void setWritable(const QString& calendar, bool writable) {
        const std::lock_guard lock(m_guard);
        const auto found = std::ranges::find(m_calendars, calendar, &EventCalendar::identifier);
        if (found != m_calendars.end()) {
            found->allowsContentModifications = writable;
        }
    }
    void setState(const QString& calendar, CalendarState state) {
        const std::lock_guard lock(m_guard);
        const auto found = std::ranges::find(m_calendars, calendar, &EventCalendar::identifier);
        if (found != m_calendars.end()) {
            found->state = state;
        }
    }
    /// With an identifier of the caller.
    void addEvent(CalendarEvent event) { addEvents({std::move(event)}); }
    /// All at once: no reader sees some of them only.
    void addEvents(std::vector<CalendarEvent> events) {
        const std::lock_guard lock(m_guard);
        for (CalendarEvent& event : events) {
            event.revision = nextRevision();
            m_events.push_back(std::move(event));
        }
    }
    std::vector<CalendarEvent> events() const {
        const std::lock_guard lock(m_guard);
        return m_events;
    }
    /// Whether the event was made by apply().
    static bool isMade(const QString& identifier) { return identifier.startsWith(kMade); }

    /// Changes an event as another program would; false when it is not there.
    bool edit(const QString& identifier, const std::function<void(CalendarEvent&)>& change) {
        return changeElsewhere(identifier, [&](std::vector<CalendarEvent>::iterator event) {
            change(*event);
            event->revision = nextRevision();
        });
    }
    bool remove(const QString& identifier) {
        return changeElsewhere(identifier, [this](auto event) { m_events.erase(event); });
    }

    // ---- faults

    void failToSave(const QSet<QString>& titles, EventFault fault = EventFault::Failed) {
        const std::lock_guard lock(m_guard);
        m_unsavable = titles;
        m_saveFault = fault;
    }
    void failToRemove(const QSet<QString>& identifiers, EventFault fault = EventFault::Failed) {
        const std::lock_guard lock(m_guard);
        m_unremovable = identifiers;
        m_removeFault = fault;
    }
    /// The list of calendars.
    void failToList(bool fail = true) {
        const std::lock_guard lock(m_guard);
        m_listFails = fail;
    }
    void failToReadRanges(bool fail = true) {
        const std::lock_guard lock(m_guard);
        m_rangesFail = fail;
    }

    /// How often apply(), eventsBetween() and refreshSources() were called.
    int batchCount() const {
        const std::lock_guard lock(m_guard);
        return m_batches;
    }
    int readCount() const {
        const std::lock_guard lock(m_guard);
        return m_reads;
    }
    int refreshCount() const {
        const std::lock_guard lock(m_guard);
        return m_refreshes;
    }

  private:
    static constexpr QLatin1StringView kMade{"made-"};

    static EventOutcome failed(EventFault fault, const char* message) {
        return {fault, QString::fromLatin1(message), {}};
    }

    bool isWritable(const QString& calendar) const {
        const auto found = std::ranges::find(m_calendars, calendar, &EventCalendar::identifier);
        return found != m_calendars.end() && found->allowsContentModifications;
    }
    QString nextRevision() { return QString::number(++m_revision); }

    EventOutcome saveEvent(CalendarEvent event) {
        if (!isWritable(event.calendar)) {
            return failed(EventFault::ReadOnly, "the calendar is read-only");
        }
        if (m_unsavable.contains(event.title)) {
            return failed(m_saveFault, "the event cannot be saved");
        }
        if (event.identifier.isEmpty()) {
            event.identifier = kMade + QString::number(++m_made);
            event.revision = nextRevision();
            m_events.push_back(event);
            return {{}, {}, event.identifier};
        }
        const auto found = std::ranges::find(m_events, event.identifier, &CalendarEvent::identifier);
        if (found == m_events.end()) {
            return failed(EventFault::NotFound, "the event does not exist");
        }
        if (found->revision != event.revision) {
            return failed(EventFault::Conflict, "the event was changed elsewhere");
        }
        event.revision = nextRevision();
        *found = event;
        return {{}, {}, event.identifier};
    }
    EventOutcome removeEvent(const CalendarEvent& event) {
        const auto found = std::ranges::find(m_events, event.identifier, &CalendarEvent::identifier);
        if (found == m_events.end()) {
            return failed(EventFault::NotFound, "the event does not exist");
        }
        if (!isWritable(found->calendar)) {
            return failed(EventFault::ReadOnly, "the calendar is read-only");
        }
        if (m_unremovable.contains(event.identifier)) {
            return failed(m_removeFault, "the event cannot be removed");
        }
        if (found->revision != event.revision) {
            return failed(EventFault::Conflict, "the event was changed elsewhere");
        }
        m_events.erase(found);
        return {};
    }

    template <class Change>
    bool changeElsewhere(const QString& identifier, const Change& change) {
        {
            const std::lock_guard lock(m_guard);
            const auto found = std::ranges::find(m_events, identifier, &CalendarEvent::identifier);
            if (found == m_events.end()) {
                return false;
            }
            change(found);
        }
        const std::lock_guard lock(m_changedGuard);
        if (m_changed) {
            m_changed();
        }
        return true;
    }

    mutable std::mutex m_guard;
    CalendarAccess m_access = CalendarAccess::Granted;
    std::vector<EventCalendar> m_calendars;
    QString m_default;
    std::vector<CalendarEvent> m_events;
    QSet<QString> m_unsavable;
    QSet<QString> m_unremovable;
    EventFault m_saveFault = EventFault::Failed;
    EventFault m_removeFault = EventFault::Failed;
    bool m_listFails = false;
    bool m_rangesFail = false;
    int m_revision = 0;
    int m_made = 0;
    int m_batches = 0;
    int m_reads = 0;
    int m_refreshes = 0;

    /// Held while the function is called.
    std::mutex m_changedGuard;
    std::function<void()> m_changed;
};

} // namespace guide
