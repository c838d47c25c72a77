#pragma once

#include "core/ListingsType.h"
#include "store/ShowItem.h"

#include <unordered_map>
#include <vector>

namespace guide {

/// The result of merging one channel's freshly read list.
enum class MergeOutcome {
    Stored,
    /// The reader found nothing for the channel.
    Empty,
    /// Every show that was found has ended.
    OnlyPast,
    /// The stored list has far more shows to come and was kept.
    Poorer,
};

/// What a reader found out about the pages that it made lists of.
struct ReadOutcome {
    /// A page broke off, or had more shows than are kept: the lists may lack their ends.
    bool incomplete = false;
    /// Something in the pages belongs to a schedule.
    bool isSchedule = true;
    /// A stored list with more than four times as many shows to come is not replaced.
    bool keepsRicher = false;
};

struct MergeResult {
    /// The lists that were stored.
    std::unordered_map<ObjectId, ShowList> lists;
    /// For every load item.
    std::unordered_map<ObjectId, MergeOutcome> outcomes;
    ReadOutcome read;
};

/// A list keeps no more shows than this; a schedule for three weeks in minutes has 30,000.
inline constexpr std::size_t kMostShowsOfChannel = 200'000;

/// Whether the title is a source's placeholder for an empty slot.
bool isEmptySlotTitle(QStringView title);

struct MergedList {
    /// Null unless the outcome is Stored.
    ShowList list;
    MergeOutcome outcome = MergeOutcome::Empty;
};

/// Prepares the list that a reader made for storing: sorts it stably by start, drops shows without a start, a
/// final placeholder and all but the first of several shows with the same start, sets the end times from the
/// next show's start for listing types other than PortNetwork and XMLTV, drops the shows before the first one
/// that ends after `now`, and sets the language. Shows of `stored`, if given, that start after the last one
/// are appended when the page broke off: they are what it would have repeated. With `keepsRicher` they stay
/// alone if they are far more.
MergedList mergedList(std::vector<ExtendedTVEntry> parsed, const QString& language, Moment now,
                      ListingsType type, const ReadOutcome& read = {}, const ShowList& stored = nullptr);

/// Does the same for every load item; of several items for one channel only the first is used. `stored` is
/// used as for mergedList().
MergeResult mergedLists(const std::vector<LoadItem>& items, ParsedLists parsed, Moment now, ListingsType type,
                        const ReadOutcome& read = {},
                        const std::unordered_map<ObjectId, ShowList>& stored = {});

} // namespace guide
