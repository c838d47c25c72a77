#include "platform/linux/SessionAlarmRinging.h"

#include <QDBusMessage>
#include <QDBusReply>
#include <QProcess>

#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

const QString kAgent = u"quellin-guide-agent"_s;
const QString kAgentName = u"net.quellin.GuideAgent"_s;
constexpr int kLongestCall = 10'000;

struct BusObject {
    QString service;
    QString path;
    QString interface;
};
const BusObject kBus{u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s, u"org.freedesktop.DBus"_s};

} // namespace

/// On the queue only.
class SessionAlarmRinging::Session {
  public:
    Session(std::optional<QDBusConnection> bus, Options options)
        : m_bus(std::move(bus))
        , m_options(std::move(options))
        , m_files(m_options.templates, m_options.programs,
                  {{SessionFile::Kind::Autostart, kAgent + ".desktop"_L1},
                   {SessionFile::Kind::SystemdUnit, kAgent + ".service"_L1},
                   {SessionFile::Kind::BusService, kAgentName + ".service"_L1},
                   {SessionFile::Kind::BusService, u"net.quellin.Guide.service"_s}}) {}

    AlarmRingingState state() const {
        AlarmRingingState state{.isOn = m_files.areInUse()};
        if (m_options.usesDesktop) {
            const QDBusReply<bool> rings =
                call(kBus, u"NameHasOwner"_s, {u"org.gnome.Evolution-alarm-notify"_s});
            state.desktopRings = rings.isValid() && rings.value();
        }
        return state;
    }

    bool setOn(bool on) const {
        const bool isDone = on ? m_files.write() : m_files.remove();
        reload();
        if (on && isDone) {
            start();
        } else if (!on) {
            call({kAgentName, u"/net/quellin/GuideAgent"_s, kAgentName}, u"Quit"_s);
        }
        return isDone;
    }

    /// After the programs were moved.
    void refresh() const {
        if (m_files.areInUse() && m_files.areOfOtherPrograms()) {
            m_files.write();
        }
    }

  private:
    QDBusMessage call(const BusObject& object, const QString& member,
                      const QVariantList& arguments = {}) const {
        if (!m_bus) {
            return {};
        }
        QDBusMessage message =
            QDBusMessage::createMethodCall(object.service, object.path, object.interface, member);
        message.setArguments(arguments);
        message.setAutoStartService(false);
        return m_bus->call(message, QDBus::Block, kLongestCall);
    }

    /// Both look at their files by themselves only at times.
    void reload() const {
        call({u"org.freedesktop.systemd1"_s, u"/org/freedesktop/systemd1"_s,
              u"org.freedesktop.systemd1.Manager"_s},
             u"Reload"_s);
        call(kBus, u"ReloadConfig"_s);
    }

    void start() const {
        if (call(kBus, u"StartServiceByName"_s, {kAgentName, 0U}).type() != QDBusMessage::ReplyMessage) {
            QProcess::startDetached(m_options.programs + u'/' + kAgent, {});
        }
    }

    const std::optional<QDBusConnection> m_bus;
    const Options m_options;
    const SessionFiles m_files;
};

SessionAlarmRinging::SessionAlarmRinging(DispatchQueues& queues, std::optional<QDBusConnection> bus,
                                         Options options)
    : m_mainQueue(queues.mainQueue())
    , m_queue(queues.makeQueue("alarmRinging", QueueKind::Serial, QueuePriority::Background))
    , m_session(std::make_shared<const Session>(std::move(bus), std::move(options))) {
    m_queue->async([session = m_session] { session->refresh(); });
}

SessionAlarmRinging::~SessionAlarmRinging() = default;

void SessionAlarmRinging::state(MainBlock<AlarmRingingState> mainBlock) {
    m_queue->async([session = m_session, &mainQueue = m_mainQueue, mainBlock]() mutable {
        mainBlock.post(mainQueue, session->state());
    });
}

void SessionAlarmRinging::setOn(bool on, MainBlock<bool> mainBlock) {
    m_queue->async([session = m_session, &mainQueue = m_mainQueue, on, mainBlock]() mutable {
        mainBlock.post(mainQueue, session->setOn(on));
    });
}

} // namespace guide
