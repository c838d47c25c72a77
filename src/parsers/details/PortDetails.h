#pragma once

#include "parsers/details/DetailPage.h"

namespace guide {

/// The page of a show of the Port network and of the sites that are built alike, with the popups that it
/// leads to. Whatever no other reader claims is read by this one.
void readPortDetails(const DetailPage& page, ShowDetails& show);

} // namespace guide
