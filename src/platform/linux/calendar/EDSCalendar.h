#pragma once

#include "platform/linux/calendar/EDSConnection.h"
#include "platform/linux/calendar/EDSSources.h"

#include <QByteArray>
#include <QString>

#include <chrono>
#include <optional>
#include <vector>

namespace guide {

/// Calls to one calendar of the service. Opens it when needed, and again after the service died. A calendar
/// that did not answer in time, perhaps because its account waits for the user, is left alone for a while.
/// Objects are iCalendar components. One thread.
class EDSCalendar {
  public:
    /// `leftAloneFor` is how long after it did not answer.
    EDSCalendar(EDSConnection& connection, const QString& sourceUid,
                std::chrono::milliseconds leftAloneFor = std::chrono::minutes(1))
        : m_connection(connection)
        , m_sourceUid(sourceUid)
        , m_leftAloneFor(leftAloneFor) {}

    /// Why it cannot be opened; unset when it is open.
    std::optional<EDSError> open(std::chrono::milliseconds longest = std::chrono::seconds(10));
    bool isOpen() const { return !m_object.path.isEmpty(); }
    /// To be opened again before the next call.
    void close() { m_object.path.clear(); }

    /// Of the open calendar.
    const EDSObject& object() const { return m_object; }
    bool isWritable();
    bool isOnline();
    /// Whether its server took part in the last call.
    bool isReachable() const { return m_isReachable; }

    EDSReply create(const QList<QByteArray>& components);
    EDSReply modify(const QList<QByteArray>& components);
    EDSReply remove(const QList<QByteArray>& uids);
    /// Of each, the component, or a VCALENDAR with it and its occurrences.
    QList<EDSReply> get(const QList<QByteArray>& uids);
    EDSReply get(const QByteArray& uid) { return get(QList<QByteArray>{uid}).first(); }
    EDSReply list(Moment start, Moment end);
    EDSReply timezone(const QByteArray& name);
    /// Asks the server for changes; does not wait.
    void refresh();
    /// The path of a view of all events, not started.
    EDSReply view();

  private:
    using SteadyClock = std::chrono::steady_clock;

    EDSReply call(const QString& member, const QVariantList& arguments);
    QList<EDSReply> calls(const QString& member, const QList<QVariantList>& arguments);
    void note(const std::optional<EDSError>& error);

    EDSConnection& m_connection;
    const QString m_sourceUid;
    const std::chrono::milliseconds m_leftAloneFor;
    /// Without a path while it is not open.
    EDSObject m_object;
    bool m_isReachable = true;
    SteadyClock::time_point m_leftAloneUntil;
};

} // namespace guide
