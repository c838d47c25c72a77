#pragma once

#include "parsers/details/DetailPage.h"

namespace guide {

/// Show pages of the Romanian Comedy Central site.
void readComedyCentralDetails(const DetailPage& page, ShowDetails& show);

} // namespace guide
