#pragma once

#include <array>
#include <optional>

namespace guide {

/// The lead times that a user can choose, in minutes before the show.
inline constexpr std::array kAlarmMinutes{0, 1, 2, 3, 5, 10, 15, 20, 30, 60, 120};

/// Snaps a number of minutes onto the scale: to the nearest point, the upper one when exactly midway. What
/// rounds to a point is that point, and from 120 up the rounded number stays, on the scale or not. Unset for
/// what rounds below 0 and for NaN: no alarm.
std::optional<long long> normalizedMinutes(double minutes);

} // namespace guide
