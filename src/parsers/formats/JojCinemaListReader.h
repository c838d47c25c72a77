#pragma once

#include "parsers/formats/ListReader.h"
#include "sources/URLPlan.h"

namespace guide {

/// The day pages of JOJ Cinema, from yesterday on; one channel.
void readJojCinemaLists(const ListReaderInput& input, ParsedLists& lists);

/// Yesterday and the six days after it.
PlannedURLs planJojCinemaPages(const PlanRequest& request);

} // namespace guide
