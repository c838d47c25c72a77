#pragma once

#include "platform/MediaSession.h"
#include "platform/queues/DispatchQueue.h"

#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QString>
#include <QVariantMap>

#include <memory>
#include <optional>

namespace guide {

/// Offers what is playing to the desktop as `org.mpris.MediaPlayer2`. On the bus only while something plays.
/// Main thread.
class MprisSession final : public MediaSession, private QDBusVirtualObject {
  public:
    /// Commands are called on the queue, which is the main queue.
    MprisSession(QDBusConnection bus, DispatchQueue& mainQueue);
    ~MprisSession() override;
    /// Null when the session has no bus.
    static std::unique_ptr<MprisSession> ofSession(DispatchQueue& mainQueue);

    void setCommands(MediaCommands commands) override;
    void setState(const std::optional<MediaSessionState>& state) override;

  private:
    // QDBusVirtualObject
    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

    QVariantMap rootProperties() const;
    QVariantMap playerProperties() const;
    QVariantMap propertiesOf(const QString& interface) const;
    bool setProperty(const QString& name, const QVariant& value);
    bool call(const QString& interface, const QString& method);
    void post(std::function<void()> command) const;
    void announceChanges(const QString& interface, const QVariantMap& before) const;
    void requestName(bool wanted) const;

    QDBusConnection m_bus;
    DispatchQueue& m_mainQueue;
    /// Null without commands.
    std::shared_ptr<const MediaCommands> m_commands;
    std::optional<MediaSessionState> m_state;
};

} // namespace guide
