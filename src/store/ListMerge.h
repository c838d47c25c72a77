#pragma once

#include "store/ShowItem.h"

#include <unordered_map>
#include <vector>

namespace guide {

/// What the merge made of one channel's freshly read list.
enum class MergeOutcome {
    Stored,
    /// The reader found nothing for the channel.
    Empty,
    /// Everything that was found is over.
    OnlyPast,
};

struct MergeResult {
    /// The lists that were stored.
    std::unordered_map<ObjectId, ShowList> lists;
    /// For every load item.
    std::unordered_map<ObjectId, MergeOutcome> outcomes;
};

} // namespace guide
