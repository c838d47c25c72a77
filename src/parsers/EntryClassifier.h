#pragma once

#include "store/TVEntry.h"
#include "text/categories/TVListingsCategory.h"

namespace guide {

/// The categories that an entry's own texts and source id tell, for readers of sources that do not say what a
/// show is.
TVListingsCategory classifyEntry(const TVEntry& entry);

} // namespace guide
