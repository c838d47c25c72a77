#pragma once

#include "parsers/formats/ListReader.h"
#include "sources/URLPlan.h"

namespace guide {

/// The JSON of the Port network. Reads the first page, which contains the days of one channel.
void readPortNetworkLists(const ListReaderInput& input, ParsedLists& lists);

/// One document with seven days, or four for some channels.
PlannedURLs planPortNetworkPage(const PlanRequest& request);

} // namespace guide
