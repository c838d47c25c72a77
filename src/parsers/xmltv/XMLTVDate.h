#pragma once

#include "parsers/markers/ZoneClock.h"
#include "platform/Moment.h"

#include <optional>
#include <string_view>

namespace guide {

/// Parses 14 digits from year to second, an optional blank, and the offset from UTC: "Z", "+01", "+0130" or
/// "+01:30". Nothing for anything else: fields out of range, a zone name, trailing characters, and a missing
/// offset, unless there is a clock whose time it is then.
std::optional<Moment> parseXMLTVDate(std::string_view text, ZoneClock* withoutOffset = nullptr);

} // namespace guide
