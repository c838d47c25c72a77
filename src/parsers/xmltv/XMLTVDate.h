#pragma once

#include "platform/Moment.h"

#include <optional>
#include <string_view>

namespace guide {

/// What a time without an offset from UTC means.
enum class MissingZone { Invalid, UTC };

/// Parses 14 digits from year to second, an optional blank, and the offset from UTC: "Z", "+01", "+0130" or
/// "+01:30". Nothing for anything else: fields out of range, a missing offset unless it means UTC, a zone
/// name, trailing characters.
std::optional<Moment> parseXMLTVDate(std::string_view text, MissingZone withoutZone = MissingZone::Invalid);

} // namespace guide
