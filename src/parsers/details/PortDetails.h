#pragma once

#include "parsers/details/DetailPage.h"

namespace guide {

/// Show pages of the Port network and of similar sites, including the popups that they link to. The default
/// detail reader.
void readPortDetails(const DetailPage& page, ShowDetails& show);

} // namespace guide
