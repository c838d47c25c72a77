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

/// Makes a list to be stored of one that a reader made: in stable order of start, without shows that have
/// none, without a closing placeholder and later shows of an equal start, with end times by the next show's
/// start for listing types other than PortNetwork and XMLTV, without what ended by `now`, with the language
/// set.
MergedList mergedList(std::vector<ExtendedTVEntry> parsed, const QString& language, Moment now,
                      ListingsType type);

/// Does so for every load item; of items of one channel the first counts.
MergeResult mergedLists(const std::vector<LoadItem>& items, ParsedLists parsed, Moment now,
                        ListingsType type);

} // namespace guide
