#include "platform/linux/MprisSession.h"

#include "platform/linux/SessionBus.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCall>
#include <QDBusVariant>
#include <QGuiApplication>

#include <algorithm>
#include <cmath>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

const QString kPath = u"/org/mpris/MediaPlayer2"_s;
const QString kRoot = u"org.mpris.MediaPlayer2"_s;
const QString kPlayer = u"org.mpris.MediaPlayer2.Player"_s;
const QString kProperties = u"org.freedesktop.DBus.Properties"_s;

constexpr const char* kIntrospection = R"(
<interface name="org.mpris.MediaPlayer2">
  <method name="Raise"/><method name="Quit"/>
  <property name="CanQuit" type="b" access="read"/>
  <property name="CanRaise" type="b" access="read"/>
  <property name="Fullscreen" type="b" access="readwrite"/>
  <property name="CanSetFullscreen" type="b" access="read"/>
  <property name="HasTrackList" type="b" access="read"/>
  <property name="Identity" type="s" access="read"/>
  <property name="DesktopEntry" type="s" access="read"/>
  <property name="SupportedUriSchemes" type="as" access="read"/>
  <property name="SupportedMimeTypes" type="as" access="read"/>
</interface>
<interface name="org.mpris.MediaPlayer2.Player">
  <method name="Next"/><method name="Previous"/><method name="Pause"/><method name="PlayPause"/>
  <method name="Stop"/><method name="Play"/>
  <property name="PlaybackStatus" type="s" access="read"/>
  <property name="Rate" type="d" access="readwrite"/>
  <property name="MinimumRate" type="d" access="read"/>
  <property name="MaximumRate" type="d" access="read"/>
  <property name="Metadata" type="a{sv}" access="read"/>
  <property name="Volume" type="d" access="readwrite"/>
  <property name="Position" type="x" access="read"/>
  <property name="CanGoNext" type="b" access="read"/>
  <property name="CanGoPrevious" type="b" access="read"/>
  <property name="CanPlay" type="b" access="read"/>
  <property name="CanPause" type="b" access="read"/>
  <property name="CanSeek" type="b" access="read"/>
  <property name="CanControl" type="b" access="read"/>
</interface>
)";

} // namespace

MprisSession::MprisSession(QDBusConnection bus, DispatchQueue& mainQueue)
    : m_bus(std::move(bus))
    , m_mainQueue(mainQueue) {}

MprisSession::~MprisSession() {
    setState(std::nullopt);
}

std::unique_ptr<MprisSession> MprisSession::ofSession(DispatchQueue& mainQueue) {
    const std::optional<QDBusConnection> bus = sessionBus();
    return bus ? std::make_unique<MprisSession>(*bus, mainQueue) : nullptr;
}

void MprisSession::setCommands(MediaCommands commands) {
    m_commands = std::make_shared<const MediaCommands>(std::move(commands));
}

void MprisSession::setState(const std::optional<MediaSessionState>& state) {
    if (state == m_state) {
        return;
    }
    const bool wasOffered = m_state.has_value();
    const QVariantMap root = rootProperties();
    const QVariantMap player = playerProperties();
    m_state = state;
    if (!state) {
        requestName(false);
        m_bus.unregisterObject(kPath);
    } else if (!wasOffered) {
        m_bus.registerVirtualObject(kPath, this);
        requestName(true);
    } else {
        announceChanges(kRoot, root);
        announceChanges(kPlayer, player);
    }
}

// Without waiting for the answer: a player without this name is merely not seen.
void MprisSession::requestName(bool wanted) const {
    QDBusMessage request = QDBusMessage::createMethodCall(
        u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s, u"org.freedesktop.DBus"_s,
        wanted ? u"RequestName"_s : u"ReleaseName"_s);
    // Guides with other profiles may play something too.
    request << u"%1.quellin_guide.instance%2"_s.arg(kRoot).arg(QCoreApplication::applicationPid());
    if (wanted) {
        request << 0U;
    }
    m_bus.asyncCall(request);
}

void MprisSession::announceChanges(const QString& interface, const QVariantMap& before) const {
    QVariantMap changed = propertiesOf(interface);
    for (auto property = before.begin(); property != before.end(); ++property) {
        if (changed.value(property.key()) == property.value()) {
            changed.remove(property.key());
        }
    }
    if (!changed.isEmpty()) {
        QDBusMessage signal = QDBusMessage::createSignal(kPath, kProperties, u"PropertiesChanged"_s);
        signal << interface << changed << QStringList();
        m_bus.send(signal);
    }
}

QVariantMap MprisSession::rootProperties() const {
    return {{u"CanQuit"_s, false},
            {u"CanRaise"_s, true},
            {u"Fullscreen"_s, m_state && m_state->fullScreen},
            {u"CanSetFullscreen"_s, true},
            {u"HasTrackList"_s, false},
            {u"Identity"_s, QGuiApplication::applicationDisplayName()},
            {u"DesktopEntry"_s, QGuiApplication::desktopFileName()},
            {u"SupportedUriSchemes"_s, QStringList()},
            {u"SupportedMimeTypes"_s, QStringList()}};
}

QVariantMap MprisSession::playerProperties() const {
    const MediaSessionState state = m_state.value_or(MediaSessionState());
    const QVariantMap metadata{
        {u"mpris:trackid"_s, QVariant::fromValue(QDBusObjectPath(u"/net/quellin/Guide/stream"_s))},
        {u"xesam:title"_s, state.title.isEmpty() ? state.channel : state.title},
        {u"xesam:artist"_s, QStringList{state.channel}}};
    return {{u"PlaybackStatus"_s, !m_state       ? u"Stopped"_s
                                  : state.paused ? u"Paused"_s
                                                 : u"Playing"_s},
            {u"Rate"_s, 1.0},
            {u"MinimumRate"_s, 1.0},
            {u"MaximumRate"_s, 1.0},
            {u"Metadata"_s, metadata},
            {u"Volume"_s, state.volume},
            {u"Position"_s, qlonglong(0)},
            {u"CanGoNext"_s, state.canChangeChannel},
            {u"CanGoPrevious"_s, state.canChangeChannel},
            {u"CanPlay"_s, true},
            {u"CanPause"_s, true},
            {u"CanSeek"_s, false},
            {u"CanControl"_s, true}};
}

QVariantMap MprisSession::propertiesOf(const QString& interface) const {
    return interface == kRoot ? rootProperties() : interface == kPlayer ? playerProperties() : QVariantMap();
}

QString MprisSession::introspect(const QString& /*path*/) const {
    return QString::fromLatin1(kIntrospection);
}

bool MprisSession::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    const QList<QVariant> arguments = message.arguments();
    const QString member = message.member();
    if (message.interface() != kProperties) {
        return call(message.interface(), member) && connection.send(message.createReply());
    }
    const QString interface = arguments.value(0).toString();
    const QVariantMap properties = propertiesOf(interface);
    if (properties.isEmpty()) {
        return false;
    }
    if (member == "GetAll"_L1) {
        return connection.send(message.createReply(QVariant(properties)));
    }
    const QString name = arguments.value(1).toString();
    if (member == "Get"_L1 && properties.contains(name)) {
        return connection.send(
            message.createReply(QVariant::fromValue(QDBusVariant(properties.value(name)))));
    }
    if (member == "Set"_L1 && properties.contains(name) &&
        setProperty(name, arguments.value(2).value<QDBusVariant>().variant())) {
        return connection.send(message.createReply());
    }
    return false;
}

bool MprisSession::setProperty(const QString& name, const QVariant& value) {
    if (name == "Volume"_L1) {
        const double volume = value.toDouble();
        if (std::isfinite(volume)) {
            post([commands = m_commands, volume] { commands->setVolume(std::clamp(volume, 0.0, 1.0)); });
        }
    } else if (name == "Fullscreen"_L1) {
        post([commands = m_commands, fullScreen = value.toBool()] { commands->setFullScreen(fullScreen); });
    } else {
        // The rate may be set, but not to another value.
        return name == "Rate"_L1;
    }
    return true;
}

bool MprisSession::call(const QString& interface, const QString& method) {
    if (interface == kRoot) {
        if (method == "Raise"_L1) {
            post([commands = m_commands] {
                if (commands->raise) {
                    commands->raise();
                }
            });
        }
        return method == "Raise"_L1 || method == "Quit"_L1;
    }
    if (method == "PlayPause"_L1) {
        post([commands = m_commands] { commands->togglePaused(); });
    } else if (method == "Play"_L1 || method == "Pause"_L1) {
        post([commands = m_commands, paused = method == "Pause"_L1] { commands->setPaused(paused); });
    } else if (method == "Next"_L1 || method == "Previous"_L1) {
        post([commands = m_commands, by = method == "Next"_L1 ? 1 : -1] { commands->changeChannel(by); });
    } else if (method == "Stop"_L1) {
        post([commands = m_commands] { commands->stop(); });
    } else {
        return false;
    }
    return true;
}

void MprisSession::post(std::function<void()> command) const {
    if (m_commands) {
        m_mainQueue.async(std::move(command));
    }
}

} // namespace guide
