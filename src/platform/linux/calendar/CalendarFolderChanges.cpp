#include "platform/linux/calendar/CalendarFolderChanges.h"

#include "platform/files/FileReplacement.h"
#include "platform/linux/calendar/EventWriting.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <unistd.h>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostAttempts = 100;

void refuse(EventOutcome& outcome, EventFault fault, const QString& message) {
    outcome.fault = fault;
    outcome.message = message;
}

} // namespace

CalendarFolderChanges::File* CalendarFolderChanges::open(const QString& name) {
    const auto opened = m_files.find(name);
    if (opened != m_files.end()) {
        return &opened->second;
    }
    const QString path = m_folder.path() + u'/' + name;
    const std::optional<FileStamp> stamp = fileStamp(path);
    const std::optional<QByteArray> content = calendarFileContent(path);
    if (!stamp || !content) {
        return nullptr;
    }
    return &m_files
                .emplace(name,
                         File{.before = stamp, .revision = contentRevision(*content), .content = *content})
                .first->second;
}

std::optional<CalendarFolderChanges::Found>
CalendarFolderChanges::find(const EventPlace& place, const QString& revision, EventOutcome& outcome) {
    const QString& name = place.file;
    if (name.contains(u'/') || name.startsWith(u'.') ||
        !name.endsWith(kCalendarSuffix, Qt::CaseInsensitive)) {
        refuse(outcome, EventFault::NotFound, u"no such event"_s);
        return std::nullopt;
    }
    if (QFileInfo(m_folder.path() + u'/' + name).isSymLink()) {
        refuse(outcome, EventFault::ReadOnly, u"the file is a link"_s);
        return std::nullopt;
    }
    File* opened = open(name);
    if (opened == nullptr && QFileInfo::exists(m_folder.path() + u'/' + name)) {
        refuse(outcome, EventFault::Unavailable, u"the file cannot be read"_s);
        return std::nullopt;
    }
    if (opened == nullptr || opened->content.isEmpty()) {
        refuse(outcome, EventFault::NotFound, u"the file is gone"_s);
        return std::nullopt;
    }
    if (!revision.isEmpty() && revision != opened->revision) {
        refuse(outcome, EventFault::Conflict, u"the file was changed by another program"_s);
        return std::nullopt;
    }
    std::optional<ICalendarText> text = ICalendarText::parse(opened->content);
    if (!text) {
        refuse(outcome, EventFault::Failed, u"the file is damaged"_s);
        return std::nullopt;
    }
    const std::vector<StoredEvent> events = m_reading.events(*text);
    const StoredEvent* found = findEvent(events, place.uid);
    if (found == nullptr) {
        refuse(outcome, EventFault::NotFound, u"the file has no such event"_s);
        return std::nullopt;
    }
    if (!m_reading.isOwn(found->event)) {
        refuse(outcome, EventFault::Failed, u"it belongs to another program"_s);
        return std::nullopt;
    }
    return Found{opened, std::move(*text), *found};
}

void CalendarFolderChanges::save(const EventPlace& place, const CalendarEvent& event, EventOutcome& outcome) {
    if (!m_reading.isOwn(event)) {
        refuse(outcome, EventFault::Failed, u"it has no URL of the guide"_s);
    } else if (place.file.isEmpty()) {
        create(event, outcome);
    } else if (const std::optional<Found> found = find(place, event.revision, outcome)) {
        change(*found, event, outcome);
    }
}

void CalendarFolderChanges::change(const Found& found, const CalendarEvent& event, EventOutcome& outcome) {
    if (auto changed = withChangedEvent(found.text, found.event, event, m_now)) {
        found.file->content = std::move(*changed);
        found.file->isChanged = true;
    }
    // Without a change, too, it depends on those that were made before in the same file.
    found.file->outcomes.push_back(&outcome);
}

void CalendarFolderChanges::remove(const EventPlace& place, const CalendarEvent& event,
                                   EventOutcome& outcome) {
    if (const std::optional<Found> found = find(place, event.revision, outcome)) {
        found->file->content = withoutEvent(found->text, found->event.uid);
        found->file->isChanged = true;
        found->file->outcomes.push_back(&outcome);
    }
}

const QHash<QByteArray, EventPlace>& CalendarFolderChanges::places() {
    if (!m_places) {
        m_places.emplace();
        for (auto file = m_folder.files().cbegin(); file != m_folder.files().cend(); ++file) {
            for (const StoredEvent& stored : file->events) {
                m_places->insert(stored.uid, CalendarFolder::place(file.key(), *file, stored));
            }
        }
    }
    return *m_places;
}

void CalendarFolderChanges::create(const CalendarEvent& event, EventOutcome& outcome) {
    for (int attempt = 1; attempt < kMostAttempts; ++attempt) {
        const QByteArray uid = uidFor(*event.url, attempt);
        const QString name = QString::fromLatin1(uid) + kCalendarSuffix;
        const auto pending = m_files.find(name);
        const bool isRemoved = pending != m_files.end() && pending->second.content.isEmpty();
        const QFileInfo info(m_folder.path() + u'/' + name);
        if (!isRemoved &&
            (pending != m_files.end() || places().contains(uid) || info.exists() || info.isSymLink())) {
            // An event with the same URL is the same event, made before.
            const EventPlace taken = places().value(uid, EventPlace{name, {}});
            const StoredEvent* known = m_folder.event(taken);
            EventOutcome refusal;
            const std::optional<Found> found = find(taken, {}, refusal);
            if (found && found->event.event.url == event.url) {
                outcome.identifier += taken.text();
                change(*found, event, outcome);
                return;
            }
            // It would be made twice.
            if (refusal.fault == EventFault::Unavailable ||
                (!found && refusal.fault != EventFault::NotFound && known != nullptr &&
                 known->event.url == event.url)) {
                refuse(outcome, *refusal.fault, refusal.message);
                return;
            }
            continue;
        }
        File& file = m_files[name];
        file.content = calendarWith(newEventComponent(event, uid, m_now));
        file.isChanged = true;
        file.outcomes.push_back(&outcome);
        outcome.identifier += name;
        return;
    }
    refuse(outcome, EventFault::Failed, u"too many events with this UID"_s);
}

bool CalendarFolderChanges::hasRemoved(const QString& name) const {
    const auto found = m_files.find(name);
    return found != m_files.end() && found->second.isRemoved;
}

bool CalendarFolderChanges::isUnchanged(const QString& name, const File& file) const {
    return fileStamp(m_folder.path() + u'/' + name) == file.before;
}

void CalendarFolderChanges::finish(File& file, bool isDone) const {
    for (EventOutcome* outcome : file.outcomes) {
        if (!isDone && !outcome->fault) {
            refuse(*outcome, EventFault::Failed, u"the file cannot be written"_s);
        }
    }
}

FolderStamps CalendarFolderChanges::commit() {
    ReplacementBatch batch(m_folder.path());
    std::vector<std::pair<QString, File*>> written;
    bool isRemoved = false;
    for (auto& [name, file] : m_files) {
        if (!file.isChanged) {
            continue;
        }
        if (!file.content.isEmpty()) {
            if (batch.add(name, file.content)) {
                written.emplace_back(name, &file);
            } else {
                finish(file, false);
            }
            continue;
        }
        if (!isUnchanged(name, file)) {
            for (EventOutcome* outcome : file.outcomes) {
                refuse(*outcome, EventFault::Conflict, u"the file was changed by another program"_s);
            }
            continue;
        }
        const QByteArray path = QFile::encodeName(m_folder.path() + u'/' + name);
        const bool isDone = ::unlink(path.constData()) == 0 || errno == ENOENT;
        isRemoved = isRemoved || isDone;
        file.isRemoved = isDone;
        finish(file, isDone);
    }
    if (!written.empty()) {
        const std::vector<bool> done = batch.commit([&](std::size_t index) {
            const auto& [name, file] = written[index];
            const bool may = isUnchanged(name, *file);
            for (EventOutcome* outcome : file->outcomes) {
                if (!may) {
                    refuse(*outcome, EventFault::Conflict, u"the file was changed by another program"_s);
                }
            }
            return may;
        });
        for (std::size_t i = 0; i < done.size(); ++i) {
            finish(*written[i].second, done[i]);
        }
    } else if (isRemoved) {
        syncFolder(m_folder.path());
    }
    m_folder.update();
    FolderStamps own;
    for (const auto& [name, file] : written) {
        const auto now = m_folder.files().constFind(name);
        // Otherwise another program has written to it since.
        if (now != m_folder.files().constEnd() && now->revision == contentRevision(file->content)) {
            own.insert(name, now->stamp);
        }
    }
    return own;
}

} // namespace guide
