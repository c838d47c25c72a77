#pragma once

#include "platform/calendar/EventStore.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QList>
#include <QString>
#include <QVariantList>

#include <chrono>
#include <optional>

namespace guide {

/// Why a call to the service failed.
struct EDSError {
    EventFault fault = EventFault::Failed;
    QString message;
    /// The service, or the object in it, is gone; opening the calendar again helps.
    bool isGone = false;
    /// An event with this UID exists.
    bool isTaken = false;
    /// The server has another state than the service believed.
    bool isOutOfSync = false;
    /// The service had time enough and did not answer.
    bool isLate = false;
};

struct EDSReply {
    QVariantList values;
    std::optional<EDSError> error;

    bool isOk() const { return !error; }
    QString text() const { return values.value(0).toString(); }
};

/// An object of the service.
struct EDSObject {
    QString service;
    QString path;
    QString interface;
};

/// A connection of its own to the bus on which evolution-data-server is. Calls block. One thread.
class EDSConnection {
  public:
    /// `address` is that of the bus.
    explicit EDSConnection(const QString& address);
    EDSConnection(const EDSConnection&) = delete;
    EDSConnection& operator=(const EDSConnection&) = delete;
    ~EDSConnection();

    bool isConnected() const { return m_bus.isConnected(); }
    QDBusConnection& bus() { return m_bus; }

    /// All calls from now on must end within this time; later ones fail at once.
    void beginCalls(std::chrono::milliseconds time);
    /// `longest` bounds this call in addition.
    EDSReply call(const EDSObject& object, const QString& member, const QVariantList& arguments = {},
                  std::chrono::milliseconds longest = std::chrono::seconds(25));
    /// One call for each list of arguments, without waiting in between; the answers in the same order.
    QList<EDSReply> calls(const EDSObject& object, const QString& member,
                          const QList<QVariantList>& arguments);
    /// Does not wait for the answer.
    void send(const EDSObject& object, const QString& member);
    std::optional<QVariant> property(const EDSObject& object, const QString& name);

  private:
    using Clock = std::chrono::steady_clock;

    /// How long a call may take; nothing when there is no time left.
    std::optional<std::chrono::milliseconds> timeFor(std::chrono::milliseconds longest) const;
    /// To a call that was made at `begin` and could take `time`.
    static EDSReply reply(const QDBusMessage& answer, Clock::time_point begin,
                          std::chrono::milliseconds time);

    const QString m_name;
    QDBusConnection m_bus;
    Clock::time_point m_until = Clock::time_point::max();
};

} // namespace guide
