#pragma once

#include "parsers/formats/ListReader.h"
#include "sources/URLPlan.h"

namespace guide {

/// Digi Sport: one page with fifteen tabs, one per day, each containing all channels headed by their logos.
/// The list of a channel is that of the last tab in which it has shows.
void readDigiSportLists(const ListReaderInput& input, ParsedLists& lists);

/// One page of 15 days.
PlannedURLs planDigiSportPage(const PlanRequest& request);

} // namespace guide
