#include "platform/linux/SessionCalls.h"

#include <QDBusReply>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr int kLongestCall = 10'000;

} // namespace

const BusObject kSessionBus{u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s, u"org.freedesktop.DBus"_s};
const BusObject kSystemdManager{u"org.freedesktop.systemd1"_s, u"/org/freedesktop/systemd1"_s,
                                u"org.freedesktop.systemd1.Manager"_s};

QDBusMessage SessionCalls::call(const BusObject& object, const QString& member,
                                const QVariantList& arguments) const {
    if (!m_bus) {
        return {};
    }
    QDBusMessage message =
        QDBusMessage::createMethodCall(object.service, object.path, object.interface, member);
    message.setArguments(arguments);
    message.setAutoStartService(false);
    return m_bus->call(message, QDBus::Block, kLongestCall);
}

bool SessionCalls::isRunning(const QString& service) const {
    const QDBusReply<bool> reply = call(kSessionBus, u"NameHasOwner"_s, {service});
    return reply.isValid() && reply.value();
}

void SessionCalls::reloadFiles() const {
    call(kSystemdManager, u"Reload"_s);
    call(kSessionBus, u"ReloadConfig"_s);
}

} // namespace guide
