#pragma once

#include "parsers/formats/ListReader.h"
#include "sources/URLPlan.h"

namespace guide {

/// Dolce Sport: one page with a week of one channel, in seven tabs from Monday to Sunday.
void readDolceSportLists(const ListReaderInput& input, ParsedLists& lists);

/// One page of a week.
PlannedURLs planDolceSportPages(const PlanRequest& request);

} // namespace guide
