#pragma once

#include "parsers/formats/ListReader.h"
#include "sources/URLPlan.h"

namespace guide {

/// The day pages of one country's Cinestar channels. The page that shows today determines the days of
/// the others. The first card of a channel is the show on air and has a different layout.
void readCinestarLists(const ListReaderInput& input, ParsedLists& lists);

/// Seven day pages; the site decides which day comes first.
PlannedURLs planCinestarPages(const PlanRequest& request);

} // namespace guide
