#pragma once

#include "demo/schedule/DayPlan.h"
#include "demo/schedule/Random.h"

#include <vector>

namespace guide {

struct FittedItem {
    PlannedItem item;
    int minutes = 0;
};

/// The items of a block with lengths that add up to exactly `minutes`, a multiple of five. Filling items are
/// repeated as often as needed; items that do not fit are left out, from the end. The random numbers decide
/// the lengths only, never the number of items.
std::vector<FittedItem> fitBlock(const std::vector<PlannedItem>& items, int minutes, Random& random);

} // namespace guide
