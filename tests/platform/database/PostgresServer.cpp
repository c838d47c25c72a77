#include "PostgresServer.h"

#include "fakes/Files.h"
#include "platform/linux/database/DatabaseSetup.h"

#include <QDir>
#include <QRandomGenerator>
#include <QThread>
#include <QUrl>

#include <csignal>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <pwd.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace guide::test {

using namespace Qt::StringLiterals;

namespace {

const QString kPrograms = u"/usr/lib/postgresql/15/bin/"_s;
const QString kAdministrator = u"postgres"_s;

/// The server refuses to run as root.
const passwd* unprivilegedUser() {
    return ::getuid() != 0 ? nullptr : ::getpwnam("postgres") ? ::getpwnam("postgres") : ::getpwnam("nobody");
}

void dropPrivileges(QProcess& process) {
    const passwd* user = unprivilegedUser();
    const uid_t uid = user ? user->pw_uid : ::getuid();
    const gid_t gid = user ? user->pw_gid : ::getgid();
    process.setChildProcessModifier([uid, gid] {
        if (::getuid() == 0 && (::setgid(gid) != 0 || ::setuid(uid) != 0)) {
            ::_exit(1);
        }
        // After the change of the user, which cancels it.
        ::prctl(PR_SET_PDEATHSIG, SIGQUIT);
    });
}

/// A free port that the system does not hand out for other connections meanwhile.
std::uint16_t freePort() {
    for (;;) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        const auto port = static_cast<std::uint16_t>(QRandomGenerator::system()->bounded(12'000, 32'000));
        address.sin_port = htons(port);
        const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        const bool isFree = ::bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
        ::close(socket);
        if (isFree) {
            return port;
        }
    }
}

void openssl(const QStringList& arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(u"openssl"_s, arguments);
    process.waitForFinished(60'000);
    EXPECT_EQ(process.exitCode(), 0) << process.readAll().toStdString();
}

} // namespace

Certificates::Certificates() {
    openssl({u"req"_s, u"-x509"_s, u"-newkey"_s, u"ec"_s, u"-pkeyopt"_s, u"ec_paramgen_curve:P-256"_s,
             u"-nodes"_s, u"-days"_s, u"2"_s, u"-subj"_s, u"/CN=Test authority"_s, u"-keyout"_s,
             m_folder.filePath(u"ca.key"_s), u"-out"_s, authority()});
}

void Certificates::makeServer(const QString& folder, const QString& name, const QString& host) const {
    const QDir to(folder);
    const QString request = m_folder.filePath(u"request"_s);
    openssl({u"req"_s, u"-newkey"_s, u"ec"_s, u"-pkeyopt"_s, u"ec_paramgen_curve:P-256"_s, u"-nodes"_s,
             u"-subj"_s, u"/CN="_s + host, u"-keyout"_s, to.filePath(name + u".key"_s), u"-out"_s, request});
    openssl({u"x509"_s, u"-req"_s, u"-in"_s, request, u"-days"_s, u"2"_s, u"-CA"_s, authority(), u"-CAkey"_s,
             m_folder.filePath(u"ca.key"_s), u"-CAcreateserial"_s, u"-out"_s, to.filePath(name + u".crt"_s)});
}

PostgresServer::PostgresServer(const Certificates* certificates, const QString& host) {
    if (const passwd* user = unprivilegedUser()) {
        EXPECT_EQ(::chown(QFile::encodeName(m_folder.path()).constData(), user->pw_uid, user->pw_gid), 0);
    }
    run(u"initdb"_s, {u"--pgdata="_s + data(), u"--username="_s + kAdministrator, u"--auth-local=trust"_s,
                      u"--auth-host=scram-sha-256"_s, u"--no-sync"_s, u"--encoding=UTF8"_s, u"--locale=C"_s});
    if (certificates != nullptr) {
        certificates->makeServer(data(), u"server"_s, host);
        if (const passwd* user = unprivilegedUser()) {
            const QString key = data() + u"/server.key"_s;
            EXPECT_EQ(::chown(QFile::encodeName(key).constData(), user->pw_uid, user->pw_gid), 0);
        }
        QFile::setPermissions(data() + u"/server.crt"_s, QFile::ReadOwner | QFile::ReadOther);
        EXPECT_TRUE(writeFile(data() + u"/pg_hba.conf"_s, "local all postgres trust\n"
                                                          "hostssl all all 127.0.0.1/32 scram-sha-256\n"));
    }
    EXPECT_TRUE(writeFile(data() + u"/postgresql.auto.conf"_s,
                          QByteArray(certificates != nullptr ? "ssl = on\n" : "") +
                              "listen_addresses = '127.0.0.1'\nfsync = off\nmax_connections = 60\n"
                              "shared_buffers = 16MB\nunix_socket_directories = '" +
                              QFile::encodeName(m_folder.path()) + "'\n"));
    // Another server may have taken the port.
    for (int tries = 0; tries < 5 && m_port == 0; ++tries) {
        m_port = freePort();
        if (!tryStart()) {
            m_port = 0;
        }
    }
    EXPECT_NE(m_port, 0) << "the server does not start";
    query(u"create database guide"_s);
    QString why;
    bool needsPassword = false;
    auto setup = DatabaseSetup::connect(*databaseAddress(address(), why), needsPassword, why);
    EXPECT_TRUE(setup && setup->upgrade(QStringLiteral(QUELLIN_SOURCE_DATA "/database"), why))
        << why.toStdString();
}

void PostgresServer::run(const QString& program, const QStringList& arguments) const {
    QProcess process;
    dropPrivileges(process);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(kPrograms + program, arguments);
    EXPECT_TRUE(process.waitForFinished(120'000)) << "the package postgresql-15 is needed";
    EXPECT_EQ(process.exitCode(), 0) << process.readAll().toStdString();
}

bool PostgresServer::tryStart() {
    dropPrivileges(m_server);
    m_server.setStandardErrorFile(m_folder.filePath(u"log"_s), QIODevice::Append);
    m_server.start(kPrograms + u"postgres"_s, {u"-D"_s, data(), u"-p"_s, QString::number(m_port)});
    const QByteArray info =
        "host=" + QFile::encodeName(m_folder.path()) + " port=" + QByteArray::number(m_port);
    while (!m_server.waitForFinished(20)) {
        if (PQping(info.constData()) == PQPING_OK) {
            return true;
        }
    }
    return false;
}

void PostgresServer::start() {
    EXPECT_TRUE(tryStart());
}

void PostgresServer::stop() {
    if (m_server.state() != QProcess::NotRunning) {
        // Ends the connections at once.
        ::kill(static_cast<pid_t>(m_server.processId()), SIGINT);
        EXPECT_TRUE(m_server.waitForFinished(60'000));
    }
}

QString PostgresServer::address() const {
    return u"postgresql://%1@:%2/guide?host=%3"_s.arg(kAdministrator).arg(m_port).arg(m_folder.path());
}

QString PostgresServer::query(const QString& statement) const {
    const WakeUp stop;
    DatabaseError error;
    DatabaseAddress server;
    server.host = m_folder.path();
    server.port = m_port;
    server.user = kAdministrator;
    server.database = statement.startsWith("create database"_L1) ? u"postgres"_s : u"guide"_s;
    server.verifiesServer = false;
    const auto connection = PostgresConnection::open(server, {}, {}, stop, error);
    if (!connection) {
        return error.message;
    }
    const DatabaseReply reply = connection->execute(statement.toUtf8());
    return reply.error()      ? reply.error()->message
           : reply.rows() > 0 ? QString::fromUtf8(reply.text(0, 0))
                              : QString();
}

QString PostgresServer::addUser(const QString& name, std::uint16_t port) const {
    QString why;
    bool needsPassword = false;
    auto setup = DatabaseSetup::connect(*databaseAddress(address(), why), needsPassword, why);
    const auto made = setup ? setup->setUser(name, why) : std::nullopt;
    EXPECT_TRUE(made) << why.toStdString();
    QUrl url(made.value_or(DatabaseSetup::User{}).address);
    url.setHost(u"localhost"_s);
    url.setPort(port != 0 ? port : m_port);
    url.setQuery(QString());
    return url.toString(QUrl::FullyEncoded);
}

void PostgresServer::endConnections() const {
    query(u"select count(pg_terminate_backend(pid)) from pg_stat_activity where usename <> 'postgres' and "
          u"pid <> "
          "pg_backend_pid()"_s);
}

QString addressWith(const QString& address, std::uint16_t port, const QString& options) {
    QUrl url(address);
    url.setPort(port);
    url.setQuery(options);
    return url.toString(QUrl::FullyEncoded);
}

} // namespace guide::test
