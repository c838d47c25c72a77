#pragma once

#include "platform/Clock.h"
#include "platform/calendar/EventStore.h"

#include <QThread>

#include <memory>

namespace guide {

/// The calendars of the desktop, kept by evolution-data-server, which is spoken to over D-Bus. All its work
/// is done on a thread of its own; callers wait for it. Only events whose URL has the guide's scheme are
/// written.
///
/// The identifier of a calendar is the UID of its source, that of an event is "CALENDAR/UID".
class EDSEventStore final : public EventStore {
  public:
    /// `busAddress` is that of the session bus. Needs a QCoreApplication.
    EDSEventStore(const QString& busAddress, const QString& scheme, const Clock& clock);
    ~EDSEventStore() override;

    CalendarAccess access() override;
    void requestAccess(std::function<void(bool granted)> completion) override;
    /// Opens the calendars, because only then it is known whether they can be written.
    std::optional<std::vector<EventCalendar>> calendars() override;
    /// The personal calendar, or the first that can be used; creates one when there is none.
    std::optional<EventCalendar> defaultCalendarForNewEvents() override;
    std::optional<EventCalendar> createCalendar(const QString& title) override;
    void refreshSources() override;

    /// From then on, changes to the calendar are announced.
    EventRange eventsBetween(Moment start, Moment end, const EventCalendar& calendar) override;
    std::optional<CalendarEvent> eventWithIdentifier(const QString& identifier) override;
    std::vector<EventOutcome> apply(const std::vector<EventChange>& changes) override;
    /// The function is called on the store's thread, and must not call the store. Never waits; changes are
    /// watched from the next other call on at the latest.
    void setCalendarsChanged(std::function<void()> calendarsChanged) override;
    QString name() const override;

  private:
    class Worker;

    template <typename Work>
    auto run(Work work) const;

    QThread m_thread;
    /// Lives on the thread.
    Worker* m_worker = nullptr;
};

} // namespace guide
