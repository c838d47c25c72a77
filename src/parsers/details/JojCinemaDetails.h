#pragma once

#include "parsers/details/DetailPage.h"

namespace guide {

/// The page of a film of the JOJ Cinema site.
void readJojCinemaDetails(const DetailPage& page, ShowDetails& show);

} // namespace guide
