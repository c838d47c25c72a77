#include "alarms/AlarmMinutes.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace guide {

std::optional<long long> normalizedMinutes(double minutes) {
    if (std::isnan(minutes)) {
        return std::nullopt;
    }
    // The largest double below 2^63; larger ones do not fit into the result.
    constexpr double kLargest = 9223372036854774784.0;
    const auto rounded = static_cast<long long>(std::round(std::clamp(minutes, -kLargest, kLargest)));
    if (rounded < 0) {
        return std::nullopt;
    }
    if (minutes >= kAlarmMinutes.back() || std::ranges::find(kAlarmMinutes, rounded) != kAlarmMinutes.end()) {
        return rounded;
    }
    const auto upper = std::ranges::upper_bound(kAlarmMinutes, minutes);
    const auto lower = upper - 1;
    return minutes - *lower < *upper - minutes ? *lower : *upper;
}

} // namespace guide
