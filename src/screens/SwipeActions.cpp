#include "screens/SwipeActions.h"

#include "screens/Localized.h"

#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

Alert warning(const QString& message, const QString& confirmation, std::function<void()> confirmed) {
    return {Localized::tr("Warning"),
            message,
            {{confirmation, AlertAction::Style::Destructive, std::move(confirmed)},
             {Localized::tr("Cancel"), AlertAction::Style::Cancel}}};
}

} // namespace

std::vector<RowAction> swipeActions(const SwipeActionsEnvironment& environment,
                                    const std::shared_ptr<const TVEntry>& entry) {
    const std::optional<QString>& identificator = entry->identificator();
    if (!identificator || !entry->dateTime() || !entry->endDateTime()) {
        return {};
    }
    const auto favorites = environment.favorites.snapshot();
    const Favorite* rule = favorites->ruleNamed(entry->title().value_or(QString()));
    const bool isAlarmed = environment.alarms.snapshot()->alarmedEntry(*entry).has_value();
    AlarmActions& alarmActions = environment.alarmActions;
    FavoriteActions& favoriteActions = environment.favoriteActions;

    std::vector<RowAction> actions;
    if (isAlarmed) {
        const auto removeAlarm = [&alarmActions, entry] {
            alarmActions.removeAlarmForTitle(*entry->identificator(), entry->channel(), *entry->dateTime(),
                                             true, true);
        };
        const bool isRecurring = rule && rule->minutes;
        std::function<void()> action = removeAlarm;
        if (isRecurring) {
            action = [present = environment.presentAlert, removeAlarm] {
                present(warning(Localized::tr("This is a recurring alarm. Are you sure?"),
                                Localized::tr("Remove alarm"), removeAlarm));
            };
        }
        actions.push_back({u"✖️"_s, Localized::tr("Remove alarm"), ColorRole::Alarm, std::move(action)});
    } else if (rule) {
        actions.push_back(
            {u"✖️"_s, Localized::tr("Remove favorite"), ColorRole::Favourite,
             [present = environment.presentAlert, &favoriteActions, title = rule->identificator] {
                 present(warning(
                     Localized::tr("This will also remove all alarms set on this show. Are you sure?"),
                     Localized::tr("Remove favorite"),
                     [&favoriteActions, title] { favoriteActions.removeFavorite(title); }));
             }});
    }

    const std::chrono::minutes lead{alarmActions.lastAlarmMinutes()};
    if (!isAlarmed && *entry->dateTime() - lead >= environment.clock.now()) {
        // A favourite that is added for the alarm is already counted, so the alarm is not.
        const bool wasFavorite = rule != nullptr;
        actions.push_back({u"⏰"_s, Localized::tr("Set alarm"), ColorRole::Tint,
                           [&alarmActions, &favoriteActions, entry, lead, wasFavorite] {
                               if (!wasFavorite) {
                                   favoriteActions.addFavorite(*entry->identificator());
                               }
                               alarmActions.setAlarmForTitle(
                                   *entry->identificator(), entry->channel(), *entry->dateTime(),
                                   *entry->endDateTime(), static_cast<int>(lead.count()), true, wasFavorite);
                           }});
    }
    if (!rule) {
        actions.push_back(
            {u"⭐"_s, Localized::tr("Favourite"), ColorRole::Favourite,
             [&favoriteActions, title = *identificator] { favoriteActions.addFavorite(title); }});
    }
    return actions;
}

} // namespace guide
