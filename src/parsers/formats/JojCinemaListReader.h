#pragma once

#include "parsers/formats/ListReader.h"

namespace guide {

/// The day pages of JOJ Cinema, from yesterday on; one channel.
void readJojCinemaLists(const ListReaderInput& input, ParsedLists& lists);

} // namespace guide
