#pragma once

#include "parsers/formats/ListReader.h"
#include "sources/URLPlan.h"

namespace guide {

/// Comedy Central Romania: the pages of one channel's list, with times in seconds since 1970.
void readComedyCentralLists(const ListReaderInput& input, ParsedLists& lists);

/// Seven numbered pages.
PlannedURLs planComedyCentralPages(const PlanRequest& request);

} // namespace guide
