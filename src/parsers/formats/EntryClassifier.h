#pragma once

#include "store/TVEntry.h"
#include "text/categories/TVListingsCategory.h"

namespace guide {

/// The categories derived from an entry's texts and source id, for sources that do not state categories.
TVListingsCategory classifyEntry(const TVEntry& entry);

} // namespace guide
