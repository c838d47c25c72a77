#include "platform/linux/calendar/CalendarFolder.h"

#include "platform/files/FileContent.h"

#include <QCryptographicHash>
#include <QDebug>
#include <QFile>

#include <algorithm>
#include <chrono>
#include <dirent.h>

namespace guide {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr qint64 kLargestFile = 1 << 20;
constexpr qsizetype kMostFiles = 50'000;
constexpr auto kSuffix = ".ics"_L1;
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
    const qsizetype mark = text.indexOf(kSuffix + u'#');
    if (mark < 0) {
        return {text, {}};
    }
    const qsizetype end = mark + kSuffix.size();
    return {text.left(end), text.mid(end + 1).toUtf8()};
}

QString contentRevision(const QByteArray& content) {
    return QString::fromLatin1(QCryptographicHash::hash(content, QCryptographicHash::Sha1).toHex());
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
        if (stamp.key().endsWith(kSuffix, Qt::CaseInsensitive)) {
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
    file.isRecent = isRecent(stamp);
    const std::optional<QByteArray> content = calendarFileContent(m_path + u'/' + name);
    if (!content) {
        if (file.stamp != stamp) {
            qInfo().noquote() << "calendar file left out, too large or not readable:" << name;
        }
        file = {};
        file.stamp = stamp;
        return;
    }
    file.stamp = stamp;
    const QString revision = contentRevision(*content);
    if (revision == file.revision) {
        return;
    }
    // A file that is being written keeps the events that it had.
    if (const auto text = ICalendarText::parse(*content)) {
        file.revision = revision;
        file.events = m_reading.events(*text);
    }
}

const StoredEvent* CalendarFolder::event(const EventPlace& place) const {
    const auto file = m_files.constFind(place.file);
    if (file == m_files.constEnd()) {
        return nullptr;
    }
    const auto found = std::ranges::find_if(file->events, [&](const StoredEvent& stored) {
        return !stored.isOccurrence && (place.uid.isEmpty() || stored.uid == place.uid);
    });
    return found == file->events.end() ? nullptr : &*found;
}

EventPlace CalendarFolder::place(const QString& name, const CalendarFile& file, const StoredEvent& event) {
    return {name, file.events.front().uid == event.uid ? QByteArray() : event.uid};
}

} // namespace guide
