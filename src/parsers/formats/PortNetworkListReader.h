#pragma once

#include "parsers/formats/ListReader.h"

namespace guide {

/// The Port network's JSON: the first page, with the days of one channel.
void readPortNetworkLists(const ListReaderInput& input, ParsedLists& lists);

} // namespace guide
