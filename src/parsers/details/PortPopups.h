#pragma once

#include "parsers/details/DetailPage.h"

namespace guide {

/// The trailer and the large picture behind a show's page whose own address names a performance: two popups,
/// one behind the other, are asked of the page source. Does nothing for other addresses.
void readPortPopups(const DetailPage& page, ShowDetails& show);

} // namespace guide
