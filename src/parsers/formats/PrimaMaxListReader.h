#pragma once

#include "parsers/formats/ListReader.h"
#include "sources/URLPlan.h"

namespace guide {

/// The day pages of Prima Max, from today on; one channel. The text block of a show is split into
/// description, facts, director and cast.
void readPrimaMaxLists(const ListReaderInput& input, ParsedLists& lists);

/// Today and the three days after it.
PlannedURLs planPrimaMaxPages(const PlanRequest& request);

} // namespace guide
