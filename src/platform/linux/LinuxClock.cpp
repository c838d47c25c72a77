#include "platform/linux/LinuxClock.h"

#include <ctime>

namespace guide {

namespace {

/// Time since boot, including sleep; unaffected by changes to the system time.
std::chrono::milliseconds sinceBoot() {
    timespec time{};
    clock_gettime(CLOCK_BOOTTIME, &time);
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::seconds(time.tv_sec) +
                                                                 std::chrono::nanoseconds(time.tv_nsec));
}

} // namespace

LinuxClock::LinuxClock(std::optional<Moment> startAt)
    : m_startAt(startAt)
    , m_started(sinceBoot()) {}

Moment LinuxClock::now() const {
    if (m_startAt) {
        return *m_startAt + (sinceBoot() - m_started);
    }
    return std::chrono::floor<std::chrono::milliseconds>(std::chrono::system_clock::now());
}

} // namespace guide
