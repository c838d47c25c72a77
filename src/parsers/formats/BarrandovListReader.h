#pragma once

#include "parsers/formats/ListReader.h"
#include "sources/URLPlan.h"

namespace guide {

/// The Barrandov pages of today and tomorrow: each channel has a heading followed by links to windows, and
/// the windows at the end of the page contain the shows.
void readBarrandovLists(const ListReaderInput& input, ParsedLists& lists);

/// Today and tomorrow.
PlannedURLs planBarrandovPages(const PlanRequest& request);

} // namespace guide
