#include "platform/linux/LinuxDevice.h"

#include <unistd.h>

namespace guide {

namespace {

constexpr QSizeF kPhoneScreen{390, 844};
constexpr QSizeF kTabletScreen{1024, 768};
// Cached because the look-up reads files and rows need the zone often.
constexpr std::chrono::seconds kTimeZoneAge{1};

std::uint64_t installedMemory() {
    const long pages = ::sysconf(_SC_PHYS_PAGES);
    const long pageSize = ::sysconf(_SC_PAGESIZE);
    return pages > 0 && pageSize > 0
               ? static_cast<std::uint64_t>(pages) * static_cast<std::uint64_t>(pageSize)
               : std::uint64_t{1} << 30;
}

} // namespace

LinuxDevice::LinuxDevice(UserInterfaceIdiom idiom)
    : m_idiom(idiom)
    , m_physicalMemory(installedMemory())
    , m_screenSize(idiom == UserInterfaceIdiom::Phone ? kPhoneScreen : kTabletScreen) {}

QTimeZone LinuxDevice::timeZone() const {
    const auto now = std::chrono::steady_clock::now();
    const std::lock_guard lock(m_mutex);
    if (!m_timeZone.isValid() || now - m_timeZoneReadAt >= kTimeZoneAge) {
        m_timeZone = QTimeZone::systemTimeZone();
        m_timeZoneReadAt = now;
    }
    return m_timeZone;
}

QLocale LinuxDevice::locale() const {
    const QLocale system = QLocale::system();
    // The formats of the "C" locale are not meant for display.
    return system.language() == QLocale::C ? QLocale(QLocale::English, QLocale::UnitedKingdom) : system;
}

QSizeF LinuxDevice::screenSize() const {
    const std::lock_guard lock(m_mutex);
    return m_screenSize;
}

double LinuxDevice::screenScale() const {
    const std::lock_guard lock(m_mutex);
    return m_screenScale;
}

void LinuxDevice::setScreen(const QSizeF& size, double scale) {
    const std::lock_guard lock(m_mutex);
    m_screenSize = size;
    m_screenScale = scale;
}

} // namespace guide
