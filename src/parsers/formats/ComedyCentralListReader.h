#pragma once

#include "parsers/formats/ListReader.h"

namespace guide {

/// Comedy Central Romania: the pages of one channel's list, which tells its times in seconds since 1970.
void readComedyCentralLists(const ListReaderInput& input, ParsedLists& lists);

} // namespace guide
