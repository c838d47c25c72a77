#include "cloud/CloudSync.h"

#include "alarms/FavoritesFile.h"
#include "core/SelectionFile.h"

#include <QCborArray>

#include <algorithm>
#include <iterator>
#include <set>
#include <tuple>
#include <unordered_set>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kSelectedCalendarKey = "selectedCalendar"_L1;
constexpr auto kFavoritesKey = "Favorites"_L1;
constexpr auto kSelectedChannelsKey = "SelectedChannels"_L1;

/// Losing more rules than this to an empty list is told.
constexpr std::size_t kFewRules = 3;

/// Whether each of the rules is in the list. A date alone is no difference.
bool areIn(const std::vector<Favorite>& list, const std::vector<Favorite>& rules) {
    using Rule = std::tuple<QString, std::optional<int>, std::optional<bool>>;
    const auto ruleOf = [](const Favorite& favorite) {
        return Rule(favorite.identificator, favorite.minutes, favorite.previouslyShown);
    };
    std::set<Rule> present;
    std::ranges::transform(list, std::inserter(present, present.end()), ruleOf);
    return std::ranges::all_of(rules,
                               [&](const Favorite& favorite) { return present.contains(ruleOf(favorite)); });
}

/// Whether the channels are in the list, in their order.
bool areIn(const std::vector<ObjectId>& list, const std::vector<ObjectId>& channels) {
    auto channel = channels.begin();
    for (const ObjectId& each : list) {
        if (channel != channels.end() && *channel == each) {
            ++channel;
        }
    }
    return channel == channels.end();
}

} // namespace

void CloudSync::cloudDidChangeExternally(std::optional<Reason> reason) {
    if (reason == Reason::QuotaViolation) {
        return;
    }
    // What the store refused may succeed now.
    m_environment.shows.retryWriting();
    m_environment.channels.retryWriting();
    bool runsAlarms = takeCalendar();
    runsAlarms = takeFavorites() || runsAlarms;
    takeSelection();
    if (runsAlarms) {
        m_environment.alarmSynchronisation.syncAlarms();
        m_environment.favoritesUpdated();
    }
}

template <typename List>
Block CloudSync::keepUnlessIn(const List& present, const List& replaced) const {
    if (areIn(present, replaced)) {
        return {};
    }
    return [&lists = m_environment.replacedLists, replaced] { lists.keep(replaced); };
}

bool CloudSync::takeCalendar() {
    const auto value = m_environment.keyValueStore.valueForKey(kSelectedCalendarKey);
    const QString calendar = value ? value->toString() : QString();
    // A device with alarms stays with its calendar, in which they are.
    if (calendar.isEmpty() || m_environment.alarms.snapshot()->eventCount() > 0 ||
        m_environment.userDefaults.stringForKey(kSelectedCalendarKey) == calendar) {
        return false;
    }
    m_environment.userDefaults.setString(kSelectedCalendarKey, calendar);
    return true;
}

bool CloudSync::takeFavorites() {
    auto stored = m_environment.keyValueStore.valueForKey(kFavoritesKey);
    if (!stored || !stored->isArray()) {
        return false;
    }
    // The first reading may find a list that was not shared. A list that has been shared meanwhile is the one
    // that is stored now.
    const std::optional<std::vector<Favorite>> before = m_environment.shows.favorites();
    if (m_environment.shows.hasUnshared()) {
        return false;
    }
    stored = m_environment.keyValueStore.valueForKey(kFavoritesKey);
    if (!stored || !stored->isArray()) {
        return false;
    }
    std::optional<std::vector<Favorite>> rules = favoritesOfMirror(*stored);
    if (!rules) {
        return false;
    }
    // The contents of rules are not compared: only two empty lists need nothing.
    if (!before || !before->empty() || !stored->toArray().isEmpty()) {
        m_environment.alarmSynchronisation.setSynchronized(false);
        const bool isEmptied = rules->empty() && before && before->size() > kFewRules;
        Block kept = before ? keepUnlessIn(*rules, *before) : Block();
        m_environment.shows.takeFavorites(*std::move(rules), *stored, std::move(kept));
        if (isEmptied) {
            m_environment.favoritesEmptied(*before);
        }
    }
    return !m_environment.alarmSynchronisation.isSynchronized();
}

void CloudSync::takeSelection() {
    const std::vector<ObjectId> before = m_environment.channels.selected();
    if (m_environment.channels.hasUnshared()) {
        return;
    }
    const auto stored = m_environment.keyValueStore.valueForKey(kSelectedChannelsKey);
    if (!stored || stored->toArray().isEmpty()) {
        return;
    }
    const std::vector<ObjectId> selected = selectionOfValue(*stored).value_or(std::vector<ObjectId>());
    if (selected != before) {
        m_environment.channels.takeSelected(selected, *stored, keepUnlessIn(selected, before));
    }
    selectionChanged(before, selected);
}

void CloudSync::selectionChanged(const std::vector<ObjectId>& before, const std::vector<ObjectId>& now) {
    m_environment.mainQueue.async(m_environment.checkAndUpdateAllChannels);
    const std::unordered_set<ObjectId> staying(now.begin(), now.end());
    std::vector<ObjectId> leaving;
    std::ranges::copy_if(before, std::back_inserter(leaving),
                         [&staying](const ObjectId& channel) { return !staying.contains(channel); });
    if (!leaving.empty()) {
        m_environment.listings.removeListingsForChannels(std::move(leaving));
    }
    m_environment.alarmSynchronisation.setSynchronized(false);
    if (before != now) {
        m_environment.selectionReplaced();
    }
}

void CloudSync::restoreFavorites(std::vector<Favorite> rules) {
    TVShows& shows = m_environment.shows;
    const auto before = shows.favorites();
    Block kept = before ? keepUnlessIn(rules, *before) : Block();
    shows.setFavorites(std::move(rules), std::move(kept));
    m_environment.alarmSynchronisation.resynchronize();
    m_environment.favoritesUpdated();
}

void CloudSync::restoreSelection(const std::vector<ObjectId>& selected) {
    const std::vector<ObjectId> before = m_environment.channels.selected();
    if (selected == before) {
        return;
    }
    m_environment.channels.setSelected(selected, keepUnlessIn(selected, before));
    selectionChanged(before, selected);
    m_environment.alarmSynchronisation.syncAlarms();
}

} // namespace guide
