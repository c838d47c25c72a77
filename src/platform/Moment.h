#pragma once

#include <chrono>

namespace guide {

/// An absolute time, to the millisecond. Display goes through the device's locale and zone.
using Moment = std::chrono::sys_time<std::chrono::milliseconds>;

} // namespace guide
