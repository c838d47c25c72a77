#include "platform/linux/DesktopMotion.h"

#include "platform/linux/SessionBus.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

#include <array>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

struct Setting {
    QString space;
    QString key;
    /// Whether the value asks for reduced motion.
    bool (*less)(const QVariant& value);
};

// The common setting of all desktops, and the older settings of two of them.
const std::array<Setting, 3>& settings() {
    static const std::array<Setting, 3> all{
        {{u"org.freedesktop.appearance"_s, u"reduced-motion"_s,
          [](const QVariant& value) { return value.toUInt() == 1; }},
         {u"org.gnome.desktop.interface"_s, u"enable-animations"_s,
          [](const QVariant& value) { return value.typeId() == QMetaType::Bool && !value.toBool(); }},
         {u"org.kde.kdeglobals.KDE"_s, u"AnimationDurationFactor"_s, [](const QVariant& value) {
              bool number = false;
              return value.toDouble(&number) == 0 && number;
          }}}};
    return all;
}

// The portal wraps values in one or two variants.
QVariant unwrapped(QVariant value) {
    while (value.userType() == qMetaTypeId<QDBusVariant>()) {
        value = value.value<QDBusVariant>().variant();
    }
    return value;
}

} // namespace

DesktopMotion::DesktopMotion(QDBusConnection bus, const QString& service)
    : m_bus(std::move(bus)) {
    const QString path = u"/org/freedesktop/portal/desktop"_s;
    const QString portal = u"org.freedesktop.portal.Settings"_s;
    m_bus.connect(service, path, portal, u"SettingChanged"_s, u"ssv"_s, this,
                  SLOT(settingChanged(QDBusMessage)));
    for (const Setting& setting : settings()) {
        QDBusMessage read = QDBusMessage::createMethodCall(service, path, portal, u"Read"_s);
        read << setting.space << setting.key;
        auto* answer = new QDBusPendingCallWatcher(m_bus.asyncCall(read), this);
        connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, &setting] {
            const QDBusPendingReply<QDBusVariant> reply = *answer;
            if (reply.isValid()) {
                take(setting.space, setting.key, reply.value().variant());
            }
            answer->deleteLater();
        });
    }
}

std::unique_ptr<DesktopMotion> DesktopMotion::ofSession() {
    const std::optional<QDBusConnection> bus = sessionBus();
    return bus ? std::make_unique<DesktopMotion>(*bus) : nullptr;
}

void DesktopMotion::settingChanged(const QDBusMessage& change) {
    const QList<QVariant> arguments = change.arguments();
    if (arguments.size() == 3) {
        take(arguments[0].toString(), arguments[1].toString(), arguments[2]);
    }
}

void DesktopMotion::take(const QString& space, const QString& key, const QVariant& value) {
    for (const Setting& setting : settings()) {
        if (setting.space != space || setting.key != key) {
            continue;
        }
        const bool before = moves();
        if (setting.less(unwrapped(value))) {
            m_against.insert(setting.key);
        } else {
            m_against.remove(setting.key);
        }
        if (moves() != before) {
            Q_EMIT changed();
        }
    }
}

} // namespace guide
