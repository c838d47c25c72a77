#pragma once

#include "parsers/details/DetailPage.h"

namespace guide {

/// The page of a show of the HBO sites: it describes itself in a block of linked data.
void readHBODetails(const DetailPage& page, ShowDetails& show);

} // namespace guide
