#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QString>
#include <QVariantList>

#include <optional>

namespace guide {

/// An object on the session's bus.
struct BusObject {
    QString service;
    QString path;
    QString interface;
};

extern const BusObject kSessionBus;
extern const BusObject kSystemdManager;

/// Calls to other programs of the session; each waits for its answer, 10 seconds at most. Without a bus every
/// call fails. One thread at a time.
class SessionCalls {
  public:
    explicit SessionCalls(std::optional<QDBusConnection> bus)
        : m_bus(std::move(bus)) {}

    /// Starts no service.
    QDBusMessage call(const BusObject& object, const QString& member,
                      const QVariantList& arguments = {}) const;
    bool isRunning(const QString& service) const;
    /// Makes systemd and the bus, which do so by themselves only at times, look at their files.
    void reloadFiles() const;

  private:
    const std::optional<QDBusConnection> m_bus;
};

} // namespace guide
