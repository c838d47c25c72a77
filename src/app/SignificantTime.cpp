#include "app/SignificantTime.h"

#include <utility>

namespace guide {

namespace {

/// Shorter sleep is not noticeable to the user.
constexpr std::chrono::seconds kShortSleep{30};
/// How far the clock may deviate from the elapsed time before it counts as set.
constexpr std::chrono::seconds kClockDrift{30};

} // namespace

bool SignificantTime::changed(const Reading& reading) {
    const Reading last = std::exchange(m_last, reading);
    const auto passed = reading.sinceStart - last.sinceStart;
    const auto slept = passed - (reading.awake - last.awake);
    const auto drift = (reading.now - last.now) - passed;
    return reading.date != last.date || reading.zone != last.zone || slept > kShortSleep ||
           drift > kClockDrift || drift < -kClockDrift;
}

} // namespace guide
