#include "alarms/AlarmSynchroniser.h"

#include "alarms/AlarmPlans.h"
#include "alarms/GuideEvents.h"
#include "platform/BackgroundWork.h"

#include <QDebug>
#include <QSet>

#include <algorithm>
#include <utility>

namespace guide {

namespace {

CalendarEvents eventsToCome(const std::vector<CalendarEvent>& events, Moment now, const QString& scheme) {
    CalendarEvents result;
    for (const CalendarEvent& event : events) {
        if (event.hasAlarms() && event.startDate > now) {
            result.add(event, scheme);
        }
    }
    return result;
}

/// Shows with an alert in the range, by the order of their events.
ShowItems showsWithAlerts(const FavoritesToCome& favorites, const std::vector<CalendarEvent>& events,
                          const QString& scheme, const SilentHours& silentHours) {
    ShowItems shows;
    LocalTime clock = silentHours.clock();
    for (const CalendarEvent& event : events) {
        const auto digest = leadOfLastAlarm(event) ? showOfEvent(event, scheme) : std::nullopt;
        const auto show = digest ? favorites.byDigest.find(*digest) : favorites.byDigest.end();
        if (show != favorites.byDigest.end() &&
            silentHours.mayBeAlarmedAt(event.startDate + event.alarmOffsets.back(), clock)) {
            shows.push_back(show->second);
            if (shows.size() == kMostShows) {
                break;
            }
        }
    }
    std::ranges::stable_sort(shows, {}, [](const ShowItem& show) { return *show.entry()->dateTime(); });
    return shows;
}

} // namespace

/// One run, from the call to the notification.
struct AlarmRun {
    AlarmRunResult result;
    bool brake = true;
    /// How often the mark had been cleared when the run started.
    std::uint64_t clearings = 0;
    /// The end of the range of all phases.
    Moment end;
    std::shared_ptr<BackgroundWork> background;
    /// The events that were read first are still those of the calendar.
    bool isCurrent = false;
    /// Moved events repeat others or have alarms in silent hours.
    bool needsAnother = false;

    void note(const AppliedChanges& applied) { result.complete = result.complete && !applied.unfinished; }
};

struct AlarmSynchroniser::State : std::enable_shared_from_this<State> {
    explicit State(std::shared_ptr<AlarmCalendar> ownCalendar)
        : calendar(std::move(ownCalendar))
        , environment(calendar->environment()) {}

    // ---- main queue
    void ask(bool full, bool brake);
    void accessAnswered(bool granted, bool full, bool brake);
    void ended(const AlarmRun& run, bool notifies);
    void startPending();

    // ---- alarm queue
    void start(AlarmRun run);
    void cleanUp(AlarmRun run);
    void reconcile(AlarmRun run, ShowItems shows);
    bool reconcileAndGenerate(AlarmRun& run, ShowItems shows);
    void noteHeldBack(AlarmRun& run, const ReconciliationPlan& plan);
    void finish(AlarmRun run, bool notifies);

    const std::shared_ptr<AlarmCalendar> calendar;
    const AlarmsEnvironment& environment;

    // On the main queue.
    bool running = false;
    struct Pending {
        bool full = false;
        bool brake = true;
    };
    std::optional<Pending> pending;
    /// Wait for the end of the runs.
    std::vector<Block> idle;

    // On the alarm queue: identifiers of events that the brake holds back.
    /// The user has been told about these and has not decided.
    QSet<QString> told;
    QSet<QString> keptByUser;
    /// These are to be removed.
    QSet<QString> releasedByUser;
};

// ---- main queue

void AlarmSynchroniser::State::ask(bool full, bool brake) {
    if (running) {
        Pending next = pending.value_or(Pending());
        pending = Pending{next.full || full, next.brake && brake};
        return;
    }
    running = true;
    AlarmRun run;
    run.result.full = full;
    run.brake = brake && environment.safety.brake;
    run.clearings = calendar->mark().clearings();
    calendar->queue().async([self = shared_from_this(), run]() mutable { self->start(std::move(run)); });
}

void AlarmSynchroniser::State::accessAnswered(bool granted, bool full, bool brake) {
    if (granted) {
        ask(full, brake);
    } else {
        // No attempt follows until something else clears the mark.
        calendar->mark().set(true);
    }
}

void AlarmSynchroniser::State::ended(const AlarmRun& run, bool notifies) {
    if (run.result.full && notifies) {
        if (run.result.complete || !environment.safety.repeatsUnfinished) {
            calendar->mark().setUnlessClearedSince(run.clearings);
        }
        if (environment.applicationState.applicationState() == ApplicationState::Background) {
            environment.userDefaults.synchronize();
        }
    }
    running = false;
    if (run.needsAnother) {
        pending = Pending{true, run.brake && (!pending || pending->brake)};
    }
    if (notifies) {
        environment.notificationsSynched();
    }
    if (environment.runEnded) {
        environment.runEnded(run.result);
    }
    startPending();
}

void AlarmSynchroniser::State::startPending() {
    if (!running && pending) {
        const Pending next = *std::exchange(pending, std::nullopt);
        ask(next.full || !calendar->mark().isSet(), next.brake);
    }
    if (!running) {
        for (const Block& block : std::exchange(idle, {})) {
            block();
        }
    }
}

// ---- alarm queue

void AlarmSynchroniser::State::start(AlarmRun run) {
    if (calendar->refreshAccess() == CalendarAccess::Granted) {
        cleanUp(std::move(run));
        return;
    }
    // The run ends, since the answer may never come.
    calendar->mainQueue().async([self = shared_from_this()] {
        self->running = false;
        self->startPending();
    });
    environment.eventStore.requestAccess([self = shared_from_this(), run](bool granted) {
        self->calendar->queue().async([self, granted, run] {
            self->calendar->setAccess(granted ? CalendarAccess::Granted : CalendarAccess::Refused);
            self->calendar->mainQueue().async(
                [self, granted, run] { self->accessAnswered(granted, run.result.full, run.brake); });
        });
    });
}

void AlarmSynchroniser::State::cleanUp(AlarmRun run) {
    calendar->ensureSelectedCalendarIsSet();
    const auto rules = environment.shows.favorites();
    if (environment.channels.selected().empty() || !rules || rules->empty()) {
        finish(std::move(run), false);
        return;
    }
    run.background = std::make_shared<BackgroundWork>(environment.backgroundTasks, calendar->mainQueue());
    environment.eventStore.refreshSources();
    const Moment now = environment.clock.now();
    run.end = now + kAlarmReach;
    const EventRange range = calendar->read(now - kAlarmReach, run.end);
    if (range.fault) {
        run.result.complete = false;
    } else if (range.events.empty()) {
        calendar->setEvents(environment.safety.forgetsAll ? std::optional(CalendarEvents()) : std::nullopt,
                            {}, run.end);
    } else {
        const CleanUpPlan plan = planCleanUp(range.events, environment.scheme);
        calendar->setEvents(eventsToCome(plan.kept, now, environment.scheme), range.events, run.end);
        run.note(calendar->apply(plan.changes));
        run.isCurrent = plan.changes.empty();
    }
    if (!run.result.full) {
        finish(std::move(run), true);
        return;
    }
    environment.listings.favoritesScheduleWithURLBlock(
        [self = shared_from_this(), run = std::move(run)](FavoritesToCome favorites) {
            self->calendar->queue().async([self, run, shows = std::move(favorites.shows)]() mutable {
                self->reconcile(std::move(run), std::move(shows));
            });
        });
}

void AlarmSynchroniser::State::reconcile(AlarmRun run, ShowItems shows) {
    const bool wasRead = reconcileAndGenerate(run, std::move(shows));
    run.result.complete = run.result.complete && wasRead;
    if (!wasRead || !run.isCurrent) {
        const Moment now = environment.clock.now();
        EventRange range = calendar->read(run.end - 2 * kAlarmReach, run.end);
        run.result.complete = run.result.complete && !range.fault;
        if (!range.fault) {
            CalendarEvents events = eventsToCome(range.events, now, environment.scheme);
            calendar->setEvents(std::move(events), std::move(range.events), run.end);
        }
    }
    finish(std::move(run), true);
}

/// False when the calendar could not be read.
bool AlarmSynchroniser::State::reconcileAndGenerate(AlarmRun& run, ShowItems shows) {
    AlarmSituation situation = calendar->situation();
    situation.end = run.end;
    situation.shows = std::move(shows);
    const ShowsByTitle byTitle(situation.shows);
    const auto read = [&] {
        EventRange range = calendar->read(situation.now, situation.end);
        situation.events = std::move(range.events);
        return !range.fault;
    };
    if (!read()) {
        return false;
    }
    ReconciliationPlan plan = planReconciliation(situation, byTitle, run.brake);
    // The run that followed the decision may have left events of a channel that was being loaded.
    if (!plan.heldBack.empty() && std::ranges::all_of(plan.heldBack, [this](const AlarmChange& change) {
            return releasedByUser.contains(change.event().identifier);
        })) {
        run.brake = false;
        plan = planReconciliation(situation, byTitle, run.brake);
    }
    noteHeldBack(run, plan);
    const AppliedChanges applied = calendar->apply(plan.changes);
    run.note(applied);
    if (!plan.changes.empty() && !read()) {
        return false;
    }
    // A refused change would be planned again for ever.
    run.needsAnother = environment.safety.settles && applied.any && !applied.unfinished &&
                       (!planCleanUp(situation.events, situation.scheme).changes.empty() ||
                        !planReconciliation(situation, byTitle, run.brake).changes.empty());
    // A rule that was changed meanwhile counts.
    situation.rules = environment.shows.snapshot();
    const std::vector<AlarmChange> made =
        planGeneration(situation, byTitle, madeByRules(*calendar->journal().entries()));
    run.note(calendar->apply(made));
    run.isCurrent = run.isCurrent && plan.changes.empty() && made.empty();
    return true;
}

void AlarmSynchroniser::State::noteHeldBack(AlarmRun& run, const ReconciliationPlan& plan) {
    const Moment now = environment.clock.now();
    std::vector<JournalEntry> entries;
    for (const AlarmChange& change : plan.heldBack) {
        const QString& event = change.event().identifier;
        if (!keptByUser.contains(event) && !told.contains(event)) {
            told.insert(event);
            entries.push_back(journalEntry(change, AlarmDeed::HeldBack, now));
        }
    }
    if (!entries.empty()) {
        run.result.heldBack = plan.heldBack.size();
        calendar->journal().append(std::move(entries), now);
    }
}

void AlarmSynchroniser::State::finish(AlarmRun run, bool notifies) {
    calendar->mainQueue().async(
        [self = shared_from_this(), run = std::move(run), notifies] { self->ended(run, notifies); });
}

// ----

AlarmSynchroniser::AlarmSynchroniser(std::shared_ptr<AlarmCalendar> calendar)
    : m_state(std::make_shared<State>(std::move(calendar))) {}

void AlarmSynchroniser::setSynchronized(bool synchronized) {
    m_state->calendar->mark().set(synchronized);
}

bool AlarmSynchroniser::isSynchronized() const {
    return m_state->calendar->mark().isSet();
}

void AlarmSynchroniser::syncAlarms() {
    m_state->ask(!m_state->calendar->mark().isSet(), true);
}

bool AlarmSynchroniser::isRunning() const {
    return m_state->running;
}

void AlarmSynchroniser::whenIdle(Block block) {
    m_state->idle.push_back(std::move(block));
    m_state->startPending();
}

// What is done to the calendar is durable when the store says that it is done.
void AlarmSynchroniser::commit() {}

bool AlarmSynchroniser::hasCalendarAccess() const {
    return m_state->calendar->access() == CalendarAccess::Granted;
}

std::shared_ptr<const AlarmsSnapshot> AlarmSynchroniser::snapshot() const {
    return m_state->calendar->snapshot();
}

void AlarmSynchroniser::calendarsChanged() {
    m_state->calendar->queue().async([calendar = m_state->calendar] { calendar->refresh(); });
}

void AlarmSynchroniser::removeHeldBack() {
    m_state->calendar->queue().async([state = m_state] {
        state->releasedByUser.unite(std::exchange(state->told, {}));
        state->keptByUser.clear();
    });
    m_state->calendar->mark().set(false);
    m_state->ask(true, false);
}

void AlarmSynchroniser::keepHeldBack() {
    m_state->calendar->queue().async(
        [state = m_state] { state->keptByUser.unite(std::exchange(state->told, {})); });
}

void AlarmSynchroniser::alertsScheduleWithPriority(QueuePriority, MainBlock<ShowSpan> mainBlock) {
    m_state->environment.listings.favoritesScheduleWithURLBlock([state = m_state,
                                                                 mainBlock](FavoritesToCome favorites) {
        const AlarmsEnvironment& environment = state->environment;
        const Moment now = environment.clock.now();
        const Moment until = favorites.shows.empty()
                                 ? now + kAlarmReach
                                 : favorites.shows.back().entry()->endDateTime().value_or(now + kAlarmReach);
        auto answer = [state, mainBlock](const FavoritesToCome& shows,
                                         const std::vector<CalendarEvent>& events) mutable {
            mainBlock.post(state->calendar->mainQueue(),
                           ShowSpan(showsWithAlerts(shows, events, state->environment.scheme,
                                                    state->calendar->silentHours())));
        };
        const auto known = state->calendar->knownEvents();
        const auto calendar = state->calendar->selectedCalendar();
        if (!calendar || until <= known->until) {
            std::vector<CalendarEvent> events;
            std::ranges::copy_if(known->events, std::back_inserter(events), [&](const CalendarEvent& event) {
                return calendar && event.calendar == calendar->identifier && event.startDate < until &&
                       event.endDate.value_or(event.startDate) > now;
            });
            answer(favorites, events);
            return;
        }
        state->calendar->queue().async([state, now, until, answer, shows = std::move(favorites)]() mutable {
            answer(shows, state->calendar->read(now, until).events);
        });
    });
}

} // namespace guide
