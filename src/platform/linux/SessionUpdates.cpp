#include "platform/linux/SessionUpdates.h"

#include "platform/linux/SessionCalls.h"
#include "platform/linux/SessionFiles.h"

#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

const QString kTimer = u"quellin-guide-update.timer"_s;
const QString kUpdate = u"quellin-guide-update.service"_s;

} // namespace

/// On the queue only.
class SessionUpdates::Session {
  public:
    Session(std::optional<QDBusConnection> bus, QString templates, QString programs)
        : m_calls(std::move(bus))
        , m_files(std::move(templates), std::move(programs),
                  {{SessionFile::Kind::SystemdUnit, kUpdate},
                   {SessionFile::Kind::SystemdUnit, kTimer, u"timers.target"_s}}) {}

    State state() const {
        if (!m_calls.isRunning(kSystemdManager.service)) {
            return State::Unavailable;
        }
        return m_files.areInUse() ? State::On : State::Off;
    }

    bool setOn(bool on) const {
        if (!on) {
            changeTimer(u"StopUnit"_s);
        }
        const bool isDone = on ? m_files.write() : m_files.remove();
        m_calls.reloadFiles();
        if (on && isDone) {
            changeTimer(u"StartUnit"_s);
        }
        return isDone;
    }

    /// After the programs were moved.
    void refresh() const {
        if (m_files.areInUse() && m_files.areOfOtherPrograms() && m_files.write()) {
            m_calls.reloadFiles();
        }
    }

  private:
    void changeTimer(const QString& member) const {
        m_calls.call(kSystemdManager, member, {kTimer, u"replace"_s});
    }

    const SessionCalls m_calls;
    const SessionFiles m_files;
};

SessionUpdates::SessionUpdates(DispatchQueues& queues, std::optional<QDBusConnection> bus, QString templates,
                               QString programs)
    : m_mainQueue(queues.mainQueue())
    , m_queue(queues.makeQueue("backgroundUpdates", QueueKind::Serial, QueuePriority::Background))
    , m_session(std::make_shared<const Session>(std::move(bus), std::move(templates), std::move(programs))) {
    m_queue->async([session = m_session] { session->refresh(); });
}

SessionUpdates::~SessionUpdates() = default;

void SessionUpdates::state(MainBlock<State> mainBlock) {
    m_queue->async([session = m_session, &mainQueue = m_mainQueue, mainBlock]() mutable {
        mainBlock.post(mainQueue, session->state());
    });
}

void SessionUpdates::setOn(bool on, MainBlock<bool> mainBlock) {
    m_queue->async([session = m_session, &mainQueue = m_mainQueue, on, mainBlock]() mutable {
        mainBlock.post(mainQueue, session->setOn(on));
    });
}

} // namespace guide
