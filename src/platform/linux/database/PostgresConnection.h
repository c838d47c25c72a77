#pragma once

#include "platform/linux/FileDescriptor.h"
#include "platform/linux/database/DatabaseAddress.h"

#include <QByteArray>
#include <QList>
#include <QStringList>
#include <QUuid>

#include <atomic>
#include <chrono>
#include <libpq-fe.h>
#include <memory>
#include <optional>

namespace guide {

/// Wakes a thread that waits in poll(). Any thread.
class WakeUp {
  public:
    WakeUp();
    void wake() const;
    void clear() const;
    int descriptor() const { return m_event.get(); }

  private:
    const FileDescriptor m_event;
};

/// Waits until the descriptor is ready; false when the time is up or `stop` was woken.
bool waitFor(int descriptor, short events, const WakeUp& stop, std::chrono::steady_clock::time_point until);

enum class DatabaseFault {
    /// The connection was lost, or the server is starting or full.
    Lost,
    /// There is no host of that name.
    UnknownHost,
    /// This device has no network, none with a way to the host, or does not let the guide use it.
    NoNetwork,
    /// Nothing listens on the port or the socket.
    NoServer,
    /// Nothing answered in time.
    NoAnswer,
    /// The server does not accept the user or the password.
    Login,
    /// The server asks for a password, and there is none.
    NoPassword,
    /// The user may not do that.
    Rights,
    /// The server did not prove its identity, or offers no encryption.
    Identity,
    /// The server does not have the database.
    NoDatabase,
    /// What the guide needs is not in the database.
    Schema,
    /// Too much in too short a time.
    Later,
    /// The statement will never be accepted.
    Statement,
};

struct DatabaseError {
    DatabaseFault fault = DatabaseFault::Lost;
    /// Of the server or library, without passwords.
    QString message;
    /// The server's code, if the error is one of the server.
    QByteArray state = {};
};

/// A value for a statement; null without one.
struct DatabaseParameter {
    DatabaseParameter() = default;
    explicit DatabaseParameter(QByteArray raw, bool isBinary = false)
        : bytes(std::move(raw))
        , binary(isBinary) {}
    explicit DatabaseParameter(const QUuid& id)
        : bytes(id.toByteArray(QUuid::WithoutBraces)) {}
    /// An array of texts.
    static DatabaseParameter array(const QList<QByteArray>& texts);

    std::optional<QByteArray> bytes;
    bool binary = false;
};

/// The answer to a statement: rows of texts, or an error.
class DatabaseReply {
  public:
    explicit DatabaseReply(DatabaseError error)
        : m_error(std::move(error)) {}
    explicit DatabaseReply(PGresult* result)
        : m_result(result) {}

    const std::optional<DatabaseError>& error() const { return m_error; }
    int rows() const { return PQntuples(m_result.get()); }
    bool isNull(int row, int column) const { return PQgetisnull(m_result.get(), row, column) != 0; }
    QByteArray text(int row, int column) const {
        return {PQgetvalue(m_result.get(), row, column), PQgetlength(m_result.get(), row, column)};
    }
    qint64 number(int row, int column) const { return text(row, column).toLongLong(); }
    QUuid id(int row, int column) const { return QUuid::fromString(QString::fromLatin1(text(row, column))); }
    /// Of a column of the type bytea.
    QByteArray bytes(int row, int column) const { return QByteArray::fromHex(text(row, column).sliced(2)); }

  private:
    struct Clear {
        void operator()(PGresult* result) const { PQclear(result); }
    };
    std::optional<DatabaseError> m_error;
    std::unique_ptr<PGresult, Clear> m_result;
};

/// A connection to a PostgreSQL server, used by one thread at a time. No call waits longer than its time or
/// after `stop` has been woken.
class PostgresConnection {
  public:
    /// Null with an error when there is none within 15 seconds. `numbers` are the addresses of the host; it
    /// is looked up without a time limit if they are empty.
    static std::unique_ptr<PostgresConnection> open(const DatabaseAddress& address, const QString& password,
                                                    const QList<QByteArray>& numbers, const WakeUp& stop,
                                                    DatabaseError& error);

    /// One statement with parameters, or several without. When the answer takes longer than `longest`, the
    /// connection is lost.
    DatabaseReply execute(const QByteArray& statement, const QList<DatabaseParameter>& parameters = {},
                          std::chrono::seconds longest = std::chrono::seconds(30));

    /// Readable when the server sent something.
    int descriptor() const { return PQsocket(m_connection.get()); }
    /// Reads what the server sent; false when the connection was lost.
    bool receive() { return PQconsumeInput(m_connection.get()) != 0 && !isLost(); }
    /// Whether there were notifications since the last call.
    bool takeNotifications();
    /// The warnings that statements raised since the last call.
    QStringList takeWarnings() { return std::exchange(m_warnings, {}); }
    bool isLost() const { return m_isLost || PQstatus(m_connection.get()) != CONNECTION_OK; }

    PGconn* handle() const { return m_connection.get(); }

  private:
    struct Finish {
        void operator()(PGconn* connection) const { PQfinish(connection); }
    };
    PostgresConnection(PGconn* connection, const WakeUp& stop)
        : m_connection(connection)
        , m_stop(stop) {}

    DatabaseReply lost();

    const std::unique_ptr<PGconn, Finish> m_connection;
    const WakeUp& m_stop;
    bool m_isLost = false;
    QStringList m_warnings;
};

} // namespace guide
