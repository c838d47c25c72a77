#pragma once

#include "platform/Moment.h"

#include <optional>
#include <string_view>

namespace guide {

/// A moment as feeds write it: 14 digits from the year to the second, an optional blank, and the offset from
/// UTC: "Z", or a sign with hours, with minutes behind them ("+0130") or behind a colon ("+01:30"). Anything
/// else is no date: fields out of range, no offset, a zone's name, a character too many.
std::optional<Moment> parseXMLTVDate(std::string_view text);

} // namespace guide
