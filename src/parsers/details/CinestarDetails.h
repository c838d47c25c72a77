#pragma once

#include "parsers/details/DetailPage.h"

namespace guide {

/// The page of a film of the Cinestar sites.
void readCinestarDetails(const DetailPage& page, ShowDetails& show);

} // namespace guide
