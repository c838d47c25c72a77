#pragma once

#include "platform/linux/calendar/EDSCalendar.h"
#include "platform/linux/calendar/EventReading.h"
#include "platform/linux/calendar/OwnWrites.h"

#include <QList>

#include <optional>
#include <span>
#include <vector>

namespace guide {

/// One change to an event, and where its outcome goes.
struct EDSChange {
    CalendarEvent event;
    /// Of the stored event; empty for a new one.
    QByteArray uid;
    EventOutcome* outcome = nullptr;
};

/// The event of an answer of the service.
struct EDSEvent {
    /// A single component.
    ICalendarText text;
    StoredEvent stored;
    QString revision;
};

/// Nothing for an occurrence of a repeated event, and for what is no event.
std::optional<EDSEvent> edsEvent(const QString& answer, EventReading& reading);

/// Makes changes to one calendar in batches, and one by one where a batch is refused. One thread.
class EDSChanges {
  public:
    /// In the order in which a group of changes is made: removals free UIDs for new events.
    enum class Kind { Remove, Save, Create };

    EDSChanges(EDSCalendar& calendar, const QString& identifier, EventReading& reading, OwnWrites& writes,
               Moment now)
        : m_calendar(calendar)
        , m_identifier(identifier)
        , m_reading(reading)
        , m_writes(writes)
        , m_now(now) {}

    void make(Kind kind, const std::vector<EDSChange>& changes);

  private:
    /// A change that is ready to be sent.
    struct Ready {
        const EDSChange* change = nullptr;
        QByteArray uid;
        /// Empty for a removal.
        QByteArray component;
    };

    /// Nothing when there is nothing to send; the outcome says why. In a repetition, parts of a batch may
    /// have been made.
    std::optional<Ready> prepare(Kind kind, const EDSChange& change, const EDSReply& stored, bool isRepeated);
    std::optional<Ready> prepareNew(const EDSChange& change);
    std::optional<Ready> prepareChange(Kind kind, const EDSChange& change, const EDSEvent& stored);
    EDSReply send(Kind kind, const QList<Ready>& batch);
    void makeBatch(Kind kind, std::span<const EDSChange> changes);
    void makeAlone(Kind kind, const EDSChange& change);
    void createAlone(const EDSChange& change);
    void finish(const Ready& ready);
    void refuse(const EDSChange& change, const EDSError& error);

    EDSCalendar& m_calendar;
    const QString m_identifier;
    EventReading& m_reading;
    OwnWrites& m_writes;
    const Moment m_now;
};

} // namespace guide
