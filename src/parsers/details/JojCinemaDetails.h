#pragma once

#include "parsers/details/DetailPage.h"

namespace guide {

/// Film pages of the JOJ Cinema site.
void readJojCinemaDetails(const DetailPage& page, ShowDetails& show);

} // namespace guide
