#pragma once

#include "FaultyStore.h"

#include <map>
#include <set>

namespace guide::test {

/// Runs of a guide while listings change, people use its calendar, services fail and the guide is killed.
class AlarmStorm {
  public:
    AlarmStorm(StormCalendar& calendar, unsigned seed);

    /// Each run comes after random changes. From time to time, and at the end, faults stop, and the calendar
    /// must be right after one full run.
    void run(int count);

    /// How often each kind of thing happened.
    const std::map<QString, int>& tally() const { return m_tally; }

  private:
    struct Broadcast {
        int channel;
        QString title;
        Moment start;
        bool isReplay;
    };

    /// What a person adds to an event.
    static constexpr const char* kAdditions[] = {"X-TICKETS:in the drawer",
                                                 "ATTENDEE:mailto:anna@example.com"};

    void open();
    void kill();
    void recover();
    void pushListings();

    void changeSomething();
    void changeListings();
    void changeChannels();
    void useGuide();
    void moveClock();
    void editOwnEvent();
    void changeForeignEvent();

    void synchronise();
    void finishRun();
    void expectRight();
    void expectListed(const std::vector<CalendarEvent>& events);
    void expectAdditions(const std::vector<CalendarEvent>& events);
    void expectNothingToDo();

    std::vector<CalendarEvent> events();
    /// Of the guide, if it has any event.
    std::optional<CalendarEvent> anyOwnEvent();
    bool isOwn(const CalendarEvent& event) const { return event.url && event.url->scheme() == u"guide"_s; }
    std::vector<ShowDigest> alarmsThatMustBe() const;
    Broadcast randomBroadcast();
    Moment now() const { return m_calendar.test().clock.now(); }
    void did(const QString& what) { ++m_tally[what]; }

    StormCalendar& m_calendar;
    StormRandom m_random;
    FaultyStore m_store;
    const EventCalendar m_selected;
    const std::shared_ptr<AlarmProfile> m_profile = std::make_shared<AlarmProfile>();
    std::unique_ptr<AlarmWorld> m_world;
    std::atomic<bool> m_isAnnounced = false;
    bool m_hasFault = false;

    std::vector<Broadcast> m_listings;
    std::map<QByteArray, QByteArray> m_foreign;
    /// UIDs of events whose time, title or channel a person changed.
    std::set<QByteArray> m_edited;
    /// UIDs of events to which a person added what the guide does not know.
    std::set<QByteArray> m_extended;
    int m_made = 0;
    std::map<QString, int> m_tally;
};

} // namespace guide::test
