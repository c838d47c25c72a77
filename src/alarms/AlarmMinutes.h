#pragma once

#include <array>

namespace guide {

/// The lead times that an alarm can have, in minutes before the show; -1 is none.
inline constexpr std::array kAlarmMinutes{-1, 0, 1, 2, 3, 5, 10, 15, 20, 30, 60, 120};

/// Snaps a number of minutes onto the scale: to the nearest point, the upper one when exactly midway. What
/// rounds to a point is that point, and from 120 up the rounded number stands, on the scale or not. Not a
/// number gives -1.
long long normalizedMinutes(double minutes);

} // namespace guide
