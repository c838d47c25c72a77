#pragma once

#include "platform/calendar/EventStore.h"
#include "platform/memory/ManualClock.h"

#include <QString>

#include <chrono>
#include <condition_variable>
#include <gtest/gtest.h>
#include <memory>
#include <mutex>

namespace guide::test {

inline const QString kScheme = QStringLiteral("quellin-guide");

/// 23 November 2026, 19:15 UTC.
inline constexpr Moment kEvening = std::chrono::sys_days(std::chrono::year(2026) / 11 / 23) +
                                   std::chrono::hours(19) + std::chrono::minutes(15);

/// A store with a calendar, and another program that uses the calendar too.
class CalendarUnderTest {
  public:
    virtual ~CalendarUnderTest() = default;

    virtual EventStore& store() = 0;
    virtual EventCalendar calendar() = 0;
    /// A guide on the same calendars.
    virtual std::unique_ptr<EventStore> secondStore() = 0;

    // What the other program does.
    virtual QByteArray get(const QByteArray& uid) = 0;
    /// Creates or replaces the event; a VEVENT.
    virtual void put(const QByteArray& uid, const QByteArray& component) = 0;
    virtual void erase(const QByteArray& uid) = 0;

    ManualClock clock;
};

struct CalendarKind {
    const char* name;
    std::unique_ptr<CalendarUnderTest> (*make)();
};

std::unique_ptr<CalendarUnderTest> makeFolderCalendar();
std::unique_ptr<CalendarUnderTest> makeLocalCalendar();
std::unique_ptr<CalendarUnderTest> makeRemoteCalendar();

inline CalendarEvent showEvent(const QString& digest, Moment start = kEvening) {
    CalendarEvent event;
    event.title = QStringLiteral("Zprávy, počasí; \\ a sport");
    event.location = QStringLiteral("ČT 1");
    event.url = QUrl(kScheme + QStringLiteral("://") + digest);
    event.startDate = start;
    event.endDate = start + std::chrono::minutes(45);
    event.alarmOffsets = {std::chrono::minutes(-10)};
    return event;
}

/// The UID of a stored event that the file's name, where there are files, is made of.
inline QByteArray uidOf(const CalendarEvent& event) {
    QString name = event.identifier.mid(event.identifier.indexOf(u'/') + 1);
    if (name.endsWith(QStringLiteral(".ics"))) {
        name.chop(4);
    }
    return name.toUtf8();
}

/// Waits for announcements of changes.
class Announcements {
  public:
    explicit Announcements(EventStore& store)
        : m_store(store) {
        m_store.setCalendarsChanged([this] {
            const std::lock_guard lock(m_mutex);
            ++m_count;
            m_changed.notify_all();
        });
        // Now the store watches.
        m_store.access();
    }
    Announcements(const Announcements&) = delete;
    Announcements& operator=(const Announcements&) = delete;
    ~Announcements() { m_store.setCalendarsChanged(nullptr); }

    /// Whether there was one since the last call, or is one soon.
    bool arrives() {
        std::unique_lock lock(m_mutex);
        const bool isThere =
            m_changed.wait_for(lock, std::chrono::seconds(20), [this] { return m_count > m_seen; });
        m_seen = m_count;
        return isThere;
    }
    int count() {
        const std::lock_guard lock(m_mutex);
        return m_count;
    }

  private:
    EventStore& m_store;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    int m_count = 0;
    int m_seen = 0;
};

} // namespace guide::test
