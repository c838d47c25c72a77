#pragma once

#include <QDBusConnection>

#include <optional>

namespace guide {

/// Unset when the session has no bus.
inline std::optional<QDBusConnection> sessionBus() {
    // Without an address libdbus would start a bus.
    if (qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS")) {
        return std::nullopt;
    }
    const QDBusConnection bus = QDBusConnection::sessionBus();
    return bus.isConnected() ? std::optional(bus) : std::nullopt;
}

} // namespace guide
