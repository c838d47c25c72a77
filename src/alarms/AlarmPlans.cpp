#include "alarms/AlarmPlans.h"

#include "alarms/GuideEvents.h"
#include "store/TitleHash.h"

#include <algorithm>
#include <utility>

namespace guide {

namespace {

/// An event follows its show over less than this.
constexpr std::chrono::seconds kLongestMove{14'400};
/// The brake looks at no fewer events.
constexpr std::size_t kFewestForBrake = 10;

/// Equal for events with the same start, channel and title, ignoring case.
struct EventPlace {
    Moment start;
    QString title;
    QString location;

    friend bool operator==(const EventPlace& one, const EventPlace& other) {
        return one.start == other.start && one.location == other.location &&
               (one.title == other.title || one.title.toLower() == other.title.toLower());
    }
    friend std::size_t qHash(const EventPlace& place, std::size_t seed) {
        std::uint32_t hashed = titleHash(place.title);
        if (hashed == kNoTitleHash) {
            hashed = titleHash(place.title.toLower());
        }
        return qHashMulti(seed, place.start.time_since_epoch().count(), hashed, place.location);
    }
};

ShowDigests digestsOf(const ShowItems& shows) {
    ShowDigests digests;
    digests.reserve(shows.size());
    for (const ShowItem& show : shows) {
        if (const auto digest = show.entry()->digest()) {
            digests.insert(*digest);
        }
    }
    return digests;
}

QString channelTitle(const CatalogueSnapshot& catalogue, const ObjectId& channel) {
    const CatalogueChannel* known = catalogue.find(channel);
    return known ? known->title : QString();
}

/// The decisions of phase 2 about single events.
class Reconciliation {
  public:
    Reconciliation(const AlarmSituation& situation, const ShowsByTitle& shows)
        : m_situation(situation)
        , m_shows(shows)
        , m_clock(situation.silentHours.clock())
        , m_listed(digestsOf(situation.shows)) {}

    std::optional<AlarmChange> changeOf(const CalendarEvent& event) {
        if (!event.hasAlarms()) {
            return isToCome(event) ? std::optional(removalByRule(event, AlarmReason::AlarmRemoved))
                                   : std::nullopt;
        }
        if (!m_situation.silentHours.mayBeAlarmedAt(event.startDate + event.alarmOffsets.front(), m_clock)) {
            const Favorite* rule = m_situation.rules->ruleNamed(event.title);
            return rule && rule->minutes ? cautiousRemoval(event, AlarmReason::SilentHours) : std::nullopt;
        }
        if (m_listed.empty()) {
            return std::nullopt;
        }
        const auto show = showOfEvent(event, m_situation.scheme);
        if (show && m_listed.contains(*show)) {
            return std::nullopt;
        }
        const TVEntry* target = nearestBroadcast(event);
        return target ? std::optional(moved(event, *target)) : cautiousRemoval(event, AlarmReason::NotListed);
    }

  private:
    bool isToCome(const CalendarEvent& event) const { return event.startDate > m_situation.now; }

    AlarmChange removalByRule(const CalendarEvent& event, AlarmReason reason) const {
        AlarmChange change = removalOf(event, reason, m_situation.scheme);
        if (const Favorite* rule = m_situation.rules->ruleNamed(event.title)) {
            change.rule = rule->identificator;
        }
        return change;
    }

    std::optional<AlarmChange> cautiousRemoval(const CalendarEvent& event, AlarmReason reason) const {
        if (!isToCome(event) || !m_situation.settledChannels.contains(event.location)) {
            return std::nullopt;
        }
        return removalByRule(event, reason);
    }

    /// Of broadcasts at the same distance the earlier one in the list. Null also when a show of the event's
    /// time is titled like the event's channel.
    const TVEntry* nearestBroadcast(const CalendarEvent& event) const {
        const std::span<const TVEntry* const> broadcasts = m_shows.withTitle(event.title.toLower());
        const auto startOf = [](const TVEntry* entry) { return *entry->dateTime(); };
        const auto same = std::ranges::equal_range(broadcasts, event.startDate, {}, startOf);
        if (std::ranges::any_of(
                same, [&event](const TVEntry* entry) { return entry->title() == event.location; })) {
            return nullptr;
        }
        // All before `same` are earlier, all from its begin on are not. Of several at one time the first
        // counts.
        const TVEntry* nearest = nullptr;
        Moment::duration distance = kLongestMove;
        if (same.begin() != broadcasts.begin()) {
            const Moment before = startOf(*(same.begin() - 1));
            if (event.startDate - before < distance) {
                distance = event.startDate - before;
                nearest = *std::ranges::lower_bound(broadcasts.begin(), same.begin(), before, {}, startOf);
            }
        }
        if (same.begin() != broadcasts.end() && startOf(*same.begin()) - event.startDate < distance) {
            nearest = *same.begin();
        }
        return nearest;
    }

    AlarmChange moved(const CalendarEvent& event, const TVEntry& entry) const {
        CalendarEvent target = event;
        target.startDate = *entry.dateTime();
        target.endDate = entry.endDateTime();
        target.location = channelTitle(*m_situation.catalogue, entry.channel());
        target.url = entry.urlDigestWithScheme(m_situation.scheme);
        const Favorite* rule = m_situation.rules->ruleNamed(event.title);
        return {.change = SaveEvent{std::move(target)},
                .reason = AlarmReason::ShowMoved,
                .show = entry.digest(),
                .before = event,
                .rule = rule ? rule->identificator : QString()};
    }

    const AlarmSituation& m_situation;
    const ShowsByTitle& m_shows;
    LocalTime m_clock;
    const ShowDigests m_listed;
};

} // namespace

AlarmChange removalOf(const CalendarEvent& event, AlarmReason reason, const QString& scheme) {
    return {.change = RemoveEvent{event}, .reason = reason, .show = showOfEvent(event, scheme)};
}

CleanUpPlan planCleanUp(const std::vector<CalendarEvent>& events, const QString& scheme) {
    CleanUpPlan plan;
    QSet<EventPlace> seen;
    seen.reserve(static_cast<qsizetype>(events.size()));
    plan.kept.reserve(events.size());
    for (const CalendarEvent& event : events) {
        if (!isOfGuide(event, scheme)) {
            continue;
        }
        if (!event.hasAlarms() || event.location.isEmpty()) {
            plan.changes.push_back(removalOf(
                event, event.hasAlarms() ? AlarmReason::NoChannel : AlarmReason::AlarmRemoved, scheme));
            continue;
        }
        const qsizetype count = seen.size();
        seen.insert({event.startDate, event.title, event.location});
        if (seen.size() == count) {
            plan.changes.push_back(removalOf(event, AlarmReason::Duplicate, scheme));
        } else {
            plan.kept.push_back(event);
        }
    }
    return plan;
}

// Every event has a change of its own, also when two of them end up at the same time on the same channel:
// the clean-up of the next run removes the second.
ReconciliationPlan planReconciliation(const AlarmSituation& situation, const ShowsByTitle& shows,
                                      bool brake) {
    Reconciliation reconciliation(situation, shows);
    ReconciliationPlan plan;
    std::size_t toCome = 0;
    const auto isHeldBack = [](const AlarmChange& change) {
        return change.removes() && change.reason != AlarmReason::AlarmRemoved;
    };
    for (const CalendarEvent& event : situation.events) {
        if (!isOfGuide(event, situation.scheme)) {
            continue;
        }
        toCome += event.startDate > situation.now ? 1 : 0;
        if (auto change = reconciliation.changeOf(event)) {
            plan.changes.push_back(*std::move(change));
        }
    }
    const auto removals = static_cast<std::size_t>(std::ranges::count_if(plan.changes, isHeldBack));
    if (brake && toCome >= kFewestForBrake && removals * 2 > toCome) {
        const auto held = std::ranges::stable_partition(plan.changes, std::not_fn(isHeldBack));
        plan.heldBack.assign(std::make_move_iterator(held.begin()), std::make_move_iterator(held.end()));
        plan.changes.erase(held.begin(), held.end());
    }
    return plan;
}

std::optional<CalendarEvent> eventForShow(const AlarmSituation& situation, const TVEntry& entry,
                                          int minutes) {
    const QString location = channelTitle(*situation.catalogue, entry.channel());
    if (location.isEmpty() || !entry.dateTime()) {
        return std::nullopt;
    }
    return CalendarEvent{.identifier = {},
                         .calendar = situation.calendar.identifier,
                         .title = entry.title().value_or(QString()),
                         .location = location,
                         .url = entry.urlDigestWithScheme(situation.scheme),
                         .startDate = *entry.dateTime(),
                         .endDate = entry.endDateTime(),
                         .alarmOffsets = {-std::chrono::minutes(minutes)},
                         .revision = {}};
}

std::vector<AlarmChange> planGeneration(const AlarmSituation& situation, const ShowsByTitle& shows,
                                        const ShowDigests& made) {
    LocalTime clock = situation.silentHours.clock();
    ShowDigests present;
    present.reserve(situation.events.size());
    for (const CalendarEvent& event : situation.events) {
        if (const auto show = showOfEvent(event, situation.scheme)) {
            present.insert(*show);
        }
    }
    std::vector<AlarmChange> changes;
    for (const Favorite& rule : situation.rules->rules()) {
        if (!rule.minutes) {
            continue;
        }
        for (const TVEntry* entry : shows.withTitle(rule.identificator.toLower())) {
            const Moment start = *entry->dateTime();
            // Events behind the range would not be found, and be made again by every run.
            if (start <= situation.now || start >= situation.end) {
                continue;
            }
            const auto digest = entry->digest();
            if (!digest || present.contains(*digest) || situation.refused.contains(*digest) ||
                !situation.silentHours.mayBeAlarmedAt(start - std::chrono::minutes(*rule.minutes), clock) ||
                (rule.previouslyShown && *rule.previouslyShown != entry->previouslyShown())) {
                continue;
            }
            if (auto event = eventForShow(situation, *entry, *rule.minutes)) {
                changes.push_back(
                    {.change = SaveEvent{*std::move(event)},
                     .reason = made.contains(*digest) ? AlarmReason::RuleAgain : AlarmReason::Rule,
                     .show = digest,
                     .rule = rule.identificator,
                     .previouslyShown = rule.previouslyShown});
            }
        }
    }
    return changes;
}

} // namespace guide
