#include "app/SelectionCleanup.h"

namespace guide {

SelectionCleanup planSelectionCleanup(const std::vector<ObjectId>& selected,
                                      const std::function<bool(const ObjectId&)>& isKnown) {
    SelectionCleanup plan;
    for (const ObjectId& channel : selected) {
        (isKnown(channel) ? plan.kept : plan.removed).push_back(channel);
    }
    return plan;
}

} // namespace guide
