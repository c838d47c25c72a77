#pragma once

#include "demo/DayPlan.h"
#include "demo/Random.h"

#include <vector>

namespace guide {

struct FittedItem {
    PlannedItem item;
    int minutes = 0;
};

/// The items of a stretch with their lengths, which together take exactly so many minutes, a multiple of
/// five. What fills is there as often as it must; what does not fit is left out, from the end. How many there
/// are does not depend on chance, only how long each is.
std::vector<FittedItem> fittedStretch(const std::vector<PlannedItem>& items, int minutes, Random& random);

} // namespace guide
