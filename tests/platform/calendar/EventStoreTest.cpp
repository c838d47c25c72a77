// What every store must do, on each kind of calendar.
#include "CalendarUnderTest.h"

#include <algorithm>

namespace guide::test {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class EventStoreTest : public testing::TestWithParam<CalendarKind> {
  protected:
    EventRange read() { return store().eventsBetween(kEvening - 24h, kEvening + 72h, calendar); }
    std::size_t count() { return read().events.size(); }
    CalendarEvent stored(const QString& digest) {
        for (const CalendarEvent& event : read().events) {
            if (event.url && event.url->host() == digest) {
                return event;
            }
        }
        ADD_FAILURE() << "no event " << digest.toStdString();
        return {};
    }
    EventOutcome save(CalendarEvent event) {
        event.calendar = calendar.identifier;
        return store().apply({SaveEvent{event}}).front();
    }
    EventOutcome remove(const CalendarEvent& event) { return store().apply({RemoveEvent{event}}).front(); }
    EventStore& store() { return test->store(); }
    static QString suffix() { return GetParam().name == "Folder"_ba ? u".ics"_s : QString(); }

    const std::unique_ptr<CalendarUnderTest> test{GetParam().make()};
    const EventCalendar calendar{test->calendar()};
};

const QByteArray kUid = "ca1@quellin";

TEST_P(EventStoreTest, ReadsWhatItWrote) {
    const CalendarEvent event = showEvent(u"ca1"_s);
    const EventOutcome outcome = save(event);
    ASSERT_TRUE(outcome.isDone()) << outcome.message.toStdString();
    CalendarEvent read = stored(u"ca1"_s);
    EXPECT_EQ(read.identifier, outcome.identifier);
    EXPECT_EQ(read.calendar, calendar.identifier);
    EXPECT_EQ(store().eventWithIdentifier(outcome.identifier), read);
    read.identifier = read.calendar = read.revision = QString();
    EXPECT_EQ(read, event);

    const QByteArray text = test->get(kUid);
    for (const QByteArrayView line :
         {"DTSTART:20261123T191500Z\r\n", "TRANSP:TRANSPARENT\r\n", "ACTION:DISPLAY\r\n",
          "TRIGGER:-PT10M\r\n", "URL:quellin-guide://ca1\r\n", "DESCRIPTION:quellin-guide://ca1\r\n",
          "CATEGORIES:TV\r\n"}) {
        EXPECT_TRUE(text.contains(line)) << line.data() << text.toStdString();
    }
    EXPECT_TRUE(save(event).isDone());
    EXPECT_EQ(count(), 1U) << "the same event, made again after its answer was lost";
}

TEST_P(EventStoreTest, ARangeHasWhatTouchesIt) {
    for (int day = 0; day < 3; ++day) {
        ASSERT_TRUE(save(showEvent(u"ca%1"_s.arg(2 - day), kEvening + day * 24h)).isDone());
    }
    const struct {
        const char* name;
        std::chrono::minutes from;
        std::chrono::minutes to;
        QStringList digests;
    } rows[] = {
        {"all, by their starts", 0min, 72h, {u"ca2"_s, u"ca1"_s, u"ca0"_s}},
        {"running at the start", 44min, 24h, {u"ca2"_s}},
        {"over at the start", 45min, 24h, {}},
        {"starting at the end", -24h, 0min, {}},
        {"starting before the end", 30h - 24h, 24h + 1min, {u"ca1"_s}},
    };
    for (const auto& row : rows) {
        QStringList digests;
        for (const CalendarEvent& event :
             store().eventsBetween(kEvening + row.from, kEvening + row.to, calendar).events) {
            digests << event.url->host();
        }
        EXPECT_EQ(digests, row.digests) << row.name;
    }
}

TEST_P(EventStoreTest, AMovedEventKeepsItsUidAndWhatOthersAdded) {
    ASSERT_TRUE(save(showEvent(u"ca1"_s)).isDone());
    QByteArray edited = test->get(kUid);
    edited.replace("BEGIN:VALARM", "COLOR:turquoise\r\nX-PARTY;X-A=\"b;c:d\":crisps\r\nBEGIN:VALARM");
    edited.replace("END:VEVENT", "BEGIN:VALARM\r\nACTION:AUDIO\r\nTRIGGER:-PT3M\r\nEND:VALARM\r\nEND:VEVENT");
    edited.replace("DESCRIPTION:quellin-guide://ca1", "DESCRIPTION:Bring snacks!\\n\\nquellin-guide://ca1");
    test->put(kUid, edited);

    CalendarEvent event = stored(u"ca1"_s);
    EXPECT_EQ(event.alarmOffsets, (std::vector<std::chrono::seconds>{-10min, -3min}));
    event.startDate += 25min;
    *event.endDate += 25min;
    event.url = QUrl(u"quellin-guide://ca2"_s);
    const EventOutcome outcome = save(event);
    ASSERT_TRUE(outcome.isDone()) << outcome.message.toStdString();
    EXPECT_EQ(outcome.identifier, event.identifier);
    const CalendarEvent moved = stored(u"ca2"_s);
    EXPECT_EQ(moved.startDate, kEvening + 25min);
    EXPECT_EQ(moved.alarmOffsets, event.alarmOffsets);
    const QByteArray text = test->get(kUid);
    for (const QByteArrayView line :
         {"COLOR:turquoise\r\n", "X-PARTY;X-A=\"b;c:d\":crisps\r\n", "ACTION:AUDIO\r\n",
          "DESCRIPTION:Bring snacks!\\n\\nquellin-guide://ca2\r\n", "SEQUENCE:1\r\n"}) {
        EXPECT_TRUE(text.contains(line)) << line.data() << text.toStdString();
    }

    ASSERT_TRUE(save(showEvent(u"ca1"_s)).isDone()) << "its UID belongs to the moved event";
    EXPECT_EQ(stored(u"ca1"_s).startDate, kEvening);
    EXPECT_EQ(stored(u"ca2"_s).startDate, kEvening + 25min);
    EXPECT_TRUE(test->get("ca1-2@quellin").contains("URL:quellin-guide://ca1\r\n"));
}

TEST_P(EventStoreTest, ChangesMadeElsewhereMeanwhileWin) {
    const auto edit = [&](const QByteArray& from, const QByteArray& to) {
        QByteArray text = test->get(kUid);
        ASSERT_TRUE(text.contains(from));
        test->put(kUid, text.replace(from, to));
    };
    ASSERT_TRUE(save(showEvent(u"ca1"_s)).isDone());
    CalendarEvent event = stored(u"ca1"_s);
    edit("SUMMARY:", "SUMMARY:Mine\\, ");
    event.startDate += 1h;
    EXPECT_EQ(save(event).fault, EventFault::Conflict);
    EXPECT_EQ(remove(event).fault, EventFault::Conflict);
    event = stored(u"ca1"_s);
    EXPECT_TRUE(event.title.startsWith(u"Mine, "_s));
    EXPECT_EQ(event.startDate, kEvening);
    event.startDate += 1h;
    EXPECT_TRUE(save(event).isDone()) << "read again";

    event = stored(u"ca1"_s);
    test->erase(kUid);
    EXPECT_EQ(remove(event).fault, EventFault::NotFound);
    event.startDate += 1h;
    EXPECT_EQ(save(event).fault, EventFault::NotFound) << "what the user deleted stays deleted";
    EXPECT_TRUE(read().events.empty());
}

TEST_P(EventStoreTest, EventsOfOthersAreNeverWritten) {
    const QByteArray foreign = "BEGIN:VEVENT\r\nUID:other\r\nDTSTAMP:20261101T100000Z\r\n"
                               "DTSTART:20261123T180000Z\r\nDTEND:20261123T190000Z\r\nSUMMARY:Dentist\r\n"
                               "DESCRIPTION:then\\nquellin-guide://ca1\r\nURL:https://dentist.example/\r\n"
                               "END:VEVENT\r\n";
    test->put("other", foreign);
    const QByteArray before = test->get("other");
    ASSERT_EQ(read().events.size(), 1U);
    CalendarEvent event = read().events.front();
    EXPECT_EQ(event.url, QUrl(u"https://dentist.example/"_s))
        << "a link in the notes makes no event of the guide";
    EXPECT_EQ(remove(event).fault, EventFault::Failed);
    event.title = u"TV"_s;
    EXPECT_EQ(save(event).fault, EventFault::Failed);
    event.url = QUrl(u"quellin-guide://ca1"_s);
    EXPECT_EQ(save(event).fault, EventFault::Failed);
    EXPECT_EQ(remove(event).fault, EventFault::Failed);
    ASSERT_TRUE(save(showEvent(u"ca1"_s)).isDone());
    ASSERT_TRUE(remove(stored(u"ca1"_s)).isDone());
    EXPECT_EQ(test->get("other"), before);
}

TEST_P(EventStoreTest, KnowsItsEventsWhenAServerDropsTheirUrls) {
    ASSERT_TRUE(save(showEvent(u"ca1"_s)).isDone());
    test->put(kUid, test->get(kUid).replace("URL:quellin-guide://ca1\r\n", ""));
    ASSERT_FALSE(test->get(kUid).contains("\nURL:"));
    CalendarEvent event = stored(u"ca1"_s);
    event.startDate += 1h;
    event.url = QUrl(u"quellin-guide://ca2"_s);
    ASSERT_TRUE(save(event).isDone());
    EXPECT_EQ(stored(u"ca2"_s).startDate, kEvening + 1h);
    EXPECT_TRUE(test->get(kUid).contains("DESCRIPTION:quellin-guide://ca2\r\n"));
}

TEST_P(EventStoreTest, OneBadChangeDoesNotStopTheOthers) {
    std::vector<EventChange> changes;
    for (int i = 0; i < 30; ++i) {
        CalendarEvent event = showEvent(u"ca%1"_s.arg(i), kEvening + i * 1min);
        event.calendar = calendar.identifier;
        changes.emplace_back(SaveEvent{event});
    }
    const auto failures = [](const std::vector<EventOutcome>& outcomes) {
        return std::ranges::count_if(outcomes, [](const EventOutcome& outcome) { return !outcome.isDone(); });
    };
    test->put("ca5@quellin", "BEGIN:VEVENT\r\nUID:ca5@quellin\r\nDTSTAMP:20261101T100000Z\r\n"
                             "DTSTART:20261123T180000Z\r\nSUMMARY:Dentist\r\nEND:VEVENT\r\n");
    std::vector<EventOutcome> outcomes = store().apply(changes);
    ASSERT_EQ(failures(outcomes), 0);
    EXPECT_EQ(outcomes[5].identifier, calendar.identifier + u"/ca5-2@quellin"_s + suffix());
    EXPECT_EQ(outcomes[6].identifier, calendar.identifier + u"/ca6@quellin"_s + suffix());
    test->erase("ca5@quellin");
    ASSERT_EQ(count(), 30U);

    test->erase("ca7@quellin");
    changes.clear();
    for (CalendarEvent event : read().events) {
        event.startDate += 1h;
        *event.endDate += 1h;
        changes.emplace_back(SaveEvent{event});
    }
    test->erase("ca20@quellin");
    outcomes = store().apply(changes);
    EXPECT_EQ(failures(outcomes), 1);
    EXPECT_EQ(outcomes[19].fault, EventFault::NotFound);
    EXPECT_EQ(stored(u"ca29"_s).startDate, kEvening + 29min + 1h);

    changes.clear();
    for (const CalendarEvent& event : read().events) {
        changes.emplace_back(RemoveEvent{event});
    }
    test->erase("ca3@quellin");
    EXPECT_EQ(failures(store().apply(changes)), 1);
    EXPECT_EQ(count(), 0U);
}

TEST_P(EventStoreTest, AnnouncesWhatOthersChange) {
    ASSERT_TRUE(save(showEvent(u"ca1"_s)).isDone());
    ASSERT_EQ(count(), 1U);
    const QByteArray text = test->get(kUid);
    const std::unique_ptr<EventStore> second = test->secondStore();
    ASSERT_EQ(second->eventsBetween(kEvening, kEvening + 1h, calendar).events.size(), 1U);
    Announcements announcementsOfSecond(*second);
    Announcements announcements(store());
    ASSERT_TRUE(save(showEvent(u"ca2"_s)).isDone());
    CalendarEvent event = stored(u"ca2"_s);
    event.startDate += 10min;
    ASSERT_TRUE(save(event).isDone());
    EXPECT_TRUE(announcementsOfSecond.arrives()) << "one guide sees what another one does";
    ASSERT_TRUE(remove(stored(u"ca2"_s)).isDone());
    EXPECT_TRUE(announcementsOfSecond.arrives());
    ASSERT_TRUE(save(showEvent(u"ca3"_s)).isDone());
    EXPECT_TRUE(announcementsOfSecond.arrives());
    EXPECT_EQ(announcements.count(), 0) << "the guide's own changes";

    test->put("other", QByteArray(text).replace("quellin-guide", "https").replace(kUid, "other"));
    EXPECT_TRUE(announcements.arrives()) << "added";
    EXPECT_EQ(announcements.count(), 1)
        << "changes are reported in order, so none of the guide's own follows";
    test->put("other", test->get("other").replace("https", "http"));
    EXPECT_TRUE(announcements.arrives()) << "edited";
    test->erase("other");
    EXPECT_TRUE(announcements.arrives()) << "deleted";
    test->erase(kUid);
    EXPECT_TRUE(announcements.arrives()) << "an event of the guide";
}

TEST_P(EventStoreTest, CreatesACalendar) {
    const std::optional<EventCalendar> made = store().createCalendar(u"TV: večer / noc"_s);
    ASSERT_TRUE(made);
    EXPECT_EQ(made->title, u"TV: večer / noc"_s);
    EXPECT_TRUE(made->allowsContentModifications);
    const std::vector<EventCalendar> all = store().calendars().value();
    EXPECT_EQ(std::ranges::count(all, *made), 1);
    CalendarEvent event = showEvent(u"ca1"_s);
    event.calendar = made->identifier;
    ASSERT_TRUE(store().apply({SaveEvent{event}}).front().isDone());
    EXPECT_EQ(store().eventsBetween(kEvening, kEvening + 1h, *made).events.size(), 1U);
    EXPECT_TRUE(read().events.empty()) << "in the other calendar";
    EXPECT_EQ(store().access(), CalendarAccess::Granted);
    ASSERT_TRUE(store().defaultCalendarForNewEvents());

    EventCalendar missing = *made;
    missing.identifier = u"no-such-calendar"_s;
    EXPECT_TRUE(store().eventsBetween(kEvening, kEvening + 1h, missing).fault);
    event.calendar = missing.identifier;
    EXPECT_EQ(store().apply({SaveEvent{event}}).front().fault, EventFault::Unavailable);
}

INSTANTIATE_TEST_SUITE_P(Calendars, EventStoreTest,
                         testing::Values(CalendarKind{"Folder", &makeFolderCalendar},
                                         CalendarKind{"Local", &makeLocalCalendar},
                                         CalendarKind{"Remote", &makeRemoteCalendar}),
                         [](const auto& kind) { return std::string(kind.param.name); });

} // namespace
} // namespace guide::test
