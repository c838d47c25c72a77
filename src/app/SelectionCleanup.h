#pragma once

#include "core/ObjectId.h"

#include <functional>
#include <vector>

namespace guide {

/// How a new catalogue changes the selection.
struct SelectionCleanup {
    /// The channels that are still known, in the order of the selection.
    std::vector<ObjectId> kept;
    std::vector<ObjectId> removed;
};

SelectionCleanup planSelectionCleanup(const std::vector<ObjectId>& selected,
                                      const std::function<bool(const ObjectId&)>& isKnown);

} // namespace guide
