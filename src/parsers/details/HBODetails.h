#pragma once

#include "parsers/details/DetailPage.h"

namespace guide {

/// Show pages of the HBO sites, which contain a block of linked data.
void readHBODetails(const DetailPage& page, ShowDetails& show);

} // namespace guide
