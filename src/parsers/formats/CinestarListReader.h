#pragma once

#include "parsers/formats/ListReader.h"

namespace guide {

/// The day pages of one country's Cinestar channels. Which day a page shows follows from the one that shows
/// today; the first card of a channel is the show on air and laid out differently from the rest.
void readCinestarLists(const ListReaderInput& input, ParsedLists& lists);

} // namespace guide
