#pragma once

#include <QString>

#include <optional>

namespace guide {

/// The address of a PostgreSQL database, as in postgresql://anna@tv.example.org/guide. Its options are
/// sslmode=verify-full, which asks the server to prove its identity even on this device, sslrootcert=FILE,
/// the certificates that it may prove it with (the system's if missing), and host=FOLDER, that of a socket.
struct DatabaseAddress {
    /// A name, a number, or the folder of a socket.
    QString host;
    int port = 5432;
    QString user;
    QString database;
    /// Only if the text had one.
    std::optional<QString> password;
    QString certificates;
    /// Whether nothing is sent before the server has proved its identity. Always, unless it runs on this
    /// device.
    bool verifiesServer = true;

    bool isSocket() const { return host.startsWith(u'/'); }
    /// The address without the password.
    QString text() const;
};

/// Empty when it cannot be used; `why` then has a sentence without the password.
std::optional<DatabaseAddress> databaseAddress(const QString& text, QString& why);

} // namespace guide
