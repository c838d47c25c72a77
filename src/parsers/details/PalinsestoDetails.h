#pragma once

#include "parsers/details/DetailPage.h"

namespace guide {

/// Show pages of the Italian sites whose schedule is a single document.
void readPalinsestoDetails(const DetailPage& page, ShowDetails& show);

} // namespace guide
