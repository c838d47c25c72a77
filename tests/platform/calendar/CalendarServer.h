#pragma once

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <arpa/inet.h>
#include <csignal>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace guide::test {

/// A CalDAV server on loopback with one calendar, whose events are files.
class CalendarServer {
  public:
    explicit CalendarServer(const QStringList& options)
        : m_options(options) {
        m_port = reservedPort();
        EXPECT_TRUE(QDir().mkpath(folder()));
        QFile properties(folder() + QStringLiteral("/.Radicale.props"));
        EXPECT_TRUE(properties.open(QIODevice::WriteOnly));
        properties.write(R"({"tag": "VCALENDAR", "D:displayname": "Remote"})");
        start();
    }
    CalendarServer(const CalendarServer&) = delete;
    CalendarServer& operator=(const CalendarServer&) = delete;
    ~CalendarServer() { stop(); }

    void start() {
        m_server.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
        m_server.setStandardErrorFile(QProcess::nullDevice());
        m_server.start(QStringLiteral("radicale"),
                       QStringList{QStringLiteral("--config="), QStringLiteral("--auth-type=none"),
                                   QStringLiteral("--server-hosts=127.0.0.1:%1").arg(m_port),
                                   QStringLiteral("--storage-filesystem-folder=") + m_folder.path()} +
                           m_options);
        EXPECT_TRUE(m_server.waitForStarted()) << "the package radicale is needed";
        EXPECT_TRUE(QTest::qWaitFor([this] { return answers() || m_server.waitForFinished(0); }, 20'000));
        EXPECT_EQ(m_server.state(), QProcess::Running) << "it cannot use the port";
    }
    void stop() {
        m_server.kill();
        m_server.waitForFinished();
    }

    /// For the next start.
    void setOptions(const QStringList& options) { m_options = options; }

    int port() const { return m_port; }
    /// The files of the events are in it.
    QString folder() const { return m_folder.filePath(QStringLiteral("collection-root/test/tv")); }
    /// Of the event whose UID begins like this; empty when there is none.
    QString file(const QString& uid) const {
        const QStringList names = QDir(folder()).entryList({uid + u'*'}, QDir::Files);
        return names.size() == 1 ? folder() + u'/' + names.first() : QString();
    }

  private:
    static sockaddr_in loopback(int port) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        address.sin_port = htons(static_cast<std::uint16_t>(port));
        return address;
    }
    /// The end of a connection leaves the port to servers that ask for it, and to nobody who takes any.
    static int reservedPort() {
        const int server = ::socket(AF_INET, SOCK_STREAM, 0);
        sockaddr_in address = loopback(0);
        socklen_t size = sizeof address;
        auto* generic = reinterpret_cast<sockaddr*>(&address);
        const int reuse = 1;
        EXPECT_EQ(::setsockopt(server, SOL_SOCKET, SO_REUSEADDR, &reuse, sizeof reuse), 0);
        EXPECT_EQ(::bind(server, generic, size), 0);
        EXPECT_EQ(::listen(server, 1), 0);
        EXPECT_EQ(::getsockname(server, generic, &size), 0);
        const int client = ::socket(AF_INET, SOCK_STREAM, 0);
        EXPECT_EQ(::connect(client, generic, size), 0);
        const int accepted = ::accept(server, nullptr, nullptr);
        // The end that closes first keeps the port.
        ::close(accepted);
        ::close(client);
        ::close(server);
        return ntohs(address.sin_port);
    }
    bool answers() const {
        const sockaddr_in address = loopback(m_port);
        const int client = ::socket(AF_INET, SOCK_STREAM, 0);
        const bool answered =
            ::connect(client, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
        ::close(client);
        return answered;
    }

    QStringList m_options;
    const QTemporaryDir m_folder;
    int m_port = 0;
    QProcess m_server;
};

} // namespace guide::test
