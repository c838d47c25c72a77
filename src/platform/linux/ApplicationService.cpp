#include "platform/linux/ApplicationService.h"

#include "platform/linux/SessionBus.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QVariantMap>

#include <optional>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

const QString kName = u"net.quellin.Guide"_s;
const QString kPath = u"/net/quellin/Guide"_s;
const QString kInterface = u"org.freedesktop.Application"_s;
constexpr qsizetype kMostAddresses = 8;

/// From the platform data of a call: the token of Wayland, or the startup id of X11.
QByteArray tokenIn(const QVariant& platformData) {
    const QVariantMap data = qdbus_cast<QVariantMap>(platformData);
    const QString token = data.value(u"activation-token"_s).toString();
    return (token.isEmpty() ? data.value(u"desktop-startup-id"_s).toString() : token).toUtf8();
}

} // namespace

ApplicationService::ApplicationService(QDBusConnection bus, DispatchQueue& mainQueue, Handler handler)
    : m_bus(std::move(bus))
    , m_mainQueue(mainQueue)
    , m_handler(std::make_shared<const Handler>(std::move(handler))) {
    m_bus.registerVirtualObject(kPath, this);
    // Without waiting for the answer: another program may have the name.
    QDBusMessage request = QDBusMessage::createMethodCall(
        u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s, u"org.freedesktop.DBus"_s, u"RequestName"_s);
    constexpr unsigned kDoNotQueue = 4;
    request << kName << kDoNotQueue;
    m_bus.asyncCall(request);
}

ApplicationService::~ApplicationService() {
    m_bus.unregisterObject(kPath);
}

std::unique_ptr<ApplicationService> ApplicationService::ofSession(DispatchQueue& mainQueue, Handler handler) {
    const std::optional<QDBusConnection> bus = sessionBus();
    return bus ? std::make_unique<ApplicationService>(*bus, mainQueue, std::move(handler)) : nullptr;
}

QString ApplicationService::introspect(const QString& /*path*/) const {
    return u"<interface name=\"org.freedesktop.Application\">"
           "<method name=\"Activate\"><arg type=\"a{sv}\" direction=\"in\"/></method>"
           "<method name=\"Open\"><arg type=\"as\" direction=\"in\"/><arg type=\"a{sv}\" "
           "direction=\"in\"/></method>"
           "<method name=\"ActivateAction\"><arg type=\"s\" direction=\"in\"/><arg type=\"av\" "
           "direction=\"in\"/>"
           "<arg type=\"a{sv}\" direction=\"in\"/></method></interface>"_s;
}

bool ApplicationService::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    const QList<QVariant> arguments = message.arguments();
    QStringList addresses;
    if (message.interface() != kInterface) {
        return false;
    }
    if (message.member() == "Open"_L1 && message.signature() == "asa{sv}"_L1) {
        addresses =
            arguments[0].toStringList().first(std::min(kMostAddresses, arguments[0].toStringList().size()));
    } else if (message.member() != "Activate"_L1 || message.signature() != "a{sv}"_L1) {
        return false;
    }
    m_mainQueue.async(
        [handler = std::weak_ptr(m_handler), addresses, token = tokenIn(arguments.constLast())] {
            if (const std::shared_ptr<const Handler> call = handler.lock()) {
                (*call)(addresses, token);
            }
        });
    return connection.send(message.createReply());
}

} // namespace guide
