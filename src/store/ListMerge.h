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
};

struct MergeResult {
    /// The lists that were stored.
    std::unordered_map<ObjectId, ShowList> lists;
    /// For every load item.
    std::unordered_map<ObjectId, MergeOutcome> outcomes;
};

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
/// that ends after `now`, and sets the language.
MergedList mergedList(std::vector<ExtendedTVEntry> parsed, const QString& language, Moment now,
                      ListingsType type);

/// Does the same for every load item; of several items for one channel only the first is used.
MergeResult mergedLists(const std::vector<LoadItem>& items, ParsedLists parsed, Moment now,
                        ListingsType type);

} // namespace guide
