#include "agent/WallClockTimer.h"

#include <QDebug>

#include <cerrno>
#include <cstdint>
#include <ctime>
#include <sys/timerfd.h>
#include <unistd.h>
#include <utility>

namespace guide {

WallClockTimer::WallClockTimer(std::function<void(bool)> woken)
    : m_woken(std::move(woken))
    , m_timer(::timerfd_create(CLOCK_REALTIME, TFD_NONBLOCK | TFD_CLOEXEC)) {
    if (!m_timer) {
        qCritical("the system has no timer");
        return;
    }
    m_notifier = std::make_unique<QSocketNotifier>(m_timer.get(), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { read(); });
}

void WallClockTimer::set(Moment at) {
    // Zero would disarm the timer.
    const std::int64_t milliseconds = std::max<std::int64_t>(at.time_since_epoch().count(), 1);
    itimerspec time{};
    time.it_value.tv_sec = static_cast<std::time_t>(milliseconds / 1'000);
    time.it_value.tv_nsec = static_cast<long>(milliseconds % 1'000) * 1'000'000;
    // The answer that the clock was set comes with the next reading, if it was set just now.
    if (::timerfd_settime(m_timer.get(), TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &time, nullptr) != 0 &&
        errno != ECANCELED) {
        qCritical("the timer cannot be set");
    }
}

void WallClockTimer::read() {
    std::uint64_t expirations = 0;
    const bool isRead = ::read(m_timer.get(), &expirations, sizeof expirations) == sizeof expirations;
    if (!isRead && errno != ECANCELED) {
        return;
    }
    m_woken(!isRead);
}

} // namespace guide
