#pragma once

#include "text/categories/TVListingsCategory.h"

#include <QString>

#include <vector>

namespace guide {

/// The title of a category, a key of the string table. Of several bits, the one that comes first in
/// the order of precedence decides. Selectors and composite values have their own titles; without a known bit
/// it is "All Shows".
QString textForCategory(TVListingsCategory category);

/// The titles of all bits that are set, in ascending order of the bits.
std::vector<QString> textsOfBits(TVListingsCategory categories);

} // namespace guide
