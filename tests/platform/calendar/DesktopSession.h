#pragma once

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <csignal>
#include <gtest/gtest.h>
#include <sys/prctl.h>

namespace guide::test {

/// The application object that Qt DBus needs.
class TestApplication {
  private:
    int m_count = 1;
    char m_name[5] = "test";
    char* m_arguments[2] = {m_name, nullptr};
    const QCoreApplication m_application{m_count, m_arguments};
};

/// A private session without a display, in which the bus starts the calendar services on demand. They end
/// with the bus. The folders of the session are temporary.
class DesktopSession {
  public:
    /// Without services, nothing can be started.
    explicit DesktopSession(bool hasServices = true) {
        for (const char* folder : {"data", "config", "cache", "state", "run"}) {
            EXPECT_TRUE(QDir(m_home.path()).mkdir(QString::fromLatin1(folder)));
        }
        QFile::setPermissions(path("run"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS"}) {
            environment.remove(QString::fromLatin1(name));
        }
        const std::pair<const char*, QString> values[] = {
            {"HOME", m_home.path()},
            {"XDG_DATA_HOME", path("data")},
            {"XDG_CONFIG_HOME", path("config")},
            {"XDG_CACHE_HOME", path("cache")},
            {"XDG_STATE_HOME", path("state")},
            {"XDG_RUNTIME_DIR", path("run")},
            {"SECRET_BACKEND", QStringLiteral("file")},
            {"SECRET_FILE_TEST_PATH", path("secrets.keyring")},
            {"SECRET_FILE_TEST_PASSWORD", QStringLiteral("test")},
            {"GSETTINGS_BACKEND", QStringLiteral("memory")},
            {"GIO_USE_VFS", QStringLiteral("local")},
            {"GIO_USE_NETWORK_MONITOR", QStringLiteral("base")},
        };
        for (const auto& [name, value] : values) {
            environment.insert(QString::fromLatin1(name), value);
        }
        QFile configuration(path("bus.conf"));
        EXPECT_TRUE(configuration.open(QIODevice::WriteOnly));
        configuration.write(
            "<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\" "
            "\"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\"><busconfig>"
            "<type>session</type><listen>unix:dir=" +
            QFile::encodeName(path("run")) + "</listen>" +
            (hasServices ? "<standard_session_servicedirs/>" : "") +
            "<policy context=\"default\"><allow send_destination=\"*\" eavesdrop=\"true\"/>"
            "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>");
        configuration.close();
        m_bus.setProcessEnvironment(environment);
        m_bus.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
        m_bus.setStandardErrorFile(QProcess::nullDevice());
        m_bus.start(QStringLiteral("dbus-daemon"),
                    {QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                     QStringLiteral("--config-file=") + path("bus.conf")});
        EXPECT_TRUE(m_bus.waitForReadyRead(20'000)) << "the package dbus-daemon is needed";
        m_address = QString::fromUtf8(m_bus.readLine()).trimmed();
    }
    DesktopSession(const DesktopSession&) = delete;
    DesktopSession& operator=(const DesktopSession&) = delete;
    ~DesktopSession() {
        m_bus.terminate();
        m_bus.waitForFinished();
    }

    const QString& busAddress() const { return m_address; }
    QString path(const char* name) const { return m_home.filePath(QString::fromLatin1(name)); }

  private:
    const TestApplication m_application;
    const QTemporaryDir m_home;
    QProcess m_bus;
    QString m_address;
};

} // namespace guide::test
