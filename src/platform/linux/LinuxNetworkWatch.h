#pragma once

#include "platform/NetworkWatch.h"
#include "platform/linux/FileDescriptor.h"

#include <QByteArrayView>
#include <QSocketNotifier>

#include <memory>

namespace guide {

/// Whether one of the kernel's routing messages announces a new default route.
bool announcesDefaultRoute(QByteArrayView messages);

/// Receives the kernel's announcements of routes; costs nothing while none changes. Where it may not receive
/// them, it never reports a network. Needs an event loop.
class LinuxNetworkWatch final : public NetworkWatch {
  public:
    LinuxNetworkWatch();
    void watch(std::function<void()> appeared) override;

  private:
    void receive();

    FileDescriptor m_socket;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::function<void()> m_appeared;
};

} // namespace guide
