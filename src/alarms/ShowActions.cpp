#include "alarms/ShowActions.h"

namespace guide {

using namespace Qt::StringLiterals;

std::vector<ShowAction> showActions(const TVEntry& entry, const ShowActionSituation& situation) {
    std::vector<ShowAction> actions;
    if (!entry.identificator() || !entry.dateTime() || !entry.endDateTime()) {
        return actions;
    }
    if (situation.isAlarmed) {
        actions.push_back(ShowAction::RemoveAlarm);
    } else if (situation.isFavorite) {
        actions.push_back(ShowAction::RemoveFavorite);
    }
    const std::chrono::minutes lead(situation.lastAlarmMinutes);
    if (!situation.isAlarmed && *entry.dateTime() - lead >= situation.now) {
        actions.push_back(ShowAction::SetAlarm);
    }
    if (!situation.isFavorite) {
        actions.push_back(ShowAction::AddFavorite);
    }
    return actions;
}

QString symbolOf(ShowAction action) {
    switch (action) {
    case ShowAction::RemoveAlarm:
    case ShowAction::RemoveFavorite:
        return u"✖️"_s;
    case ShowAction::SetAlarm:
        return u"⏰"_s;
    case ShowAction::AddFavorite:
        return u"⭐"_s;
    }
    return {};
}

ShowActionQuestion questionBefore(ShowAction action, bool isRecurring) {
    if (action == ShowAction::RemoveFavorite) {
        return ShowActionQuestion::RemovesAlarms;
    }
    return action == ShowAction::RemoveAlarm && isRecurring ? ShowActionQuestion::IsRecurring
                                                            : ShowActionQuestion::None;
}

void performShowAction(ShowAction action, const TVEntry& entry, const ShowActionSituation& situation,
                       AlarmActions& alarmActions, FavoriteActions& favoriteActions) {
    const QString& identificator = *entry.identificator();
    switch (action) {
    case ShowAction::RemoveAlarm:
        alarmActions.removeAlarmForTitle(identificator, entry.channel(), *entry.dateTime(), true, true);
        break;
    case ShowAction::RemoveFavorite:
        favoriteActions.removeFavorite(entry.title().value_or(identificator));
        break;
    case ShowAction::SetAlarm:
        // A favourite that is added for the alarm is already counted, so the alarm is not.
        if (!situation.isFavorite) {
            favoriteActions.addFavorite(identificator);
        }
        alarmActions.setAlarmForTitle(identificator, entry.channel(), *entry.dateTime(), *entry.endDateTime(),
                                      situation.lastAlarmMinutes, true, situation.isFavorite);
        break;
    case ShowAction::AddFavorite:
        favoriteActions.addFavorite(identificator);
        break;
    }
}

} // namespace guide
