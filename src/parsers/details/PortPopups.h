#pragma once

#include "parsers/details/DetailPage.h"

namespace guide {

/// Adds the trailer and the large picture when the address of the show's page names a performance, by
/// fetching two popups one after the other. Does nothing for other addresses.
void readPortPopups(const DetailPage& page, ShowDetails& show);

} // namespace guide
