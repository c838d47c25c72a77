#pragma once

#include "parsers/formats/ListReader.h"
#include "sources/URLPlan.h"

namespace guide {

/// The Barrandov pages, of today and tomorrow: under a heading for each channel stand links to windows, and
/// the windows at the end of the page hold the shows.
void readBarrandovLists(const ListReaderInput& input, ParsedLists& lists);

/// Today and tomorrow.
PlannedURLs planBarrandovPages(const PlanRequest& request);

} // namespace guide
