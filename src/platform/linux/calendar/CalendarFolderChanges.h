#pragma once

#include "platform/linux/calendar/CalendarFolder.h"

#include <QByteArray>

#include <map>
#include <optional>
#include <vector>

namespace guide {

/// Changes to the events of one folder: collected in memory, then made together.
class CalendarFolderChanges {
  public:
    CalendarFolderChanges(CalendarFolder& folder, EventReading& reading, Moment now)
        : m_folder(folder)
        , m_reading(reading)
        , m_now(now) {}

    /// A place without a file is for a new event. Appends the place of the event to the outcome's identifier
    /// if it is new. The outcome must stay where it is until commit.
    void save(const EventPlace& place, const CalendarEvent& event, EventOutcome& outcome);
    void remove(const EventPlace& place, const CalendarEvent& event, EventOutcome& outcome);

    /// Makes the changes, sets the faults of the outcomes that were passed above, and updates the folder.
    /// Returns the files that were written, by name, and whose content is still what was written.
    FolderStamps commit();
    /// After commit: whether the file of this name was removed.
    bool hasRemoved(const QString& name) const;

  private:
    /// The state that a file gets.
    struct File {
        /// When it was read; nothing for a new file.
        std::optional<FileStamp> before;
        /// Of the content when it was read.
        QString revision;
        /// Empty to remove the file.
        QByteArray content;
        bool isChanged = false;
        bool isRemoved = false;
        std::vector<EventOutcome*> outcomes{};
    };
    /// An event and where it is.
    struct Found {
        File* file = nullptr;
        ICalendarText text;
        StoredEvent event;
    };

    /// Nothing, with the fault set, when the event may not be changed.
    std::optional<Found> find(const EventPlace& place, const QString& revision, EventOutcome& outcome);
    void change(const Found& found, const CalendarEvent& event, EventOutcome& outcome);
    void create(const CalendarEvent& event, EventOutcome& outcome);
    File* open(const QString& name);
    /// By UID.
    const QHash<QByteArray, EventPlace>& places();
    bool isUnchanged(const QString& name, const File& file) const;
    void finish(File& file, bool isDone) const;

    CalendarFolder& m_folder;
    EventReading& m_reading;
    const Moment m_now;
    /// By name.
    std::map<QString, File> m_files;
    std::optional<QHash<QByteArray, EventPlace>> m_places;
};

} // namespace guide
