#pragma once

#include "parsers/formats/ListReader.h"
#include "sources/URLPlan.h"

namespace guide {

/// The Port network's JSON: the first page, with the days of one channel.
void readPortNetworkLists(const ListReaderInput& input, ParsedLists& lists);

/// One answer of seven days; of four for some channels.
PlannedURLs planPortNetworkPage(const PlanRequest& request);

} // namespace guide
