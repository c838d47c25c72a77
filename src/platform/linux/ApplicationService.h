#pragma once

#include "platform/queues/DispatchQueue.h"

#include <QByteArray>
#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

namespace guide {

/// Offers the running program to the desktop as `org.freedesktop.Application`, which opens addresses and
/// brings the window to the front. Main thread.
class ApplicationService final : public QDBusVirtualObject {
  public:
    /// `addresses` is empty when only the window is wanted. `activationToken` lets the window come to the
    /// front; it may be empty.
    using Handler = std::function<void(const QStringList& addresses, const QByteArray& activationToken)>;

    /// The handler is called on the queue, which is the main queue.
    ApplicationService(QDBusConnection bus, DispatchQueue& mainQueue, Handler handler);
    ~ApplicationService() override;
    /// Null when the session has no bus.
    static std::unique_ptr<ApplicationService> ofSession(DispatchQueue& mainQueue, Handler handler);

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

  private:
    QDBusConnection m_bus;
    DispatchQueue& m_mainQueue;
    /// Calls that are under way after the destruction do nothing.
    const std::shared_ptr<const Handler> m_handler;
};

} // namespace guide
