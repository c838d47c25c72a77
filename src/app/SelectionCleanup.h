#pragma once

#include "core/Catalogue.h"

#include <vector>

namespace guide {

/// What a new catalogue leaves of the selection.
struct SelectionCleanup {
    /// The selection without the channels that the catalogue no longer lists, in its order.
    std::vector<ObjectId> kept;
    std::vector<ObjectId> removed;
};

SelectionCleanup planSelectionCleanup(const std::vector<ObjectId>& selected,
                                      const CatalogueSnapshot& catalogue);

} // namespace guide
