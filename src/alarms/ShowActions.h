#pragma once

#include "alarms/AlarmActions.h"
#include "store/TVEntry.h"

#include <QString>

#include <vector>

namespace guide {

/// What a user can do to the alarm of a show and to its title.
enum class ShowAction { RemoveAlarm, RemoveFavorite, SetAlarm, AddFavorite };

/// What decides about the actions on a show.
struct ShowActionSituation {
    Moment now;
    /// Whether its title is a favourite.
    bool isFavorite = false;
    bool isAlarmed = false;
    /// The lead time of a new alarm.
    int lastAlarmMinutes = 0;
};

/// The applicable actions, in the order of display; none on a show without a title, start or end.
std::vector<ShowAction> showActions(const TVEntry& entry, const ShowActionSituation& situation);

QString symbolOf(ShowAction action);

/// What the user is asked before the action.
enum class ShowActionQuestion {
    None,
    /// The alarm is one of a recurring alarm.
    IsRecurring,
    /// All alarms of the title go with the favourite.
    RemovesAlarms,
};
ShowActionQuestion questionBefore(ShowAction action, bool isRecurring);

/// The show must have a title, start and end. Main queue.
void performShowAction(ShowAction action, const TVEntry& entry, const ShowActionSituation& situation,
                       AlarmActions& alarmActions, FavoriteActions& favoriteActions);

} // namespace guide
