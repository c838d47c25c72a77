#pragma once

#include "text/categories/TVListingsCategory.h"

#include <QString>

namespace guide {

/// The title of a category or selector in the user's language.
QString categoryTitle(TVListingsCategory category);

} // namespace guide
