#pragma once

#include "platform/BackgroundUpdates.h"
#include "platform/queues/DispatchQueue.h"

#include <QDBusConnection>
#include <QString>

#include <memory>
#include <optional>

namespace guide {

/// Updates by a timer of the user's systemd, which starts the guide without a window.
class SessionUpdates final : public BackgroundUpdates {
  public:
    /// `bus` is that of the session. `templates` and `programs` are folders: of the templates of the
    /// session's files, and of the guide.
    SessionUpdates(DispatchQueues& queues, std::optional<QDBusConnection> bus, QString templates,
                   QString programs);
    ~SessionUpdates() override;

    void state(MainBlock<State> mainBlock) override;
    void setOn(bool on, MainBlock<bool> mainBlock) override;

  private:
    class Session;

    DispatchQueue& m_mainQueue;
    const std::shared_ptr<DispatchQueue> m_queue;
    const std::shared_ptr<const Session> m_session;
};

} // namespace guide
