#pragma once

#include "platform/Device.h"

#include <chrono>
#include <mutex>

namespace guide {

/// This machine. Zone and locale are the session's; a change of zone shows within a second.
class LinuxDevice final : public Device {
  public:
    explicit LinuxDevice(UserInterfaceIdiom idiom);

    QTimeZone timeZone() const override;
    QLocale locale() const override;
    UserInterfaceIdiom userInterfaceIdiom() const override { return m_idiom; }
    QSizeF screenSize() const override;
    double screenScale() const override;
    std::uint64_t physicalMemory() const override { return m_physicalMemory; }

    /// Told by whoever has the window. Until then the screen is of a size that is usual for the idiom.
    void setScreen(const QSizeF& size, double scale);

  private:
    const UserInterfaceIdiom m_idiom;
    const std::uint64_t m_physicalMemory;
    mutable std::mutex m_mutex;
    QSizeF m_screenSize;
    double m_screenScale = 1;
    mutable QTimeZone m_timeZone;
    mutable std::chrono::steady_clock::time_point m_timeZoneReadAt;
};

} // namespace guide
