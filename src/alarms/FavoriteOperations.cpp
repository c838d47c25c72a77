#include "alarms/FavoriteOperations.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <utility>

namespace guide {

namespace {

// What the undoing of a removal is worth to the counter of the title.
constexpr int kRestored = 1;

} // namespace

void FavoriteOperations::addFavorite(const QString& title) {
    const QString identificator = title.endsWith(u' ') ? title.chopped(1) : title;
    TVShows& shows = m_environment.shows;
    if (shows.snapshot()->containsFavoriteNamed(identificator)) {
        m_environment.favoritesUpdated();
        return;
    }
    std::vector<Favorite> rules = shows.favorites().value_or(std::vector<Favorite>());
    rules.push_back({identificator, {}, m_environment.clock.now(), {}});
    shows.setFavorites(std::move(rules));
    m_environment.favoritesUpdated();
    m_environment.counters.countAddedFavorite(identificator);
}

void FavoriteOperations::removeFavorites(const QStringList& titles) {
    TVShows& shows = m_environment.shows;
    QStringList known;
    // How many rules of each title to remove.
    QHash<QString, int> lowercased;
    for (const QString& title : titles) {
        if (shows.snapshot()->containsFavoriteNamed(title)) {
            known << title;
            ++lowercased[title.toLower()];
        }
    }
    if (known.isEmpty()) {
        return;
    }
    // While the rules still exist, so that their recurring alarms end.
    m_environment.alarmActions.removeAlarmsForTitles(known, true);
    std::vector<Favorite> rules = shows.favorites().value_or(std::vector<Favorite>());
    std::erase_if(rules, [&lowercased](const Favorite& rule) {
        const auto left = lowercased.find(rule.identificator.toLower());
        return left != lowercased.end() && (*left)-- > 0;
    });
    shows.setFavorites(std::move(rules));
    m_environment.alarmActions.removeAlarmsForTitles(known, false);
    m_environment.mainQueue.async(m_environment.favoritesUpdated);
    for (const QString& title : std::as_const(known)) {
        m_environment.counters.countRemovedFavorite(title);
    }
}

void FavoriteOperations::restoreFavorites(const FavoritesSnapshot& before, const QStringList& titles) {
    TVShows& shows = m_environment.shows;
    const auto current = shows.snapshot();
    shows.setFavorites(restoredFavorites(*current, before, titles));
    bool hasAlarms = false;
    for (const QString& title : titles) {
        const Favorite* rule = before.ruleNamed(title);
        if (!rule || current->containsFavoriteNamed(title)) {
            continue;
        }
        hasAlarms = hasAlarms || rule->minutes;
        m_environment.counters.incrementCounterByAmount(kRestored, rule->identificator);
    }
    if (hasAlarms) {
        m_environment.alarms.resynchronize();
    }
    m_environment.favoritesUpdated();
}

std::vector<Favorite> restoredFavorites(const FavoritesSnapshot& current, const FavoritesSnapshot& before,
                                        const QStringList& titles) {
    QSet<QString> restored;
    for (const QString& title : titles) {
        if (!current.containsFavoriteNamed(title)) {
            restored.insert(title.toLower());
        }
    }
    // The restored rules by the title of the rule that they follow; those at the beginning follow none. A
    // title may be empty.
    std::vector<Favorite> rules;
    QHash<QString, std::vector<Favorite>> following;
    // Used only until the next title is looked up, which may move the values.
    std::vector<Favorite>* place = &rules;
    for (const Favorite& rule : before.rules()) {
        const QString lowercased = rule.identificator.toLower();
        if (restored.contains(lowercased)) {
            place->push_back(rule);
        } else if (current.ruleNamed(lowercased)) {
            place = &following[lowercased];
        }
    }
    for (const Favorite& rule : current.rules()) {
        rules.push_back(rule);
        std::ranges::move(following.take(rule.identificator.toLower()), std::back_inserter(rules));
    }
    return rules;
}

} // namespace guide
