#include "platform/linux/calendar/FolderEventStore.h"

#include "platform/files/FileContent.h"
#include "platform/files/FileReplacement.h"
#include "platform/linux/calendar/CalendarColor.h"
#include "platform/linux/calendar/CalendarFolderChanges.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kMostCalendars = 200;
constexpr qsizetype kLongestTitle = 200;
constexpr qint64 kLargestDescription = 4'096;

bool isWritableFolder(const QString& path) {
    return ::access(QFile::encodeName(path).constData(), W_OK | X_OK) == 0 && QFileInfo(path).isDir();
}

/// The first line of a small file.
QString line(const QString& path) {
    const QByteArray content = fileContent(path, kLargestDescription).value_or(QByteArray());
    return QString::fromUtf8(content.split('\n').first()).trimmed().left(kLongestTitle);
}

/// A name for the folder of a calendar that no file system and no shell objects to.
QString folderName(const QString& title) {
    QString name;
    for (const QChar character : title) {
        if (character.isLetterOrNumber()) {
            name += character.toLower();
        } else if (!name.isEmpty() && !name.endsWith(u'-')) {
            name += u'-';
        }
    }
    name.truncate(40);
    return name.isEmpty() ? u"calendar"_s : name;
}

/// The names of the folders in it, sorted; nothing when they cannot be told. A missing folder has none.
std::optional<QStringList> foldersIn(const QString& parent) {
    std::error_code error;
    const std::filesystem::path path(QFile::encodeName(parent).toStdString());
    std::filesystem::directory_iterator entry(path, error);
    QStringList names;
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        std::error_code unknown;
        if (!name.starts_with('.') && entry->is_directory(unknown)) {
            names << QFile::decodeName(QByteArray::fromStdString(name));
        }
    }
    if (error && error != std::errc::no_such_file_or_directory && error != std::errc::not_a_directory) {
        return std::nullopt;
    }
    names.sort();
    return names.mid(0, kMostCalendars);
}

EventCalendar calendarIn(const QString& parent, const QString& name) {
    const QString path = parent + u'/' + name;
    const QString home = QDir::homePath();
    const QString title = line(path + "/displayname"_L1);
    EventCalendar calendar;
    calendar.identifier = name;
    calendar.title = title.isEmpty() ? name : title;
    calendar.source = parent.startsWith(home + u'/') ? u'~' + parent.mid(home.size()) : parent;
    calendar.color = calendarColor(line(path + "/color"_L1)).value_or(calendar.color);
    calendar.allowsContentModifications = isWritableFolder(path);
    return calendar;
}

/// The calendar and the file of an event's identifier.
std::pair<QString, QString> parts(const QString& identifier) {
    const qsizetype slash = identifier.indexOf(u'/');
    return {identifier.left(slash), slash < 0 ? QString() : identifier.mid(slash + 1)};
}

CalendarEvent eventOf(const QString& calendar, const EventPlace& place, const StoredEvent& stored,
                      const CalendarFile& file) {
    CalendarEvent event = stored.event;
    event.identifier = calendar + u'/' + place.text();
    event.calendar = calendar;
    event.revision = file.revision;
    return event;
}

} // namespace

FolderEventStore::FolderEventStore(const QString& parent, const QString& scheme, const Clock& clock)
    : m_parent(QDir::cleanPath(parent))
    , m_clock(clock)
    , m_reading(scheme) {}

FolderEventStore::~FolderEventStore() = default;

CalendarAccess FolderEventStore::access() {
    QString folder = m_parent;
    while (!QFileInfo::exists(folder) && folder.size() > 1) {
        folder = QFileInfo(folder).path();
    }
    if (isWritableFolder(folder)) {
        return CalendarAccess::Granted;
    }
    const auto all = calendars();
    const bool hasWritable = all && std::ranges::any_of(*all, &EventCalendar::allowsContentModifications);
    return hasWritable ? CalendarAccess::Granted : CalendarAccess::Refused;
}

void FolderEventStore::requestAccess(std::function<void(bool granted)> completion) {
    completion(access() == CalendarAccess::Granted);
}

std::optional<std::vector<EventCalendar>> FolderEventStore::calendars() {
    const std::optional<QStringList> names = foldersIn(m_parent);
    if (!names) {
        return std::nullopt;
    }
    std::vector<EventCalendar> calendars;
    for (const QString& name : *names) {
        calendars.push_back(calendarIn(m_parent, name));
    }
    return calendars;
}

std::optional<EventCalendar> FolderEventStore::defaultCalendarForNewEvents() {
    const std::optional<std::vector<EventCalendar>> all = calendars();
    if (!all) {
        return std::nullopt;
    }
    const auto first = std::ranges::find_if(*all, &EventCalendar::allowsContentModifications);
    return first == all->end() ? createCalendar(u"TV"_s) : std::optional(*first);
}

std::optional<EventCalendar> FolderEventStore::createCalendar(const QString& title) {
    const std::lock_guard lock(m_mutex);
    QDir().mkpath(m_parent);
    const QString base = folderName(title);
    QString name = base;
    for (int number = 2; number < 100; ++number) {
        const QString path = m_parent + u'/' + name;
        if (::mkdir(QFile::encodeName(path).constData(), 0700) == 0) {
            replaceFile(path + "/displayname"_L1, title.left(kLongestTitle).simplified().toUtf8());
            replaceFile(path + "/color"_L1, kNewCalendarColor.toByteArray());
            syncFolder(m_parent);
            m_known.insert(name, folderStamps(path).value_or(FolderStamps{}));
            return calendarIn(m_parent, name);
        }
        if (errno != EEXIST) {
            break;
        }
        name = base + u'-' + QString::number(number);
    }
    return std::nullopt;
}

void FolderEventStore::checkZone() {
    if (const QByteArray zone = QTimeZone::systemTimeZoneId(); zone != m_zone) {
        m_folders.clear();
        m_zone = zone;
    }
}

CalendarFolder* FolderEventStore::folder(const QString& identifier) {
    const QString path = m_parent + u'/' + identifier;
    if (identifier.isEmpty() || identifier.startsWith(u'.') || identifier.contains(u'/')) {
        return nullptr;
    }
    std::unique_ptr<CalendarFolder>& found = m_folders[identifier];
    if (found == nullptr) {
        found = std::make_unique<CalendarFolder>(path, m_reading);
    }
    if (!found->update()) {
        m_folders.erase(identifier);
        return nullptr;
    }
    return found.get();
}

EventRange FolderEventStore::eventsBetween(Moment start, Moment end, const EventCalendar& calendar) {
    const std::lock_guard lock(m_mutex);
    checkZone();
    const CalendarFolder* found = folder(calendar.identifier);
    if (found == nullptr) {
        return {.events = {}, .fault = u"the folder \"%1\" cannot be read"_s.arg(calendar.identifier)};
    }
    EventRange range;
    for (auto file = found->files().cbegin(); file != found->files().cend(); ++file) {
        for (const StoredEvent& stored : file->events) {
            if (stored.isOccurrence || !isBetween(start, end, stored.event)) {
                continue;
            }
            const EventPlace place = CalendarFolder::place(file.key(), *file, stored);
            range.events.push_back(eventOf(calendar.identifier, place, stored, *file));
        }
    }
    keepBetween(start, end, range.events);
    return range;
}

std::optional<CalendarEvent> FolderEventStore::eventWithIdentifier(const QString& identifier) {
    const std::lock_guard lock(m_mutex);
    checkZone();
    const auto [calendar, name] = parts(identifier);
    const CalendarFolder* found = folder(calendar);
    if (found == nullptr) {
        return std::nullopt;
    }
    const EventPlace place = EventPlace::fromText(name);
    const StoredEvent* stored = found->event(place);
    if (stored == nullptr) {
        return std::nullopt;
    }
    return eventOf(calendar, place, *stored, found->files()[place.file]);
}

std::vector<EventOutcome> FolderEventStore::apply(const std::vector<EventChange>& changes) {
    const std::lock_guard lock(m_mutex);
    checkZone();
    std::vector<EventOutcome> outcomes(changes.size());
    // By calendar; null for one that cannot be used.
    std::map<QString, std::unique_ptr<CalendarFolderChanges>> folders;
    for (std::size_t i = 0; i < changes.size(); ++i) {
        const CalendarEvent& event =
            std::visit([](const auto& change) -> const CalendarEvent& { return change.event; }, changes[i]);
        auto [calendar, file] = parts(event.identifier);
        if (event.identifier.isEmpty()) {
            calendar = event.calendar;
        }
        const auto [at, isNew] = folders.try_emplace(calendar);
        if (isNew) {
            if (CalendarFolder* found = folder(calendar)) {
                if (!m_cleaned.contains(calendar)) {
                    removeStaleReplacements(found->path());
                    m_cleaned.insert(calendar);
                }
                at->second = std::make_unique<CalendarFolderChanges>(*found, m_reading, m_clock.now());
            }
        }
        EventOutcome& outcome = outcomes[i];
        if (at->second == nullptr) {
            outcome.fault = EventFault::Unavailable;
            outcome.message = u"the calendar cannot be read"_s;
            continue;
        }
        if (!isWritableFolder(m_parent + u'/' + calendar)) {
            outcome.fault = EventFault::ReadOnly;
            outcome.message = u"the folder cannot be written"_s;
            continue;
        }
        outcome.identifier = event.identifier.isEmpty() ? calendar + u'/' : event.identifier;
        if (std::holds_alternative<SaveEvent>(changes[i])) {
            at->second->save(EventPlace::fromText(file), event, outcome);
        } else {
            at->second->remove(EventPlace::fromText(file), event, outcome);
        }
    }
    for (const auto& [calendar, folderChanges] : folders) {
        if (folderChanges == nullptr) {
            continue;
        }
        // The guide's own changes need no announcement.
        FolderStamps& known = m_known[calendar];
        known.insert(folderChanges->commit());
        known.removeIf([&](const auto& file) { return folderChanges->hasRemoved(file.key()); });
    }
    for (EventOutcome& outcome : outcomes) {
        if (outcome.fault) {
            outcome.identifier.clear();
        }
    }
    return outcomes;
}

std::optional<FolderEventStore::Known> FolderEventStore::stampsNow() const {
    const std::optional<QStringList> names = foldersIn(m_parent);
    if (!names) {
        return std::nullopt;
    }
    Known stamps;
    for (const QString& name : *names) {
        if (auto found = folderStamps(m_parent + u'/' + name)) {
            stamps.insert(name, std::move(*found));
        }
    }
    return stamps;
}

void FolderEventStore::setCalendarsChanged(std::function<void()> calendarsChanged) {
    if (calendarsChanged == nullptr) {
        // The watch stays: to end it would mean to wait for other calls.
        const std::lock_guard lock(m_functionMutex);
        m_calendarsChanged = nullptr;
        return;
    }
    const std::lock_guard lock(m_mutex);
    if (m_watch == nullptr) {
        m_watch = std::make_unique<FolderTreeWatch>(m_parent, FolderTreeWatch::Depth::FoldersInIt,
                                                    [this] { look(); });
    }
    m_known = stampsNow().value_or(Known());
    const std::lock_guard functionLock(m_functionMutex);
    m_calendarsChanged = std::move(calendarsChanged);
}

void FolderEventStore::look() {
    {
        const std::lock_guard lock(m_mutex);
        std::optional<Known> now = stampsNow();
        if (!now || *now == m_known) {
            return;
        }
        m_known = *std::move(now);
    }
    const std::lock_guard lock(m_functionMutex);
    if (m_calendarsChanged != nullptr) {
        m_calendarsChanged();
    }
}

QString FolderEventStore::name() const {
    return u"Folder of calendar files"_s;
}

} // namespace guide
