#include "cloud/UserData.h"

#include "alarms/SilentHours.h"
#include "cloud/EarlierExport.h"
#include "platform/files/FileReplacement.h"

#include <QDebug>
#include <QSet>

#include <algorithm>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kSelectedCalendarKey = "selectedCalendar"_L1;
constexpr auto kLastAlarmMinutesKey = "lastAlarmMinutes"_L1;

/// In the order of their lowercased titles, compared in decomposed form.
std::vector<const Favorite*> sortedByTitle(const std::vector<Favorite>& rules) {
    std::vector<std::pair<QString, const Favorite*>> keyed;
    keyed.reserve(rules.size());
    for (const Favorite& rule : rules) {
        keyed.emplace_back(rule.identificator.toLower().normalized(QString::NormalizationForm_D), &rule);
    }
    std::ranges::stable_sort(keyed, {}, [](const auto& each) -> const QString& { return each.first; });
    std::vector<const Favorite*> sorted;
    std::ranges::transform(keyed, std::back_inserter(sorted), [](const auto& each) { return each.second; });
    return sorted;
}

} // namespace

UserData::UserData(UserDataEnvironment environment)
    : m_environment(std::move(environment))
    , m_queue(m_environment.queues.makeQueue("userData", QueueKind::Serial, QueuePriority::UserInitiated)) {}

QByteArray UserData::exportedText() const {
    QString text = u"Selected channels:\r\n"_s;
    const SharedCatalogueSnapshot catalogue = m_environment.catalogue.snapshot();
    for (const ObjectId& id : m_environment.channels.selected()) {
        const CatalogueChannel* channel = catalogue->find(id);
        text += u'\t' + (channel && !channel->title.isEmpty() ? channel->title : id.hex()) + u"\r\n"_s;
    }
    text += u"\r\n\r\nFavorites:\r\n"_s;
    m_environment.shows.favorites();
    const auto rules = m_environment.shows.snapshot();
    for (const Favorite* rule : sortedByTitle(rules->rules())) {
        text += u"\t\""_s + rule->identificator + u'"';
        if (rule->minutes) {
            text += u'\t' + QString::number(*rule->minutes) + u"min"_s;
        }
        text += u"\r\n"_s;
    }
    const KeyValueStore& store = m_environment.keyValueStore;
    const auto calendar = store.valueForKey(kSelectedCalendarKey);
    const auto minutes = store.valueForKey(kLastAlarmMinutesKey);
    text += u"\r\n\r\nSelected calendar:\r\n"_s + (calendar ? calendar->toString() : QString());
    text += u"\r\n\r\nLast set alarm:\r\n"_s + QString::number(minutes ? minutes->toInteger(0) : 0) +
            u"min before the show\r\n"_s;
    const QByteArray utf8 = text.toUtf8();
    const qsizetype zero = utf8.indexOf('\0');
    return zero < 0 ? utf8 : utf8.first(zero);
}

void UserData::exportData(MainBlock<std::optional<QString>> mainBlock) {
    m_queue->async([this, mainBlock = std::move(mainBlock)]() mutable {
        const QString path = m_environment.exportFolder + u"/tv-app-data.txt"_s;
        const QByteArray text = exportedText();
        const bool isWritten = keepEarlierExport(path, text) && replaceFile(path, text);
        if (!isWritten) {
            qWarning().noquote() << "Error creating" << path;
        }
        mainBlock.post(m_environment.queues.mainQueue(), isWritten ? std::optional(path) : std::nullopt);
    });
}

// ---- erasing

QStringList UserData::titlesOfAlarms() const {
    QStringList titles;
    const auto known = m_environment.knownEvents ? m_environment.knownEvents() : nullptr;
    if (known) {
        const Moment now = m_environment.clock.now();
        for (const CalendarEvent& event : known->events) {
            if (event.endDate.value_or(event.startDate) > now) {
                titles << event.title;
            }
        }
    }
    return titles;
}

UserDataCounts UserData::countInMemory() const {
    const auto rules = m_environment.shows.snapshot();
    const KeyValueStore& store = m_environment.keyValueStore;
    UserDataCounts counts{.channels = m_environment.channels.selected().size(),
                          .rules = rules->rules().size(),
                          .silentHours = hasSilentHours(store),
                          .calendar =
                              m_environment.userDefaults.stringForKey(kSelectedCalendarKey).has_value()};
    for (const QString& title : titlesOfAlarms()) {
        ++(rules->containsFavoriteNamed(title) ? counts.alarms : counts.otherAlarms);
    }
    return counts;
}

void UserData::count(MainBlock<UserDataCounts> mainBlock) {
    m_queue->async([this, counts = countInMemory(), mainBlock = std::move(mainBlock)]() mutable {
        counts.replacedLists = m_environment.replacedLists.count();
        mainBlock.post(m_environment.queues.mainQueue(), counts);
    });
}

void UserData::erase(bool more, MainBlock<UserDataCounts> mainBlock) {
    UserDataCounts counts = countInMemory();
    m_environment.alarmSynchronisation.setSynchronized(false);
    if (std::vector<ObjectId> selected = m_environment.channels.selected(); !selected.empty()) {
        m_environment.listings.removeListingsForChannels(std::move(selected));
    }
    m_environment.channels.setSelected({});
    m_environment.selectionErased();
    const auto rules = m_environment.shows.snapshot();
    QSet<QString> known;
    QStringList titles;
    for (const Favorite& rule : rules->rules()) {
        if (!known.contains(rule.identificator)) {
            known.insert(rule.identificator);
            titles << rule.identificator;
        }
    }
    m_environment.favoriteActions.removeFavorites(titles);
    // Of several rules with one title one was removed.
    if (!m_environment.shows.snapshot()->empty()) {
        m_environment.shows.setFavorites({});
    }
    m_environment.channels.removeDamaged();
    m_environment.shows.removeDamaged();
    if (more) {
        QStringList others = titlesOfAlarms();
        others.removeIf([&rules](const QString& title) { return rules->containsFavoriteNamed(title); });
        m_environment.alarmActions.removeAlarmsForTitles(others, true);
    } else {
        counts.silentHours = false;
        counts.calendar = false;
    }
    m_queue->async([this, more, counts, rules, mainBlock = std::move(mainBlock)]() mutable {
        m_environment.keyValueStore.removeKey(kSelectedCalendarKey);
        m_environment.keyValueStore.removeKey(kLastAlarmMinutesKey);
        if (more) {
            removeSilentHours(m_environment.keyValueStore);
            m_environment.userDefaults.removeKey(kSelectedCalendarKey);
        }
        counts.replacedLists = m_environment.replacedLists.removeAll();
        m_environment.queues.mainQueue().async([this, alive = std::weak_ptr(m_alive), counts, rules,
                                                mainBlock = std::move(mainBlock)]() mutable {
            if (!alive.expired()) {
                answerErased(counts, rules, std::move(mainBlock));
            }
        });
    });
}

void UserData::answerErased(UserDataCounts counts, std::shared_ptr<const FavoritesSnapshot> rules,
                            MainBlock<UserDataCounts> mainBlock) {
    Block answer = [this, alive = std::weak_ptr(m_alive), counts, rules,
                    mainBlock = std::move(mainBlock)]() mutable {
        if (alive.expired()) {
            return;
        }
        // What the calendar kept was not removed.
        for (const QString& title : titlesOfAlarms()) {
            std::size_t& removed = rules->containsFavoriteNamed(title) ? counts.alarms : counts.otherAlarms;
            removed -= removed > 0 ? 1 : 0;
        }
        mainBlock.post(m_environment.queues.mainQueue(), counts);
    };
    if (m_environment.afterCalendarChanges) {
        m_environment.afterCalendarChanges(std::move(answer));
    } else {
        answer();
    }
}

// ---- lists that were replaced

void UserData::replacedLists(MainBlock<std::vector<ReplacedList>> mainBlock) {
    m_queue->async([this, mainBlock = std::move(mainBlock)]() mutable {
        const auto rules = m_environment.shows.snapshot();
        const std::vector<ObjectId> selected = m_environment.channels.selected();
        const SharedCatalogueSnapshot catalogue = m_environment.catalogue.snapshot();
        mainBlock.post(m_environment.queues.mainQueue(),
                       m_environment.replacedLists.all({*rules, selected, *catalogue}));
    });
}

void UserData::restore(const ReplacedList& list, MainBlock<bool> mainBlock) {
    m_queue->async([this, list, mainBlock = std::move(mainBlock)]() mutable {
        DispatchQueue& mainQueue = m_environment.queues.mainQueue();
        const ReplacedLists& lists = m_environment.replacedLists;
        CloudSync& sync = m_environment.cloudSync;
        bool isDone = false;
        if (list.kind == ReplacedList::Kind::Favorites) {
            if (auto rules = lists.favorites(list.name)) {
                isDone = true;
                mainQueue.async([&sync, alive = std::weak_ptr(m_alive), rules = *std::move(rules)] {
                    if (!alive.expired()) {
                        sync.restoreFavorites(rules);
                    }
                });
            }
        } else if (auto selected = lists.selection(list.name)) {
            isDone = true;
            mainQueue.async([&sync, alive = std::weak_ptr(m_alive), selected = *std::move(selected)] {
                if (!alive.expired()) {
                    sync.restoreSelection(selected);
                }
            });
        }
        mainBlock.post(mainQueue, isDone);
    });
}

} // namespace guide
