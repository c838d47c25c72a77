#pragma once

#include <chrono>

namespace guide {

/// An absolute time in milliseconds. Only display uses the device's locale and zone.
using Moment = std::chrono::sys_time<std::chrono::milliseconds>;

} // namespace guide
