#include "app/SelectionCleanup.h"

namespace guide {

SelectionCleanup planSelectionCleanup(const std::vector<ObjectId>& selected,
                                      const CatalogueSnapshot& catalogue) {
    SelectionCleanup plan;
    for (const ObjectId& channel : selected) {
        (catalogue.contains(channel) ? plan.kept : plan.removed).push_back(channel);
    }
    return plan;
}

} // namespace guide
