#pragma once

#include "screens/kit/TabBarController.h"
#include "screens/shell/ScreenEnvironment.h"

#include <memory>

namespace guide {

/// The tabs of the guide: Currently, Categories, Search, Schedule, Selected Channels, and on a tablet All
/// Shows ahead of these.
std::unique_ptr<TabBarController> makeGuideTabs(std::shared_ptr<const ScreenEnvironment> environment);

/// The tab of what is on now.
int currentlyTabIndex(UserInterfaceIdiom idiom);
/// The tab whose badge counts the alarms.
int scheduleTabIndex(UserInterfaceIdiom idiom);

} // namespace guide
