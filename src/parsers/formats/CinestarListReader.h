#pragma once

#include "parsers/formats/ListReader.h"
#include "sources/URLPlan.h"

namespace guide {

/// The day pages of one country's Cinestar channels. Which day a page shows follows from the one that shows
/// today; the first card of a channel is the show on air and laid out differently from the rest.
void readCinestarLists(const ListReaderInput& input, ParsedLists& lists);

/// A page for each day of a week; the site decides which day comes first.
PlannedURLs planCinestarPages(const PlanRequest& request);

} // namespace guide
