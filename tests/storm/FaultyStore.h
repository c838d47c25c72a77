#pragma once

#include "StormCalendar.h"

#include <set>

namespace guide::test {

/// The process of the guide ends.
struct Killed {};

/// A store that fails at random, between the guide and the calendar.
class FaultyStore final : public EventStore {
  public:
    explicit FaultyStore(StormRandom& random)
        : m_random(random) {}

    void setStore(std::unique_ptr<EventStore> store) { m_store = std::move(store); }

    /// What goes wrong until calm() is called.
    void fail() {
        m_rangesFail = m_random.chance(15);
        m_refusals = m_random.chance(50) ? m_random.between(5, 100) : 0;
        m_lostAnswers = m_random.chance(30) ? m_random.between(5, 100) : 0;
    }
    /// Whether the guide is killed during the next batch: Killed is thrown.
    void setKills(bool kills) { m_kills = kills; }
    void calm() {
        m_rangesFail = m_kills = false;
        m_refusals = m_lostAnswers = 0;
        beforeBatch = nullptr;
    }
    /// Without these faults.
    EventStore& store() { return *m_store; }
    int changes() const { return m_changes; }
    /// Whether the guide may have removed the event.
    bool hasRemoved(const QString& identifier) const { return m_removed.contains(identifier); }
    /// What other programs do between the guide's reading and its writing.
    std::function<void()> beforeBatch;

    CalendarAccess access() override { return m_store->access(); }
    void requestAccess(std::function<void(bool)> completion) override {
        m_store->requestAccess(std::move(completion));
    }
    std::optional<std::vector<EventCalendar>> calendars() override { return m_store->calendars(); }
    std::optional<EventCalendar> defaultCalendarForNewEvents() override {
        return m_store->defaultCalendarForNewEvents();
    }
    std::optional<EventCalendar> createCalendar(const QString& title) override {
        return m_store->createCalendar(title);
    }
    void refreshSources() override { m_store->refreshSources(); }
    EventRange eventsBetween(Moment start, Moment end, const EventCalendar& calendar) override {
        return m_rangesFail && m_random.chance(50) ? EventRange{{}, u"the service ended"_s}
                                                   : m_store->eventsBetween(start, end, calendar);
    }
    std::optional<CalendarEvent> eventWithIdentifier(const QString& identifier) override {
        return m_store->eventWithIdentifier(identifier);
    }
    std::vector<EventOutcome> apply(const std::vector<EventChange>& changes) override {
        if (const auto meanwhile = std::exchange(beforeBatch, nullptr)) {
            meanwhile();
        }
        m_changes += static_cast<int>(changes.size());
        for (const EventChange& change : changes) {
            if (const auto* removal = std::get_if<RemoveEvent>(&change)) {
                m_removed.insert(removal->event.identifier);
            }
        }
        if (std::exchange(m_kills, false)) {
            m_store->apply({changes.begin(), changes.begin() + m_random.below(int(changes.size()) + 1)});
            throw Killed{};
        }
        std::vector<EventOutcome> outcomes(changes.size());
        std::vector<EventChange> accepted;
        std::vector<std::size_t> places;
        for (std::size_t i = 0; i < changes.size(); ++i) {
            if (m_random.chance(m_refusals)) {
                static constexpr EventFault kFaults[] = {EventFault::Conflict, EventFault::ReadOnly,
                                                         EventFault::Unavailable, EventFault::Failed};
                outcomes[i].fault = m_random.oneOf(kFaults);
                outcomes[i].message = u"refused"_s;
            } else {
                accepted.push_back(changes[i]);
                places.push_back(i);
            }
        }
        std::vector<EventOutcome> made = m_store->apply(accepted);
        for (std::size_t i = 0; i < made.size(); ++i) {
            if (m_random.chance(m_lostAnswers)) {
                made[i] = {EventFault::Unavailable, u"the answer was lost"_s, {}};
            }
            outcomes[places[i]] = std::move(made[i]);
        }
        return outcomes;
    }
    void setCalendarsChanged(std::function<void()> changed) override {
        m_store->setCalendarsChanged(std::move(changed));
    }
    QString name() const override { return m_store->name(); }

  private:
    std::unique_ptr<EventStore> m_store;
    StormRandom& m_random;
    bool m_rangesFail = false;
    bool m_kills = false;
    /// In percent of the changes.
    int m_refusals = 0;
    int m_lostAnswers = 0;
    int m_changes = 0;
    std::set<QString> m_removed;
};

} // namespace guide::test
