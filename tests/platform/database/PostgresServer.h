#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

#include <cstdint>

namespace guide::test {

/// Certificates that a test makes: an authority, and servers' certificates signed by it.
class Certificates {
  public:
    Certificates();
    /// Makes NAME.crt and NAME.key in the folder.
    void makeServer(const QString& folder, const QString& name, const QString& host) const;
    QString authority() const { return m_folder.filePath(QStringLiteral("ca.crt")); }

  private:
    const QTemporaryDir m_folder;
};

/// A PostgreSQL server of the test, with the guide's schema in the database "guide". Needs the package
/// postgresql-15. It runs as another user when the test is run by root, and ends with the test.
class PostgresServer {
  public:
    /// With certificates, users log in over TLS only, and the server proves that it is `host`.
    explicit PostgresServer(const Certificates* certificates = nullptr,
                            const QString& host = QStringLiteral("localhost"));
    ~PostgresServer() { stop(); }
    PostgresServer(const PostgresServer&) = delete;
    PostgresServer& operator=(const PostgresServer&) = delete;

    void start();
    void stop();
    std::uint16_t port() const { return m_port; }
    /// Of the administrator.
    QString address() const;
    /// Makes the user; the address with the password. Another port is that of a proxy.
    QString addUser(const QString& name, std::uint16_t port = 0) const;
    /// The first value of the answer to the administrator's statement, or the message of the error.
    QString query(const QString& statement) const;
    void endConnections() const;

  private:
    bool tryStart();
    void run(const QString& program, const QStringList& arguments) const;
    QString data() const { return m_folder.filePath(QStringLiteral("data")); }

    const QTemporaryDir m_folder;
    QProcess m_server;
    std::uint16_t m_port = 0;
};

/// The address with the port and options replaced.
QString addressWith(const QString& address, std::uint16_t port, const QString& options = {});

} // namespace guide::test
