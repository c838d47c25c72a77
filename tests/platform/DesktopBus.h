#pragma once

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusServer>
#include <QDBusVirtualObject>
#include <QTest>

#include <functional>
#include <gtest/gtest.h>
#include <optional>

namespace guide::test {

/// An object of the desktop that records the calls and answers them.
class DesktopObject final : public QDBusVirtualObject {
  public:
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        calls << message.member();
        const std::optional<QVariant> result = answer(message);
        return connection.send(result ? message.createReply(*result)
                                      : message.createErrorReply(QDBusError::NotSupported, QString()));
    }

    QStringList calls;
    /// No result for an error.
    std::function<std::optional<QVariant>(const QDBusMessage&)> answer = [](const auto&) {
        return std::nullopt;
    };
};

/// A program and the desktop, connected without a bus.
class DesktopBus : public testing::Test {
  public:
    ~DesktopBus() override { QDBusConnection::disconnectFromPeer(QStringLiteral("program")); }

  protected:
    DesktopBus() {
        QObject::connect(
            &m_server, &QDBusServer::newConnection, &object, [this](const QDBusConnection& connection) {
                m_desktop = connection;
                m_desktop->registerVirtualObject(QStringLiteral("/org"), &object, QDBusConnection::SubPath);
            });
        program.emplace(QDBusConnection::connectToPeer(m_server.address(), QStringLiteral("program")));
        EXPECT_TRUE(QTest::qWaitFor([this] { return m_desktop.has_value(); }));
    }

    /// The program's answer.
    QDBusMessage ask(const QString& path, const QString& interface, const QString& member,
                     const QVariantList& arguments = {}) {
        QDBusMessage call = QDBusMessage::createMethodCall({}, path, interface, member);
        call.setArguments(arguments);
        const QDBusPendingCall answer = m_desktop->asyncCall(call);
        EXPECT_TRUE(QTest::qWaitFor([&answer] { return answer.isFinished(); }));
        return answer.reply();
    }
    bool waitFor(const std::function<bool()>& condition) { return QTest::qWaitFor(condition); }

    std::optional<QDBusConnection> program;
    /// Everything below "/org" on the desktop's side.
    DesktopObject object;

  private:
    int m_count = 1;
    char m_name[5] = "test";
    char* m_arguments[2] = {m_name, nullptr};
    const QCoreApplication m_application{m_count, m_arguments};
    QDBusServer m_server{QStringLiteral("unix:tmpdir=/tmp")};
    std::optional<QDBusConnection> m_desktop;
};

} // namespace guide::test
