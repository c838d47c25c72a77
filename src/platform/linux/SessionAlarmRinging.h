#pragma once

#include "platform/AlarmRinging.h"
#include "platform/linux/SessionFiles.h"
#include "platform/queues/DispatchQueue.h"

#include <QDBusConnection>
#include <QString>

#include <memory>
#include <optional>

namespace guide {

/// Rings by a program of its own that the session starts.
class SessionAlarmRinging final : public AlarmRinging {
  public:
    struct Options {
        /// The templates of the session's files.
        QString templates;
        /// The folder of the agent.
        QString programs;
        /// Tells the agent which channels can be played.
        QString playableChannels;
        /// The alarms are in calendars of the desktop, which may ring by themselves.
        bool usesDesktop = false;
    };

    /// `bus` is that of the session; without one, the agent starts with the next session.
    SessionAlarmRinging(DispatchQueues& queues, std::optional<QDBusConnection> bus, Options options);
    ~SessionAlarmRinging() override;

    void state(MainBlock<AlarmRingingState> mainBlock) override;
    void setOn(bool on, MainBlock<bool> mainBlock) override;
    void setPlayableChannels(const QStringList& titles) override;

  private:
    class Session;

    DispatchQueue& m_mainQueue;
    const std::shared_ptr<DispatchQueue> m_queue;
    const std::shared_ptr<const Session> m_session;
};

} // namespace guide
