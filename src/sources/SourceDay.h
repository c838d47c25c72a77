#pragma once

#include "platform/Moment.h"

#include <QTimeZone>

namespace guide {

/// The last midnight up to `now`, on the device or in any country of the sources. "Today" does not change
/// between two such midnights, so a page can be dated by its position among the requested days.
Moment startOfSourceDay(Moment now, const QTimeZone& deviceZone);

} // namespace guide
