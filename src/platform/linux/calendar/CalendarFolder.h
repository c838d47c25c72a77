#pragma once

#include "platform/linux/FileStamp.h"
#include "platform/linux/calendar/EventReading.h"

#include <QHash>
#include <QString>

#include <optional>
#include <vector>

namespace guide {

/// The files of a folder and their stamps, those that do not matter to calendars left out.
using FolderStamps = QHash<QString, FileStamp>;

/// The end of the names of files with events.
inline constexpr QLatin1StringView kCalendarSuffix{".ics"};

/// Nothing when the folder cannot be read.
std::optional<FolderStamps> folderStamps(const QString& folder);

/// A file with events, as it was read last.
struct CalendarFile {
    FileStamp stamp;
    /// To be read again: the stamp may be that of a later state as well, or it could not be read.
    bool isRecent = false;
    /// Of the content; see contentRevision.
    QString revision;
    std::vector<StoredEvent> events;
    /// The UID of its first event that is no occurrence; empty when there is none.
    QByteArray firstUid;
};

/// Where an event is in a folder.
struct EventPlace {
    /// The name of the file.
    QString file;
    /// Empty for the first event of the file that is no occurrence.
    QByteArray uid;

    /// "FILE" or "FILE#UID".
    QString text() const;
    static EventPlace fromText(const QString& text);
};

/// Nothing when the file is missing, not readable or too large.
std::optional<QByteArray> calendarFileContent(const QString& path);

/// The events of a folder of iCalendar files. Reads only what has changed since the last time. Must be used
/// by one thread at a time.
class CalendarFolder {
  public:
    CalendarFolder(const QString& path, EventReading& reading)
        : m_path(path)
        , m_reading(reading) {}

    const QString& path() const { return m_path; }
    /// Reads the files that changed. False when the folder cannot be read.
    bool update();
    /// By name, as of the last update.
    const QHash<QString, CalendarFile>& files() const { return m_files; }

    /// As of the last update; null when there is none.
    const StoredEvent* event(const EventPlace& place) const;
    /// Where the event of a file is.
    static EventPlace place(const QString& name, const CalendarFile& file, const StoredEvent& event);

  private:
    void read(const QString& name, const FileStamp& stamp);

    const QString m_path;
    EventReading& m_reading;
    QHash<QString, CalendarFile> m_files;
};

} // namespace guide
