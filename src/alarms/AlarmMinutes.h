#pragma once

#include <array>
#include <optional>

namespace guide {

/// The lead times that a user can choose, in minutes before the show.
inline constexpr std::array kAlarmMinutes{0, 1, 2, 3, 5, 10, 15, 20, 30, 60, 120};

/// Snaps a number of minutes to the nearest point of the scale, the upper one when exactly midway. A number
/// that rounds to a point gives that point, and numbers from 120 up are only rounded. Unset, which means no
/// alarm, for NaN and for numbers that round below 0.
std::optional<long long> normalizedMinutes(double minutes);

} // namespace guide
