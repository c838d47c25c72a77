#pragma once

#include "platform/Device.h"

#include <chrono>
#include <mutex>

namespace guide {

/// Zone and locale are those of the session; a change of zone is visible within a second.
class LinuxDevice final : public Device {
  public:
    explicit LinuxDevice(UserInterfaceIdiom idiom);

    QTimeZone timeZone() const override;
    QLocale locale() const override;
    UserInterfaceIdiom userInterfaceIdiom() const override { return m_idiom; }
    QSizeF screenSize() const override;
    double screenScale() const override;
    std::uint64_t physicalMemory() const override { return m_physicalMemory; }

    /// Set by the owner of the window. Before that, the size is a typical one for the idiom.
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
