#pragma once

#include "sources/URLPlan.h"

// The URLs of the sources that serve XMLTV.

namespace guide {

/// "r." group "." channel: the file of the group on one of two mirrors, chosen at random at each call.
PlannedURLs planRytecFeed(const PlanRequest& request);
PlannedURLs planNFeed(const PlanRequest& request);
PlannedURLs planSFeed(const PlanRequest& request);
PlannedURLs planTVPCFeed(const PlanRequest& request);
/// The id is the URL.
PlannedURLs planDirectURL(const PlanRequest& request);
/// A file for each of seven days, from yesterday on.
PlannedURLs planBNetFiles(const PlanRequest& request);
/// A file for each of eleven days, from today on; the host of each is chosen at random at each call.
PlannedURLs planMojTVFiles(const PlanRequest& request);
/// One file for a week.
PlannedURLs planTVProfilFile(const PlanRequest& request);

} // namespace guide
