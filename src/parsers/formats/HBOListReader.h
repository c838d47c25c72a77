#pragma once

#include "parsers/formats/ListReader.h"

namespace guide {

/// The day pages of one country's HBO channels, from yesterday on; each holds all channels, in blocks headed
/// by their logos.
void readHBOLists(const ListReaderInput& input, ParsedLists& lists);

} // namespace guide
