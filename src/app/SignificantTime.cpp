#include "app/SignificantTime.h"

#include <utility>

namespace guide {

namespace {

/// Less sleep than that is none that a person would notice.
constexpr std::chrono::seconds kShortSleep{30};
/// How far the clock may run from the time that has passed before it counts as set.
constexpr std::chrono::seconds kClockDrift{30};

} // namespace

bool SignificantTime::changed(const Look& look) {
    const Look last = std::exchange(m_last, look);
    const auto passed = look.sinceStart - last.sinceStart;
    const auto slept = passed - (look.awake - last.awake);
    const auto drift = (look.now - last.now) - passed;
    return look.date != last.date || look.zone != last.zone || slept > kShortSleep || drift > kClockDrift ||
           drift < -kClockDrift;
}

} // namespace guide
