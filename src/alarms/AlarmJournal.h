#pragma once

#include "alarms/AlarmChange.h"
#include "platform/Moment.h"
#include "platform/files/Folders.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <unordered_set>
#include <vector>

namespace guide {

/// What was done to an alarm, or failed. The values are stored.
enum class AlarmDeed : std::uint8_t {
    Made = 0,
    Moved = 1,
    Removed = 2,
    /// The calendar refused it; `message` says why.
    NotMade = 3,
    NotMoved = 4,
    NotRemoved = 5,
    /// A removal that the brake held back.
    HeldBack = 6,
};
inline constexpr int kLastAlarmDeed = 6;

/// One line of the journal.
struct JournalEntry {
    /// When it was done.
    Moment at = {};
    AlarmDeed deed = AlarmDeed::Made;
    AlarmReason reason = AlarmReason::Rule;
    QString title = {};
    /// The channel's title.
    QString channel = {};
    /// The start of the show before the change; unset for a new alarm.
    std::optional<Moment> oldStart = {};
    /// The start after the change; unset for a removed alarm.
    std::optional<Moment> newStart = {};
    /// When the show ends.
    std::optional<Moment> end = {};
    /// The title of the rule concerned; may be empty.
    QString rule = {};
    /// Of the rule that made the alarm: false for premieres only, true for replays only.
    std::optional<bool> previouslyShown = {};
    /// The service's words for a failure.
    QString message = {};
    /// The broadcast; unset when the event's URL was none of a show.
    std::optional<ShowDigest> show = {};

    friend bool operator==(const JournalEntry&, const JournalEntry&) = default;
};

using JournalEntries = std::shared_ptr<const std::vector<JournalEntry>>;

/// What was done to alarms and why, for 60 days, in a file of the documents folder. A damaged file counts as
/// empty. Any thread; append() waits for the disk.
class AlarmJournal {
  public:
    explicit AlarmJournal(const Folders& folders);

    /// The newest last; never null. The first call reads the file.
    JournalEntries entries() const;
    /// Adds entries and drops those that are older than 60 days or too many. A failure that was told within
    /// the last day is not repeated.
    void append(std::vector<JournalEntry> entries, Moment now);

  private:
    void read() const;

    const QString m_path;
    const bool m_writable;
    mutable std::mutex m_guard;
    mutable JournalEntries m_entries; // guarded; null until it was read
};

/// The content of the journal's file, and the reverse; nothing for content that is damaged or of another
/// version.
QByteArray journalFileContent(const std::vector<JournalEntry>& entries);
std::optional<std::vector<JournalEntry>> journalOfFile(const QByteArray& content);

/// The entry of a change.
JournalEntry journalEntry(const AlarmChange& change, AlarmDeed deed, Moment now, const QString& message = {});

/// The broadcasts for which a rule made an event that no run has removed. Where there is none any more, the
/// user removed it.
std::unordered_set<ShowDigest, ShowDigestHash> madeByRules(const std::vector<JournalEntry>& entries);

} // namespace guide
