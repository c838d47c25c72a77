#include "platform/linux/calendar/FolderEventStore.h"

#include "FolderCalendar.h"
#include "platform/linux/calendar/EventWriting.h"

#include <QDir>
#include <QTemporaryDir>

#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>

namespace guide::test {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class FolderEventStoreTest : public testing::Test {
  protected:
    EventOutcome save(CalendarEvent event) {
        event.calendar = calendar.identifier;
        return store.apply({SaveEvent{event}}).front();
    }
    std::vector<CalendarEvent> read() {
        return store.eventsBetween(kEvening - 24h, kEvening + 72h, calendar).events;
    }

    FolderCalendar test;
    EventStore& store = test.store();
    const EventCalendar calendar = test.calendar();
};

TEST_F(FolderEventStoreTest, ShowsAFolderAsOtherProgramsDo) {
    EXPECT_EQ(calendar.title, u"TV"_s) << "made for the first event";
    EXPECT_EQ(contentOf(test.parent() + u"/tv/displayname"_s), "TV");
    const QDir parent(test.parent());
    ASSERT_TRUE(parent.mkdir(u"family"_s) && parent.mkdir(u".hidden"_s));
    ASSERT_TRUE(writeFile(parent.filePath(u"family/displayname"_s), "Rodina \n"));
    ASSERT_TRUE(writeFile(parent.filePath(u"family/color"_s), "#ff000080\n"));
    ASSERT_TRUE(writeFile(parent.filePath(u"note"_s), "no calendar"));
    const std::vector<EventCalendar> all = store.calendars().value();
    ASSERT_EQ(all.size(), 2U);
    EXPECT_EQ(all[0].title, u"Rodina"_s);
    EXPECT_EQ(all[0].color[0], 1.0);
    EXPECT_NEAR(all[0].color[3], 0.5, 0.01);
}

TEST_F(FolderEventStoreTest, WritesNothingWhenNothingChanged) {
    ASSERT_TRUE(save(showEvent(u"ca1"_s)).isDone());
    const QByteArray before = test.get("ca1@quellin");
    test.clock.advance(1h);
    EXPECT_TRUE(save(read().front()).isDone());
    EXPECT_EQ(test.get("ca1@quellin"), before);
    EXPECT_TRUE(before.contains("SEQUENCE:0\r\n") && before.contains("LAST-MODIFIED:20251231T183000Z"));
    CalendarEvent event = read().front();
    event.startDate += 5min;
    EXPECT_TRUE(save(event).isDone());
    const QByteArray after = test.get("ca1@quellin");
    EXPECT_TRUE(after.contains("SEQUENCE:1\r\n") && after.contains("LAST-MODIFIED:20251231T193000Z"));
    test.clock.advance(-24h);
    event = read().front();
    event.startDate += 5min;
    EXPECT_TRUE(save(event).isDone());
    EXPECT_TRUE(test.get("ca1@quellin").contains("LAST-MODIFIED:20251231T193001Z"))
        << "the clock was set back";
}

// All of a file that is not the event of the guide stays as it is, by the byte.
TEST_F(FolderEventStoreTest, KeepsTheRestOfAFile) {
    const QByteArray zone = "BEGIN:VTIMEZONE\nTZID:Moon\nBEGIN:STANDARD\nDTSTART:19700101T000000\n"
                            "TZOFFSETFROM:+0100\nTZOFFSETTO:+0100\nEND:STANDARD\nEND:VTIMEZONE\n";
    const QByteArray other = "BEGIN:VEVENT\nUID:b\nDTSTART;TZID=Moon:20261124T100000\nGEO:not a place\n"
                             "SUMMARY:fol\n ded\nX-EMPTY:\nEND:VEVENT\n";
    const QByteArray begin = "BEGIN:VCALENDAR\nVERSION:2.0\nX-WR-CALNAME:x\n" + zone + other;
    const QByteArray end = "BEGIN:VTODO\nUID:t\nEND:VTODO\nEND:VCALENDAR\n";
    const QByteArray own =
        "BEGIN:VEVENT\nUID:ca1@quellin\nDTSTART;TZID=Moon:20261123T201500\nDURATION:PT45M\n"
        "URL:quellin-guide://ca1\nBEGIN:VALARM\nTRIGGER;VALUE=DATE-TIME:20261123T190500Z\n"
        "ACTION:DISPLAY\nX-ID:7\nEND:VALARM\nEND:VEVENT\n";
    ASSERT_TRUE(writeFile(test.file("mixed"), begin + own + end));
    std::vector<CalendarEvent> events = read();
    ASSERT_EQ(events.size(), 2U);
    CalendarEvent event = events.front();
    EXPECT_EQ(event.startDate, kEvening);
    EXPECT_EQ(event.endDate, kEvening + 45min);
    EXPECT_EQ(event.alarmOffsets, std::vector<std::chrono::seconds>{-10min});
    event.startDate += 1h;
    *event.endDate += 1h;
    ASSERT_TRUE(save(event).isDone());
    QByteArray text = contentOf(test.file("mixed"));
    EXPECT_TRUE(text.startsWith(begin) && text.endsWith(end));
    EXPECT_TRUE(text.contains("\nDTEND:20261123T210000Z\n") && !text.contains("DURATION"));
    EXPECT_TRUE(text.contains("\nX-ID:7\n")) << "the alarm is the same";
    event = read().front();
    EXPECT_EQ(event.alarmOffsets, std::vector<std::chrono::seconds>{-10min}) << "moved with the event";
    ASSERT_TRUE(store.apply({RemoveEvent{event}}).front().isDone());
    EXPECT_EQ(contentOf(test.file("mixed")), begin + end);
}

TEST_F(FolderEventStoreTest, ReadsTimesOfEveryKind) {
    // The device's zone is UTC+11 then.
    const struct {
        const char* name;
        QByteArray lines;
        Moment start;
        std::optional<std::chrono::minutes> length;
    } rows[] = {
        {"UTC", "DTSTART:20261123T191500Z\nDTEND:20261123T201500Z", kEvening, 60min},
        {"zone of the device's list", "DTSTART;TZID=Europe/Prague:20261123T201500", kEvening, {}},
        {"with a prefix", "DTSTART;TZID=/x.org/2021/Europe/Prague:20261123T201500", kEvening, {}},
        {"quoted, in lower case", "dtstart;tzid=\"Europe/Prague\":20261123T201500", kEvening, {}},
        {"of another system", "DTSTART;TZID=Central Europe Standard Time:20261123T201500", kEvening, {}},
        {"floating", "DTSTART:20261124T061500\nDURATION:P1DT1H", kEvening, 25h},
        {"unknown zone", "DTSTART;TZID=Nowhere:20261124T061500", kEvening, {}},
        {"a day", "DTSTART;VALUE=DATE:20261124\nDTEND;VALUE=DATE:20261125", kEvening - 375min, 24h},
        {"a broken end", "DTSTART:20261123T191500Z\nDTEND:soon", kEvening, {}},
        {"a fold in the name", "DTS\n TART:20261123T191500Z", kEvening, {}},
    };
    for (const auto& row : rows) {
        ASSERT_TRUE(writeFile(test.file("a"), "BEGIN:VCALENDAR\nBEGIN:VEVENT\nUID:a\n" + row.lines +
                                                  "\nEND:VEVENT\nEND:VCALENDAR\n"));
        const std::vector<CalendarEvent> events = read();
        ASSERT_EQ(events.size(), 1U) << row.name;
        EXPECT_EQ(events.front().startDate, row.start) << row.name;
        EXPECT_EQ(events.front().endDate, row.length ? std::optional(row.start + *row.length) : std::nullopt)
            << row.name;
    }
}

TEST_F(FolderEventStoreTest, SurvivesAnyFile) {
    ASSERT_TRUE(save(showEvent(u"ca1"_s)).isDone());
    const QByteArray good = test.get("ca1@quellin");
    const QByteArray head = "BEGIN:VCALENDAR\nBEGIN:VEVENT\nUID:a\n";
    const QByteArray tail = "\nDTSTART;TZID=Z:20261123T191500\nEND:VEVENT\nEND:VCALENDAR\n";
    const auto zone = [&](const QByteArray& rule) {
        return "BEGIN:VCALENDAR\nBEGIN:VTIMEZONE\nTZID:Z\nBEGIN:STANDARD\nDTSTART:16010101T000000\nRRULE:" +
               rule +
               "\nTZOFFSETFROM:+0100\nTZOFFSETTO:+0200\nEND:STANDARD\nEND:VTIMEZONE\nBEGIN:VEVENT\nUID:a" +
               tail;
    };
    const struct {
        const char* name;
        QByteArray content;
        bool isEvent;
    } rows[] = {
        {"empty", "", false},
        {"noise", QByteArray(1000, '\0') + "\xFF\xFE;:\n", false},
        {"cut off", good.left(good.size() - 20), false},
        {"crossed", "BEGIN:VCALENDAR\nBEGIN:VEVENT\nEND:VCALENDAR\nEND:VEVENT\n", false},
        {"nested deeply", QByteArray("BEGIN:VEVENT\n").repeated(70'000), false},
        {"no start", head + "SUMMARY:x\nEND:VEVENT\nEND:VCALENDAR\n", false},
        {"month 13", head + "DTSTART:20261323T191500Z\nEND:VEVENT\nEND:VCALENDAR\n", false},
        {"one endless line", head + "SUMMARY" + QByteArray(";A=B").repeated(200'000) + ":x" + tail, true},
        {"many alarms",
         head + QByteArray("BEGIN:VALARM\nTRIGGER:PT1M\nEND:VALARM\n").repeated(15'000) + tail.mid(1), true},
        {"many zones of one name, used many times",
         "BEGIN:VCALENDAR\n" + QByteArray("BEGIN:VTIMEZONE\nTZID:Z\nEND:VTIMEZONE\n").repeated(9'000) +
             QByteArray("BEGIN:VEVENT\nUID:b\nRECURRENCE-ID:20261123T191500\n"
                        "DTSTART;TZID=Z:20261123T191500\nEND:VEVENT\n")
                 .repeated(7'000) +
             "BEGIN:VEVENT\nUID:a" + tail,
         true},
        {"a zone that changes every second", zone("FREQ=SECONDLY"), true},
        {"and one that hides it", zone("FREQ=YEARLY;BYSECOND=1,2,3;BYMINUTE=1,2,3"), true},
        {"endless duration", head + "DURATION:P99999999999999W" + tail, true},
    };
    for (const auto& row : rows) {
        QFile::remove(test.file("a"));
        ASSERT_TRUE(writeFile(test.file("a"), row.content));
        EXPECT_EQ(read().size(), row.isEvent ? 2U : 1U) << row.name;
    }
    QFile large(test.file("a"));
    ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.resize(100 << 20));
    ASSERT_TRUE(QDir(test.parent()).mkpath(u"tv/folder.ics"_s));
    ASSERT_EQ(mkfifo(QFile::encodeName(test.file("pipe")).constData(), 0600), 0);
    EXPECT_EQ(read().size(), 1U);
    ASSERT_TRUE(writeFile(test.file("ca1@quellin"), good.left(100)));
    EXPECT_EQ(read().size(), 1U) << "while it is being written, it has the events that it had";
    EXPECT_FALSE(store.apply({RemoveEvent{read().front()}}).front().isDone());
}

TEST_F(FolderEventStoreTest, WhatCannotBeWrittenIsAFaultAndLosesNothing) {
    ASSERT_TRUE(save(showEvent(u"ca1"_s)).isDone());
    const QByteArray before = test.get("ca1@quellin");
    const auto move = [&] {
        CalendarEvent event = read().front();
        event.startDate += 1h;
        event.title = QString(2000, u'x');
        return save(event).fault;
    };
    struct rlimit limit{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &limit), 0);
    const struct rlimit small{1000, limit.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    EXPECT_EQ(move(), EventFault::Failed) << "as on a full disk";
    CalendarEvent larger = showEvent(u"ca2"_s);
    larger.title = QString(2000, u'x');
    EXPECT_EQ(save(larger).fault, EventFault::Failed);
    CalendarEvent twice = read().front();
    twice.title = larger.title;
    for (const EventOutcome& outcome : store.apply({SaveEvent{twice}, SaveEvent{twice}})) {
        EXPECT_EQ(outcome.fault, EventFault::Failed) << "neither of two equal changes is written";
    }
    EXPECT_TRUE(save(showEvent(u"ca3"_s)).isDone()) << "the limit is on larger ones";
    setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(test.get("ca1@quellin"), before);
    EXPECT_EQ(QDir(test.parent() + u"/tv"_s).entryList(QDir::Files | QDir::Hidden).size(), 4);

    ASSERT_TRUE(QFile::rename(test.file("ca1@quellin"), test.parent() + u"/elsewhere"_s));
    ASSERT_TRUE(QFile::link(test.parent() + u"/elsewhere"_s, test.file("ca1@quellin")));
    EXPECT_EQ(move(), EventFault::ReadOnly) << "a link is not replaced by a file";

    CalendarEvent event = read().front();
    ASSERT_TRUE(QDir(test.parent() + u"/tv"_s).removeRecursively());
    EXPECT_EQ(store.apply({RemoveEvent{event}}).front().fault, EventFault::Unavailable);
    EXPECT_TRUE(store.eventsBetween(kEvening, kEvening + 1h, calendar).fault);
    event.identifier = u"../elsewhere"_s;
    EXPECT_EQ(store.apply({RemoveEvent{event}}).front().fault, EventFault::Unavailable);
    event.identifier = u"tv/../../x.ics"_s;
    EXPECT_FALSE(store.apply({RemoveEvent{event}}).front().isDone());
}

TEST_F(FolderEventStoreTest, ChangesTheRightEventOfAFile) {
    const auto component = [](const QByteArray& uid, const QByteArray& lines) {
        return "BEGIN:VEVENT\r\nUID:" + uid + "\r\nURL:quellin-guide://" + uid +
               "\r\nDTSTART:20261123T191500Z\r\n" + lines + "END:VEVENT\r\n";
    };
    const QByteArray other = component("y", {});
    ASSERT_TRUE(writeFile(test.file("a"), calendarWith(component("x", "RECURRENCE-ID:20261123T191500Z\r\n") +
                                                       other + component("x", {}))));
    std::vector<CalendarEvent> events = read();
    ASSERT_EQ(events.size(), 2U);
    const auto x = std::ranges::find(events, QUrl(u"quellin-guide://x"_s), &CalendarEvent::url);
    ASSERT_NE(x, events.end());
    EXPECT_EQ(store.eventWithIdentifier(x->identifier), *x);
    ASSERT_TRUE(store.apply({RemoveEvent{*x}}).front().isDone());
    EXPECT_EQ(contentOf(test.file("a")), calendarWith(other));
}

TEST_F(FolderEventStoreTest, RemovesWhatAnEarlierProcessLeft) {
    const QString folder = test.parent() + u"/tv/"_s;
    const QString left = folder + u".replacing-2147483646-1"_s;
    const QString others = folder + u".note.swp"_s;
    ASSERT_TRUE(writeFile(left, "x") && writeFile(others, "x"));
    ASSERT_TRUE(save(showEvent(u"ca1"_s)).isDone());
    EXPECT_FALSE(QFile::exists(left));
    EXPECT_TRUE(QFile::exists(others));
}

// An open file with a lease cannot be opened by others.
TEST_F(FolderEventStoreTest, AFileThatCannotBeReadNowKeepsItsEvents) {
    ASSERT_TRUE(save(showEvent(u"ca1"_s)).isDone());
    ASSERT_EQ(read().size(), 1U);
    ASSERT_TRUE(
        writeFile(test.file("ca1@quellin"), test.get("ca1@quellin").replace("SUMMARY:", "SUMMARY:A ")));
    {
        const auto handler = std::signal(SIGIO, SIG_IGN);
        QFile leased(test.file("ca1@quellin"));
        ASSERT_TRUE(leased.open(QIODevice::ReadWrite));
        ASSERT_EQ(::fcntl(leased.handle(), F_SETLEASE, F_WRLCK), 0);
        EXPECT_EQ(read().size(), 1U);
        EXPECT_EQ(save(showEvent(u"ca1"_s)).fault, EventFault::Unavailable) << "not made a second time";
        leased.close();
        std::signal(SIGIO, handler);
    }
    ASSERT_EQ(read().size(), 1U);
    EXPECT_TRUE(read().front().title.startsWith(u"A "_s)) << "read when that is possible";
}

TEST_F(FolderEventStoreTest, AFolderThatVanishesAndReturnsIsAnnounced) {
    ASSERT_TRUE(save(showEvent(u"ca1"_s)).isDone());
    Announcements announcements(store);
    ASSERT_TRUE(QDir(QFileInfo(test.parent()).path()).rename(u"calendars"_s, u"away"_s));
    EXPECT_TRUE(announcements.arrives());
    ASSERT_TRUE(QDir(QFileInfo(test.parent()).path()).rename(u"away"_s, u"calendars"_s));
    EXPECT_TRUE(announcements.arrives());
    QFile file(test.file("ca1@quellin"));
    ASSERT_TRUE(file.open(QIODevice::Append) && file.write("\n") == 1);
    file.close();
    EXPECT_TRUE(announcements.arrives()) << "written in place";
    ASSERT_TRUE(QDir(test.parent()).mkdir(u"new"_s));
    EXPECT_TRUE(announcements.arrives());
    ASSERT_TRUE(writeFile(test.parent() + u"/new/displayname"_s, "New"));
    EXPECT_TRUE(announcements.arrives()) << "in a folder that is new";
}

// A range must not read thousands of files that have not changed.
TEST_F(FolderEventStoreTest, ReadsOnlyFilesThatChanged) {
    constexpr int kFiles = 10'000;
    for (int i = 0; i < kFiles; ++i) {
        const QByteArray uid = "e" + QByteArray::number(i);
        test.put(uid, newEventComponent(showEvent(u"ca1"_s, kEvening + i * 1s), uid, kEvening));
    }
    EXPECT_EQ(read().size(), std::size_t(kFiles));
    const auto bytesRead = [] {
        const QByteArray counters = contentOf(u"/proc/self/io"_s);
        const qsizetype at = counters.indexOf(' ') + 1;
        return counters.mid(at, counters.indexOf('\n') - at).toLongLong();
    };
    test.put("e7", newEventComponent(showEvent(u"ca2"_s), "e7", kEvening));
    const auto before = bytesRead();
    const std::vector<CalendarEvent> events = read();
    EXPECT_LT(bytesRead() - before, 100'000);
    EXPECT_EQ(events.size(), std::size_t(kFiles));
    EXPECT_EQ(std::ranges::count(events, QUrl(u"quellin-guide://ca2"_s), &CalendarEvent::url), 1);
}

} // namespace

std::unique_ptr<CalendarUnderTest> makeFolderCalendar() {
    return std::make_unique<FolderCalendar>();
}

} // namespace guide::test
