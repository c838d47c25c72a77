#pragma once

#include "platform/Clock.h"
#include "platform/calendar/EventStore.h"
#include "platform/linux/calendar/CalendarFolder.h"
#include "platform/linux/watch/FolderTreeWatch.h"

#include <QSet>

#include <map>
#include <memory>
#include <mutex>

namespace guide {

/// Calendars that are folders with one iCalendar file for each event, and files `displayname` and `color`, as
/// synchronisation programs keep them. Programs for calendars can use the folders at the same time. Only
/// events whose URL has the guide's scheme are written.
///
/// The identifier of a calendar is the name of its folder, that of an event is "CALENDAR/FILE", with "#UID"
/// after it for further events of a file.
class FolderEventStore final : public EventStore {
  public:
    /// `parent` is the folder that the calendars are in; it is created with the first one.
    FolderEventStore(const QString& parent, const QString& scheme, const Clock& clock);
    ~FolderEventStore() override;

    CalendarAccess access() override;
    void requestAccess(std::function<void(bool granted)> completion) override;
    std::optional<std::vector<EventCalendar>> calendars() override;
    /// Creates a calendar when there is none.
    std::optional<EventCalendar> defaultCalendarForNewEvents() override;
    std::optional<EventCalendar> createCalendar(const QString& title) override;
    void refreshSources() override {}

    EventRange eventsBetween(Moment start, Moment end, const EventCalendar& calendar) override;
    std::optional<CalendarEvent> eventWithIdentifier(const QString& identifier) override;
    std::vector<EventOutcome> apply(const std::vector<EventChange>& changes) override;
    /// The function is called on a thread of the store, and must not call the store. Setting one reads the
    /// names of all files.
    void setCalendarsChanged(std::function<void()> calendarsChanged) override;
    QString name() const override;

  private:
    /// The state of all folders, by name.
    using Known = QHash<QString, FolderStamps>;

    /// Forgets what was read in another zone. At the start of a call.
    void checkZone();
    /// Up to date; nothing when there is no such calendar. It is valid until the end of the call.
    CalendarFolder* folder(const QString& identifier);
    /// Nothing when they cannot be read.
    std::optional<Known> stampsNow() const;
    void look();

    const QString m_parent;
    const Clock& m_clock;

    std::mutex m_mutex;
    // All guarded.
    EventReading m_reading;
    std::map<QString, std::unique_ptr<CalendarFolder>> m_folders;
    /// The zone that floating times were read in.
    QByteArray m_zone;
    /// What needs no announcement.
    Known m_known;
    /// Those in which no temporary file of an earlier process is left.
    QSet<QString> m_cleaned;

    /// Held while the function is called, and for nothing that takes long. Locked after m_mutex.
    std::mutex m_functionMutex;
    std::function<void()> m_calendarsChanged;
    /// From the time somebody is to be called. The last member: its thread uses the others.
    std::unique_ptr<FolderTreeWatch> m_watch;
};

} // namespace guide
