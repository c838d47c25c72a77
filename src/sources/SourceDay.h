#pragma once

#include "platform/Moment.h"

#include <QTimeZone>

namespace guide {

/// The last midnight up to `now`, be it on the device or in a country of the sources. What "today" is does
/// not change between two of these: a page may be dated by its place among the days that were asked for.
Moment sourceDayBegan(Moment now, const QTimeZone& deviceZone);

} // namespace guide
