#pragma once

#include "parsers/formats/ListReader.h"
#include "sources/URLPlan.h"

namespace guide {

/// Digi Sport: one page with fifteen tabs, a day each, that hold all channels, each headed by its logo. A
/// channel's list is that of the last tab in which it has shows.
void readDigiSportLists(const ListReaderInput& input, ParsedLists& lists);

/// One page of 15 days.
PlannedURLs planDigiSportPage(const PlanRequest& request);

} // namespace guide
