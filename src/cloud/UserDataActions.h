#pragma once

#include "cloud/ReplacedList.h"
#include "platform/queues/MainBlock.h"

#include <QString>

#include <cstddef>
#include <optional>
#include <vector>

namespace guide {

/// How much of the user's data there is, or was removed.
struct UserDataCounts {
    std::size_t channels = 0;
    std::size_t rules = 0;
    /// Alarms to come of titles that have a rule.
    std::size_t alarms = 0;
    std::size_t replacedLists = 0;

    // What erasing leaves unless it is asked for.

    /// Alarms to come of other titles.
    std::size_t otherAlarms = 0;
    bool silentHours = false;
    /// The calendar that this device has chosen.
    bool calendar = false;

    bool hasMore() const { return otherAlarms > 0 || silentHours || calendar; }
    friend bool operator==(const UserDataCounts&, const UserDataCounts&) = default;
};

/// What a user can do with the data that the guide holds about them. Main queue; the work is done in the
/// background.
class UserDataActions {
  public:
    virtual ~UserDataActions() = default;

    /// Writes the data to a text file and answers with its path; nothing when that failed.
    virtual void exportData(MainBlock<std::optional<QString>> mainBlock) = 0;

    virtual void count(MainBlock<UserDataCounts> mainBlock) = 0;
    /// Removes the data here and for all devices; `more` includes what is left otherwise. Answers with what
    /// was removed.
    virtual void erase(bool more, MainBlock<UserDataCounts> mainBlock) = 0;

    /// The lists that other devices have replaced, the newest first.
    virtual void replacedLists(MainBlock<std::vector<ReplacedList>> mainBlock) = 0;
    /// Puts the list in the place of the current one, which is kept in its turn. Answers whether that was
    /// possible.
    virtual void restore(const ReplacedList& list, MainBlock<bool> mainBlock) = 0;
};

} // namespace guide
