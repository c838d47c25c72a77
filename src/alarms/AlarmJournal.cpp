#include "alarms/AlarmJournal.h"

#include "platform/archive/Archive.h"
#include "platform/files/FileContent.h"
#include "platform/files/FileReplacement.h"

#include <QCborArray>
#include <QCborMap>
#include <QDebug>

#include <algorithm>
#include <iterator>
#include <set>
#include <tuple>
#include <utility>

namespace guide {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::days kKept{60};
constexpr std::chrono::days kToldFor{1};
constexpr std::size_t kMostEntries = 5000;
constexpr qint64 kMostBytes = 32 << 20;
constexpr int kVersion = 1;
/// Titles come from schedules.
constexpr qsizetype kMostCharacters = 300;

// The places of a stored entry.
enum Place {
    At,
    Deed,
    Reason,
    Title,
    Channel,
    OldStart,
    NewStart,
    End,
    Rule,
    Message,
    Show,
    Replays,
    PlaceCount
};
/// Entries of earlier guides end before the place of `Replays`.
constexpr int kFewestPlaces = Replays;

QCborValue valueOf(const std::optional<Moment>& moment) {
    return moment ? QCborValue(static_cast<qint64>(moment->time_since_epoch().count()))
                  : QCborValue(QCborValue::Null);
}

std::optional<Moment> momentOf(const QCborValue& value) {
    return value.isInteger() ? std::optional(Moment(std::chrono::milliseconds(value.toInteger())))
                             : std::nullopt;
}

QCborArray valueOf(const JournalEntry& entry) {
    const auto text = [](const QString& all) { return QCborValue(all.left(kMostCharacters)); };
    return {valueOf(std::optional(entry.at)),
            int(entry.deed),
            int(entry.reason),
            text(entry.title),
            text(entry.channel),
            valueOf(entry.oldStart),
            valueOf(entry.newStart),
            valueOf(entry.end),
            text(entry.rule),
            text(entry.message),
            entry.show ? QCborValue(QByteArray(reinterpret_cast<const char*>(entry.show->data()),
                                               static_cast<qsizetype>(entry.show->size())))
                       : QCborValue(QCborValue::Null),
            entry.previouslyShown ? QCborValue(*entry.previouslyShown) : QCborValue(QCborValue::Null)};
}

std::optional<JournalEntry> entryOf(const QCborArray& value) {
    const std::optional<Moment> at = momentOf(value.at(At));
    const qint64 deed = value.at(Deed).toInteger(-1);
    const qint64 reason = value.at(Reason).toInteger(-1);
    if (value.size() < kFewestPlaces || value.size() > PlaceCount || !at || deed < 0 ||
        deed > kLastAlarmDeed || reason < 0 || reason > kLastAlarmReason) {
        return std::nullopt;
    }
    JournalEntry entry{.at = *at,
                       .deed = static_cast<AlarmDeed>(deed),
                       .reason = static_cast<AlarmReason>(reason),
                       .title = value.at(Title).toString(),
                       .channel = value.at(Channel).toString(),
                       .oldStart = momentOf(value.at(OldStart)),
                       .newStart = momentOf(value.at(NewStart)),
                       .end = momentOf(value.at(End)),
                       .rule = value.at(Rule).toString(),
                       .message = value.at(Message).toString()};
    if (const QCborValue replays = value.at(Replays); replays.isBool()) {
        entry.previouslyShown = replays.toBool();
    }
    if (const QByteArray digest = value.at(Show).toByteArray(); digest.size() == sizeof(ShowDigest)) {
        std::ranges::copy(digest, entry.show.emplace().begin());
    }
    return entry;
}

bool isFailure(const JournalEntry& entry) {
    return entry.deed == AlarmDeed::NotMade || entry.deed == AlarmDeed::NotMoved ||
           entry.deed == AlarmDeed::NotRemoved;
}

/// Every run tries again what a calendar has refused.
void dropToldFailures(std::vector<JournalEntry>& entries, const std::vector<JournalEntry>& told, Moment now) {
    if (std::ranges::none_of(entries, isFailure)) {
        return;
    }
    const auto keyOf = [](const JournalEntry& entry) {
        return std::tuple(entry.deed, entry.title, entry.channel, entry.oldStart, entry.newStart);
    };
    std::set<decltype(keyOf(entries.front()))> known;
    for (const JournalEntry& entry : told) {
        if (isFailure(entry) && entry.at > now - kToldFor) {
            known.insert(keyOf(entry));
        }
    }
    std::erase_if(entries, [&](const JournalEntry& entry) {
        return isFailure(entry) && !known.insert(keyOf(entry)).second;
    });
}

} // namespace

AlarmJournal::AlarmJournal(const Folders& folders)
    : m_path(folders.documents + u"/alarm-journal.plist"_s)
    , m_writable(folders.writable) {}

// Under the guard.
void AlarmJournal::read() const {
    if (m_entries) {
        return;
    }
    const auto content = fileContent(m_path, kMostBytes);
    auto entries = content ? journalOfFile(*content) : std::nullopt;
    m_entries = std::make_shared<const std::vector<JournalEntry>>(
        std::move(entries).value_or(std::vector<JournalEntry>()));
}

JournalEntries AlarmJournal::entries() const {
    const std::lock_guard lock(m_guard);
    read();
    return m_entries;
}

void AlarmJournal::append(std::vector<JournalEntry> entries, Moment now) {
    if (entries.empty()) {
        return;
    }
    const std::lock_guard lock(m_guard);
    read();
    dropToldFailures(entries, *m_entries, now);
    if (entries.empty()) {
        return;
    }
    std::vector<JournalEntry> all = *m_entries;
    std::ranges::move(entries, std::back_inserter(all));
    std::erase_if(all, [now](const JournalEntry& entry) { return entry.at < now - kKept; });
    if (all.size() > kMostEntries) {
        all.erase(all.begin(), all.end() - kMostEntries);
    }
    m_entries = std::make_shared<const std::vector<JournalEntry>>(std::move(all));
    if (m_writable && !replaceFile(m_path, journalFileContent(*m_entries))) {
        // Written again with the next entries.
        qWarning("The journal of alarms cannot be written");
    }
}

QByteArray journalFileContent(const std::vector<JournalEntry>& entries) {
    QCborArray array;
    for (const JournalEntry& entry : entries) {
        array.append(valueOf(entry));
    }
    return archivedData(QCborMap{{u"version"_s, kVersion}, {u"entries"_s, array}});
}

std::optional<std::vector<JournalEntry>> journalOfFile(const QByteArray& content) {
    const auto root = unarchivedRoot(content);
    if (!root || root->toMap().value(u"version"_s).toInteger() != kVersion) {
        return std::nullopt;
    }
    std::vector<JournalEntry> entries;
    for (const auto& value : root->toMap().value(u"entries"_s).toArray()) {
        if (auto entry = entryOf(value.toArray())) {
            entries.push_back(*std::move(entry));
        }
    }
    return entries;
}

JournalEntry journalEntry(const AlarmChange& change, AlarmDeed deed, Moment now, const QString& message) {
    const CalendarEvent& event = change.event();
    JournalEntry entry{.at = now,
                       .deed = deed,
                       .reason = change.reason,
                       .title = event.title,
                       .channel = event.location,
                       .end = event.endDate,
                       .rule = change.rule,
                       .previouslyShown = change.previouslyShown,
                       .message = message,
                       .show = change.show};
    if (change.removes()) {
        entry.oldStart = event.startDate;
    } else {
        entry.newStart = event.startDate;
        if (change.before) {
            entry.oldStart = change.before->startDate;
        }
    }
    return entry;
}

std::unordered_set<ShowDigest, ShowDigestHash> madeByRules(const std::vector<JournalEntry>& entries) {
    std::unordered_set<ShowDigest, ShowDigestHash> made;
    for (const JournalEntry& entry : entries) {
        if (!entry.show) {
            continue;
        }
        const bool byUser = entry.reason == AlarmReason::User || entry.reason == AlarmReason::AlarmRemoved;
        if (entry.deed == AlarmDeed::Removed && entry.reason == AlarmReason::Duplicate) {
            // The broadcast has another event.
            continue;
        }
        if (entry.deed == AlarmDeed::Removed && !byUser) {
            made.erase(*entry.show);
        } else if (entry.deed == AlarmDeed::Moved ||
                   (entry.deed == AlarmDeed::Made && entry.reason != AlarmReason::User)) {
            made.insert(*entry.show);
        }
    }
    return made;
}

} // namespace guide
