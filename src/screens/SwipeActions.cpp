#include "screens/SwipeActions.h"

#include "alarms/ShowActions.h"
#include "screens/Localized.h"

#include <utility>

namespace guide {

namespace {

Alert warning(const QString& message, const QString& confirmation, std::function<void()> confirmed) {
    return {Localized::tr("Warning"),
            message,
            {{confirmation, AlertAction::Style::Destructive, std::move(confirmed)},
             {Localized::tr("Cancel"), AlertAction::Style::Cancel}}};
}

QString messageOf(ShowActionQuestion question) {
    return question == ShowActionQuestion::IsRecurring
               ? Localized::tr("This is a recurring alarm. Are you sure?")
               : Localized::tr("This will also remove all alarms set on this show. Are you sure?");
}

struct Words {
    QString name;
    ColorRole color = ColorRole::Tint;
};

Words wordsOf(ShowAction action) {
    switch (action) {
    case ShowAction::RemoveAlarm:
        return {Localized::tr("Remove alarm"), ColorRole::Alarm};
    case ShowAction::RemoveFavorite:
        return {Localized::tr("Remove favorite"), ColorRole::Favourite};
    case ShowAction::SetAlarm:
        return {Localized::tr("Set alarm"), ColorRole::Tint};
    case ShowAction::AddFavorite:
        return {Localized::tr("Favourite"), ColorRole::Favourite};
    }
    return {};
}

} // namespace

std::vector<RowAction> swipeActions(const SwipeActionsEnvironment& environment,
                                    const std::shared_ptr<const TVEntry>& entry) {
    const auto favorites = environment.favorites.snapshot();
    const Favorite* rule = favorites->ruleNamed(entry->title().value_or(QString()));
    const ShowActionSituation situation{.now = environment.clock.now(),
                                        .isFavorite = rule != nullptr,
                                        .isAlarmed =
                                            environment.alarms.snapshot()->alarmedEntry(*entry).has_value(),
                                        .lastAlarmMinutes = environment.alarmActions.lastAlarmMinutes()};
    const bool isRecurring = rule && rule->minutes;

    std::vector<RowAction> actions;
    for (const ShowAction action : showActions(*entry, situation)) {
        const Words words = wordsOf(action);
        std::function<void()> perform = [action, entry, situation, &alarms = environment.alarmActions,
                                         &favourites = environment.favoriteActions] {
            performShowAction(action, *entry, situation, alarms, favourites);
        };
        const ShowActionQuestion question = questionBefore(action, isRecurring);
        if (question != ShowActionQuestion::None) {
            perform = [present = environment.presentAlert, question, name = words.name, perform] {
                present(warning(messageOf(question), name, perform));
            };
        }
        actions.push_back({symbolOf(action), words.name, words.color, std::move(perform)});
    }
    return actions;
}

} // namespace guide
