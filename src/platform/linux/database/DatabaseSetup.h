#pragma once

#include "platform/linux/database/PostgresConnection.h"

#include <QStringList>

namespace guide {

/// What the administrator of a database does. Blocks; errors are sentences without passwords, and what the
/// server says only where there is no sentence for it, after "Details:".
class DatabaseSetup {
  public:
    struct User {
        /// With the password, which is not kept anywhere. Through a socket, the name of the server is
        /// "server".
        QString address;
        /// Otherwise it got another password.
        bool isNew = false;
    };

    /// The address is that of the administrator, a role that may create roles. `needsPassword` is set when
    /// the server asks for one that neither the address nor libpq's own places have. Empty when there is no
    /// connection.
    static std::optional<DatabaseSetup> connect(const DatabaseAddress& address, bool& needsPassword,
                                                QString& why);

    /// Applies, in order, those of the numbered files in the folder that the database does not have yet, each
    /// wholly or not at all. Returns their names; nothing when one failed.
    std::optional<QStringList> upgrade(const QString& folder, QString& why);

    /// Whether a user can have the name; otherwise `why` has a sentence.
    static bool acceptsName(const QString& name, QString& why);
    /// Makes a user, or gives one another password.
    std::optional<User> setUser(const QString& name, QString& why);

    /// What the administrator should know about what was done since the last call.
    QStringList takeWarnings() { return m_connection->takeWarnings(); }

  private:
    DatabaseSetup(DatabaseAddress address, std::unique_ptr<WakeUp> stop,
                  std::unique_ptr<PostgresConnection> connection)
        : m_address(std::move(address))
        , m_stop(std::move(stop))
        , m_connection(std::move(connection)) {}

    /// Whether server and administrator are fit for it; otherwise `why` has a sentence.
    bool canSetUp(QString& why);

    DatabaseAddress m_address;
    std::unique_ptr<WakeUp> m_stop;
    std::unique_ptr<PostgresConnection> m_connection;
};

} // namespace guide
