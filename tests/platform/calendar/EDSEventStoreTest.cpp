#include "RemoteCalendar.h"
#include "fakes/Files.h"
#include "platform/linux/calendar/EventStoreChoice.h"

namespace guide::test {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// What is special about the service, its caches and its servers.
class EDSEventStoreTest : public testing::Test {
  protected:
    static std::vector<CalendarEvent> read(CalendarUnderTest& test, const EventCalendar& calendar) {
        return test.store().eventsBetween(kEvening - 24h, kEvening + 72h, calendar).events;
    }
    static EventOutcome save(CalendarUnderTest& test, const EventCalendar& calendar, CalendarEvent event) {
        event.calendar = calendar.identifier;
        return test.store().apply({SaveEvent{event}}).front();
    }
    static void edit(const QString& file, const QByteArray& from, const QByteArray& to) {
        QByteArray text = contentOf(file);
        ASSERT_TRUE(text.contains(from)) << text.toStdString();
        ASSERT_TRUE(writeFile(file, text.replace(from, to)));
    }
};

TEST_F(EDSEventStoreTest, WhatWasChangedOnTheServerWins) {
    RemoteCalendar test;
    const EventCalendar calendar = test.calendar();
    for (int i = 0; i < 4; ++i) {
        ASSERT_TRUE(save(test, calendar, showEvent(u"ca%1"_s.arg(i), kEvening + i * 1min)).isDone());
    }
    std::vector<EventChange> changes;
    for (CalendarEvent event : read(test, calendar)) {
        event.startDate += 1h;
        changes.emplace_back(SaveEvent{event});
    }
    Announcements announcements(test.store());
    edit(test.server.file(u"ca1"_s), "SUMMARY:", "SUMMARY:Edited\\, ");
    ASSERT_TRUE(QFile::remove(test.server.file(u"ca2"_s)));
    const std::vector<EventOutcome> outcomes = test.store().apply(changes);
    EXPECT_TRUE(outcomes[0].isDone());
    EXPECT_EQ(outcomes[1].fault, EventFault::Conflict) << outcomes[1].message.toStdString();
    EXPECT_FALSE(outcomes[2].isDone()) << "deleted there";
    EXPECT_TRUE(outcomes[3].isDone()) << outcomes[3].message.toStdString();
    EXPECT_TRUE(announcements.arrives()) << "the service was asked to look again";
    std::vector<CalendarEvent> events;
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            events = read(test, calendar);
            return events.size() == 3;
        },
        20'000));
    EXPECT_TRUE(events[0].title.startsWith(u"Edited, "_s));
    EXPECT_EQ(test.server.file(u"ca2"_s), QString()) << "not made again";
}

TEST_F(EDSEventStoreTest, ChangesWaitForAServerThatIsDown) {
    RemoteCalendar test;
    const EventCalendar calendar = test.calendar();
    EXPECT_EQ(calendar.state, CalendarState::Ready);
    EXPECT_TRUE(calendar.allowsContentModifications);
    ASSERT_TRUE(save(test, calendar, showEvent(u"ca1"_s)).isDone());
    ASSERT_TRUE(save(test, calendar, showEvent(u"ca2"_s, kEvening + 1h)).isDone());
    test.server.stop();
    EXPECT_EQ(save(test, calendar, showEvent(u"ca3"_s)).fault, EventFault::Unavailable);
    EXPECT_EQ(test.calendar().state, CalendarState::Offline);
    EXPECT_TRUE(test.calendar().allowsContentModifications) << "it stays the chosen calendar";
    // After the service was started again, it keeps changes until it reaches the server.
    test.desktop.killService();
    EXPECT_TRUE(save(test, calendar, showEvent(u"ca3"_s, kEvening + 2h)).isDone());
    EXPECT_TRUE(QTest::qWaitFor([&] { return test.calendar().state != CalendarState::Ready; }, 20'000));
    EXPECT_TRUE(test.calendar().allowsContentModifications);
    CalendarEvent moved = read(test, calendar)[0];
    moved.startDate += 5min;
    EXPECT_TRUE(save(test, calendar, moved).isDone());
    // On another device.
    edit(test.server.file(u"ca2"_s), "SUMMARY:", "SUMMARY:Edited\\, ");
    CalendarEvent renamed = read(test, calendar)[1];
    renamed.startDate += 5min;
    EXPECT_TRUE(save(test, calendar, renamed).isDone());

    Announcements announcements(test.store());
    test.server.start();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            test.store().refreshSources();
            return !test.server.file(u"ca3"_s).isEmpty();
        },
        30'000));
    EXPECT_TRUE(contentOf(test.server.file(u"ca1"_s)).contains("DTSTART:20261123T192000Z"));
    EXPECT_TRUE(announcements.arrives()) << "the server's edit replaces the one that was made meanwhile";
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return read(test, calendar)[1].title.startsWith(u"Edited, "_s); }, 20'000));
}

TEST_F(EDSEventStoreTest, OpensCalendarsAgainWhenTheServiceDies) {
    DesktopCalendar test;
    const EventCalendar calendar = test.calendar();
    ASSERT_TRUE(save(test, calendar, showEvent(u"ca1"_s)).isDone());
    ASSERT_EQ(read(test, calendar).size(), 1U);
    Announcements announcements(test.store());
    test.killService();
    EXPECT_TRUE(save(test, calendar, showEvent(u"ca2"_s)).isDone());
    EXPECT_EQ(read(test, calendar).size(), 2U);
    EXPECT_TRUE(announcements.arrives()) << "something may have been missed";
    test.other.close();
    test.erase("ca1@quellin");
    EXPECT_TRUE(announcements.arrives()) << "it is watched again";
}

TEST_F(EDSEventStoreTest, SeesThatTheProcessOfACalendarDies) {
    DesktopCalendar test;
    const EventCalendar calendar = test.calendar();
    ASSERT_TRUE(save(test, calendar, showEvent(u"ca1"_s)).isDone());
    ASSERT_EQ(read(test, calendar).size(), 1U);
    Announcements announcements(test.store());
    test.signalService(SIGKILL, test.backend());
    EXPECT_TRUE(announcements.arrives()) << "without a call of the guide";
    test.other.close();
    ASSERT_EQ(read(test, calendar).size(), 1U);
    test.erase("ca1@quellin");
    EXPECT_TRUE(announcements.arrives()) << "it is watched again";
}

TEST_F(EDSEventStoreTest, LeavesACalendarThatHangsAlone) {
    DesktopCalendar test;
    const EventCalendar calendar = test.calendar();
    ASSERT_TRUE(save(test, calendar, showEvent(u"ca1"_s)).isDone());
    const std::size_t before = test.store().calendars().value().size();
    const QString backend = test.backend();
    EDSCalendar hung(test.connection, calendar.identifier, 1s);
    ASSERT_EQ(hung.open(), std::nullopt);

    test.signalService(SIGSTOP, backend);
    test.connection.beginCalls(1ms);
    EXPECT_FALSE(test.other.get("ca1@quellin").isOk());
    test.connection.beginCalls(3s);
    EXPECT_FALSE(hung.get("ca1@quellin").isOk());
    const std::unique_ptr<EventStore> second = test.secondStore();
    EXPECT_FALSE(second->defaultCalendarForNewEvents()) << "it may be that one, so none is made";
    test.connection.beginCalls(1min);
    test.signalService(SIGCONT, backend);

    EXPECT_TRUE(test.other.get("ca1@quellin").isOk()) << "a call without time tells nothing of the calendar";
    EXPECT_TRUE(QTest::qWaitFor([&] { return hung.get("ca1@quellin").isOk(); }, 20'000));
    EXPECT_EQ(second->eventsBetween(kEvening, kEvening + 1h, calendar).fault,
              u"the calendar does not answer"_s);
    EXPECT_EQ(test.store().calendars().value().size(), before);
}

TEST_F(EDSEventStoreTest, ListsCalendarsThatCannotBeWritten) {
    const QTemporaryDir folder;
    const QString rights = folder.filePath(u"rights"_s);
    ASSERT_TRUE(writeFile(rights, "[all]\nuser: .*\ncollection: .*\npermissions: Rr\n"));
    RemoteCalendar readOnly({u"--rights-type=from_file"_s, u"--rights-file="_s + rights});
    EventCalendar calendar = readOnly.calendar();
    EXPECT_EQ(calendar.source, u"CalDAV"_s);
    EXPECT_EQ(calendar.color, (std::array{1.0, 0.0, 0.0, 1.0}));
    EXPECT_FALSE(calendar.allowsContentModifications);
    EXPECT_EQ(save(readOnly, calendar, showEvent(u"ca1"_s)).fault, EventFault::ReadOnly);
    EXPECT_EQ(readOnly.store().defaultCalendarForNewEvents()->identifier, u"system-calendar"_s);
}

TEST_F(EDSEventStoreTest, SaysWhichCalendarsWaitForAPassword) {
    RemoteCalendar locked({u"--auth-type=http_x_remote_user"_s});
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return locked.calendar().state == CalendarState::Unavailable; }, 20'000));
    EXPECT_EQ(locked.store().defaultCalendarForNewEvents()->identifier, u"system-calendar"_s);
}

TEST_F(EDSEventStoreTest, AsksTheServiceForZones) {
    DesktopCalendar test;
    const EventCalendar calendar = test.calendar();
    ASSERT_EQ(test.other.open(), std::nullopt);
    ASSERT_TRUE(test.connection
                    .call(test.other.object(), u"AddTimezone"_s,
                          {u"BEGIN:VTIMEZONE\r\nTZID:Moon\r\nBEGIN:STANDARD\r\nDTSTART:19700101T000000\r\n"
                           "TZOFFSETFROM:+0015\r\nTZOFFSETTO:+0015\r\nEND:STANDARD\r\nEND:VTIMEZONE\r\n"_s})
                    .isOk());
    test.put("moon", "BEGIN:VEVENT\r\nUID:moon\r\nDTSTAMP:20261101T100000Z\r\n"
                     "DTSTART;TZID=Moon:20261123T193000\r\nSUMMARY:x\r\nEND:VEVENT\r\n");
    const std::vector<CalendarEvent> events = read(test, calendar);
    ASSERT_EQ(events.size(), 1U);
    EXPECT_EQ(events.front().startDate, kEvening);
}

TEST(EventStoreChoiceTest, PrefersTheCalendarsOfTheDesktop) {
    const ManualClock clock;
    const QTemporaryDir folder;
    QStringList names;
    for (const bool hasServices : {true, false}) {
        const DesktopSession session(hasServices);
        for (const QString& address : {session.busAddress(), QString(), u"unix:path=/nowhere"_s}) {
            names << eventStoreFor({folder.path(), kScheme, address}, clock)->name();
        }
    }
    const QString desktop = u"Calendars of the desktop"_s;
    const QString files = u"Folder of calendar files"_s;
    EXPECT_EQ(names, (QStringList{desktop, files, files, files, files, files}));
}

} // namespace

std::unique_ptr<CalendarUnderTest> makeLocalCalendar() {
    return std::make_unique<DesktopCalendar>();
}

std::unique_ptr<CalendarUnderTest> makeRemoteCalendar() {
    return std::make_unique<RemoteCalendar>();
}

} // namespace guide::test
