#include "platform/linux/SessionAlarmRinging.h"

#include "platform/files/FileContent.h"
#include "platform/files/FileReplacement.h"
#include "platform/files/PlayableChannels.h"
#include "platform/linux/SessionCalls.h"

#include <QDebug>
#include <QProcess>

#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

const QString kAgent = u"quellin-guide-agent"_s;
const QString kAgentName = u"net.quellin.GuideAgent"_s;

} // namespace

/// On the queue only.
class SessionAlarmRinging::Session {
  public:
    Session(std::optional<QDBusConnection> bus, Options options)
        : m_calls(std::move(bus))
        , m_options(std::move(options))
        , m_files(m_options.templates, m_options.programs,
                  {{SessionFile::Kind::Autostart, kAgent + ".desktop"_L1},
                   {SessionFile::Kind::SystemdUnit, kAgent + ".service"_L1},
                   {SessionFile::Kind::BusService, kAgentName + ".service"_L1},
                   {SessionFile::Kind::BusService, u"net.quellin.Guide.service"_s}}) {}

    AlarmRingingState state() const {
        AlarmRingingState state{.isOn = m_files.areInUse()};
        if (m_options.usesDesktop) {
            state.desktopRings = m_calls.isRunning(u"org.gnome.Evolution-alarm-notify"_s);
        }
        return state;
    }

    bool setOn(bool on) const {
        const bool isDone = on ? m_files.write() : m_files.remove();
        m_calls.reloadFiles();
        if (on && isDone) {
            start();
        } else if (!on) {
            m_calls.call({kAgentName, u"/net/quellin/GuideAgent"_s, kAgentName}, u"Quit"_s);
        }
        return isDone;
    }

    /// After the programs were moved.
    void refresh() const {
        if (m_files.areInUse() && m_files.areOfOtherPrograms()) {
            m_files.write();
        }
    }

    void setPlayableChannels(const QStringList& titles) const {
        const QByteArray text = PlayableChannels::text(titles);
        const QString& path = m_options.playableChannels;
        if (!path.isEmpty() && fileContent(path, PlayableChannels::kLargestText) != text &&
            !replaceFile(path, text)) {
            qWarning("%s cannot be written", qUtf8Printable(path));
        }
    }

  private:
    void start() const {
        const QDBusMessage reply = m_calls.call(kSessionBus, u"StartServiceByName"_s, {kAgentName, 0U});
        if (reply.type() != QDBusMessage::ReplyMessage) {
            QProcess::startDetached(m_options.programs + u'/' + kAgent, {});
        }
    }

    const SessionCalls m_calls;
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

void SessionAlarmRinging::setPlayableChannels(const QStringList& titles) {
    m_queue->async([session = m_session, titles] { session->setPlayableChannels(titles); });
}

} // namespace guide
