#include "platform/linux/calendar/CalendarFolder.h"

#include "platform/files/FileContent.h"

#include <QDebug>
#include <QFile>

#include <chrono>
#include <dirent.h>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr qint64 kLargestFile = 1 << 20;
constexpr qsizetype kMostFiles = 50'000;
// Longer than the steps in which file systems count.
constexpr auto kStampResolution = 20ms;

bool isRecent(const FileStamp& stamp) {
    const std::chrono::system_clock::time_point modified{
        std::chrono::duration_cast<std::chrono::system_clock::duration>(
            std::chrono::seconds(stamp.seconds) + std::chrono::nanoseconds(stamp.nanoseconds))};
    return modified + kStampResolution > std::chrono::system_clock::now();
}

} // namespace

std::optional<FolderStamps> folderStamps(const QString& folder) {
    DIR* directory = ::opendir(QFile::encodeName(folder).constData());
    if (directory == nullptr) {
        return std::nullopt;
    }
    FolderStamps stamps;
    while (const dirent* entry = ::readdir(directory)) {
        struct stat found{};
        // Hidden files are temporary ones of this and other programs.
        if (entry->d_name[0] != '.' && ::fstatat(::dirfd(directory), entry->d_name, &found, 0) == 0 &&
            S_ISREG(found.st_mode) && stamps.size() < kMostFiles) {
            stamps.insert(QFile::decodeName(entry->d_name), fileStamp(found));
        }
    }
    ::closedir(directory);
    return stamps;
}

QString EventPlace::text() const {
    return uid.isEmpty() ? file : file + u'#' + QString::fromUtf8(uid);
}

EventPlace EventPlace::fromText(const QString& text) {
    const qsizetype mark = text.indexOf(kCalendarSuffix + u'#');
    if (mark < 0) {
        return {text, {}};
    }
    const qsizetype end = mark + kCalendarSuffix.size();
    return {text.left(end), text.mid(end + 1).toUtf8()};
}

std::optional<QByteArray> calendarFileContent(const QString& path) {
    return fileContent(path, kLargestFile);
}

bool CalendarFolder::update() {
    const std::optional<FolderStamps> stamps = folderStamps(m_path);
    if (!stamps) {
        m_files.clear();
        return false;
    }
    m_files.removeIf([&](const auto& file) { return !stamps->contains(file.key()); });
    for (auto stamp = stamps->cbegin(); stamp != stamps->cend(); ++stamp) {
        if (stamp.key().endsWith(kCalendarSuffix, Qt::CaseInsensitive)) {
            read(stamp.key(), *stamp);
        }
    }
    return true;
}

void CalendarFolder::read(const QString& name, const FileStamp& stamp) {
    CalendarFile& file = m_files[name];
    if (file.stamp == stamp && !file.isRecent) {
        return;
    }
    const bool isNew = std::exchange(file.stamp, stamp) != stamp;
    if (stamp.size > kLargestFile) {
        qInfo().noquote() << "calendar file left out, too large:" << name;
        file = {};
        file.stamp = stamp;
        return;
    }
    const std::optional<QByteArray> content = calendarFileContent(m_path + u'/' + name);
    if (!content) {
        // Perhaps only for now; it keeps the events that it had.
        if (isNew) {
            qInfo().noquote() << "calendar file not readable:" << name;
        }
        file.isRecent = true;
        return;
    }
    file.isRecent = isRecent(stamp);
    const QString revision = contentRevision(*content);
    if (revision == file.revision) {
        return;
    }
    // A file that is being written keeps the events that it had.
    if (const auto text = ICalendarText::parse(*content)) {
        file.revision = revision;
        file.events = m_reading.events(*text);
        const StoredEvent* first = findEvent(file.events);
        file.firstUid = first == nullptr ? QByteArray() : first->uid;
    }
}

const StoredEvent* CalendarFolder::event(const EventPlace& place) const {
    const auto file = m_files.constFind(place.file);
    return file == m_files.constEnd() ? nullptr : findEvent(file->events, place.uid);
}

EventPlace CalendarFolder::place(const QString& name, const CalendarFile& file, const StoredEvent& event) {
    return {name, file.firstUid == event.uid ? QByteArray() : event.uid};
}

} // namespace guide
