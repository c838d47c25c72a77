#pragma once

#include "parsers/details/DetailPage.h"

namespace guide {

/// The page of a show of the Italian sites whose schedules are one document.
void readPalinsestoDetails(const DetailPage& page, ShowDetails& show);

} // namespace guide
