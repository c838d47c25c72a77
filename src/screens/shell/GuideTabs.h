#pragma once

#include "screens/kit/TabBarController.h"
#include "screens/shell/ScreenEnvironment.h"

#include <memory>

namespace guide {

/// The tabs of the guide: Currently, Categories, Search, Schedule and Selected Channels; on a tablet All
/// Shows comes first.
std::unique_ptr<TabBarController> makeGuideTabs(const std::shared_ptr<const ScreenEnvironment>& environment);

/// The index of the tab with what is on now.
int currentlyTabIndex(UserInterfaceIdiom idiom);
/// The index of the tab whose badge counts the alarms.
int scheduleTabIndex(UserInterfaceIdiom idiom);

} // namespace guide
