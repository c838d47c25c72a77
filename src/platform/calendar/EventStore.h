#pragma once

#include "platform/Moment.h"

#include <QString>
#include <QUrl>

#include <array>
#include <chrono>
#include <functional>
#include <optional>
#include <variant>
#include <vector>

namespace guide {

enum class CalendarAccess { Granted, Refused, NotAsked };

enum class CalendarState {
    Ready,
    /// Its server cannot be reached: changes are kept and sent later.
    Offline,
    /// It cannot be used before the user has done something about its account, such as entering a password.
    Unavailable,
};

/// A calendar that holds events.
struct EventCalendar {
    /// Stable within the store.
    QString identifier;
    QString title;
    /// The account or folder that it belongs to.
    QString source;
    /// Red, green, blue and alpha, from 0 to 1.
    std::array<double, 4> color{0.5, 0.5, 0.5, 0.5};
    bool allowsContentModifications = false;
    CalendarState state = CalendarState::Ready;

    friend bool operator==(const EventCalendar&, const EventCalendar&) = default;
};

/// The parts of an event that the guide reads and writes. A store keeps all other properties of an event that
/// it changes.
struct CalendarEvent {
    /// Given by the store; empty for an event that was never saved.
    QString identifier;
    /// The identifier of its calendar.
    QString calendar;
    QString title;
    QString location;
    std::optional<QUrl> url;
    Moment startDate;
    std::optional<Moment> endDate;
    bool isAllDay = false;
    /// Of each alarm, from the start of the event; negative when it comes first.
    std::vector<std::chrono::seconds> alarmOffsets;
    /// What the store knows the read state by, so that a change made elsewhere meanwhile is not overwritten;
    /// opaque, may be empty.
    QString revision;

    bool hasAlarms() const { return !alarmOffsets.empty(); }
    friend bool operator==(const CalendarEvent&, const CalendarEvent&) = default;
};

/// Creates the event if its identifier is empty, otherwise replaces the guide's properties of the stored one.
struct SaveEvent {
    CalendarEvent event;
};
struct RemoveEvent {
    /// As it was read.
    CalendarEvent event;
};
using EventChange = std::variant<SaveEvent, RemoveEvent>;

enum class EventFault {
    /// The event is no longer there.
    NotFound,
    /// It was changed elsewhere since it was read, and was left as it is.
    Conflict,
    ReadOnly,
    /// The calendar or its service cannot be reached or used.
    Unavailable,
    /// Anything else, such as a full disk.
    Failed,
};

/// The outcome of one change.
struct EventOutcome {
    /// Unset when the change was made.
    std::optional<EventFault> fault;
    /// For logs and the journal; empty without a fault.
    QString message;
    /// Of the saved event.
    QString identifier;

    bool isDone() const { return !fault; }
};

struct EventRange {
    /// All events that start before `end` and end after `start`, in ascending order of their starts.
    std::vector<CalendarEvent> events;
    /// Why the events could not be read; `events` is then empty. Unset otherwise.
    std::optional<QString> fault;
};

/// The calendars of the device. All functions may block for as long as the service needs, at most
/// half a minute, so they are for background queues; any thread, but one at a time. refreshSources, and
/// setCalendarsChanged with an empty function, do not wait and may be called during other calls. Only
/// calendarsChanged may be called by the store, on any thread.
class EventStore {
  public:
    virtual ~EventStore() = default;

    virtual CalendarAccess access() = 0;
    /// Asks the user where that is needed; the answer may come on any thread.
    virtual void requestAccess(std::function<void(bool granted)> completion) = 0;

    /// All calendars with events, including those that cannot be written; unset when the list could not be
    /// read, which does not mean that there are none.
    virtual std::optional<std::vector<EventCalendar>> calendars() = 0;
    /// May create a calendar when there is none. Nothing when it cannot be told which one it is now, because
    /// the list could not be read or a calendar is unavailable.
    virtual std::optional<EventCalendar> defaultCalendarForNewEvents() = 0;
    /// Makes a calendar on this device; nothing when that failed.
    virtual std::optional<EventCalendar> createCalendar(const QString& title) = 0;
    /// Asks accounts for what was changed on their servers; does not wait for the answer.
    virtual void refreshSources() = 0;

    virtual EventRange eventsBetween(Moment start, Moment end, const EventCalendar& calendar) = 0;
    virtual std::optional<CalendarEvent> eventWithIdentifier(const QString& identifier) = 0;
    /// Makes all changes, in batches where the service has them, and returns the outcome of each, in order.
    /// When a batch is refused, its changes are tried one by one. What is done is durable.
    virtual std::vector<EventOutcome> apply(const std::vector<EventChange>& changes) = 0;

    /// Called after another program, another device or the server changed a calendar, and not after the
    /// guide's own changes; replaces the previous function. Not called any more once this has returned
    /// with an empty function.
    virtual void setCalendarsChanged(std::function<void()> calendarsChanged) = 0;

    /// For the options: which kind of calendars the device has.
    virtual QString name() const = 0;
};

} // namespace guide
