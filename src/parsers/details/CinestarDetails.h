#pragma once

#include "parsers/details/DetailPage.h"

namespace guide {

/// Film pages of the Cinestar sites.
void readCinestarDetails(const DetailPage& page, ShowDetails& show);

} // namespace guide
