#pragma once

#include "parsers/formats/ListReader.h"
#include "sources/URLPlan.h"

namespace guide {

/// The day pages of the Nova group: each contains all channels of the group in blocks headed by their logos.
void readNovaLists(const ListReaderInput& input, ParsedLists& lists);

/// Yesterday and the eight days after it.
PlannedURLs planNovaPages(const PlanRequest& request);

} // namespace guide
