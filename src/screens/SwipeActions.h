#pragma once

#include "alarms/AlarmActions.h"
#include "alarms/Favorites.h"
#include "alarms/PendingAlarms.h"
#include "platform/Clock.h"
#include "screens/kit/Alert.h"
#include "screens/kit/RowAction.h"

#include <functional>
#include <memory>
#include <vector>

namespace guide {

/// The dependencies of the actions on shows. All of them must outlive the actions.
struct SwipeActionsEnvironment {
    const Clock& clock;
    const FavoritesSource& favorites;
    const AlarmsSource& alarms;
    AlarmActions& alarmActions;
    FavoriteActions& favoriteActions;
    std::function<void(Alert)> presentAlert;
};

/// The applicable actions on the row of a show: remove the alarm or the favourite, set an alarm, add a
/// favourite. Main queue.
std::vector<RowAction> swipeActions(const SwipeActionsEnvironment& environment,
                                    const std::shared_ptr<const TVEntry>& entry);

} // namespace guide
