#include "app/DeviceWatch.h"

#include <QDateTime>
#include <QFile>

#include <ctime>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::seconds kPollEvery{20};

std::chrono::milliseconds timeOf(clockid_t clock) {
    timespec time{};
    clock_gettime(clock, &time);
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::seconds(time.tv_sec) +
                                                                 std::chrono::nanoseconds(time.tv_nsec));
}

SignificantTime::Reading readClocks(const Clock& clock, const Device& device) {
    const Moment now = clock.now();
    const QTimeZone zone = device.timeZone();
    return {now, QDateTime::fromMSecsSinceEpoch(now.time_since_epoch().count(), zone).date(), zone.id(),
            timeOf(CLOCK_BOOTTIME), timeOf(CLOCK_MONOTONIC)};
}

/// The kernel's report on the machine's memory; empty where there is no such file.
QByteArray memoryInformation() {
    QFile file(u"/proc/meminfo"_s);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

DeviceWatch::DeviceWatch(const Clock& clock, const Device& device, const ApplicationStateSource& state,
                         LifeCycleObserver& observer)
    : m_clock(clock)
    , m_device(device)
    , m_state(state)
    , m_observer(observer)
    , m_time(readClocks(clock, device)) {
    m_timer.callOnTimeout([this] { poll(); });
}

void DeviceWatch::start() {
    m_timer.start(kPollEvery);
}

void DeviceWatch::poll() {
    if (const auto available = availableMemory(memoryInformation()); available && m_memory.due(*available)) {
        m_observer.applicationDidReceiveMemoryWarning();
    }
    // After a change in the background, the next activation updates everything.
    if (m_time.changed(readClocks(m_clock, m_device)) &&
        m_state.applicationState() == ApplicationState::Active) {
        m_observer.applicationSignificantTimeChange();
    }
}

} // namespace guide
