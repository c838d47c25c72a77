#pragma once

#include "parsers/formats/ListReader.h"
#include "sources/URLPlan.h"

namespace guide {

/// The day pages of one country's HBO channels, from yesterday on; each contains all channels in blocks
/// headed by their logos.
void readHBOLists(const ListReaderInput& input, ParsedLists& lists);

/// From yesterday to the 21st day from now.
PlannedURLs planHBOPages(const PlanRequest& request);

} // namespace guide
