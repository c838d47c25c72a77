#pragma once

#include "core/Catalogue.h"

#include <vector>

namespace guide {

/// How a new catalogue changes the selection.
struct SelectionCleanup {
    /// The channels that the catalogue still lists, in the order of the selection.
    std::vector<ObjectId> kept;
    std::vector<ObjectId> removed;
};

SelectionCleanup planSelectionCleanup(const std::vector<ObjectId>& selected,
                                      const CatalogueSnapshot& catalogue);

} // namespace guide
