#pragma once

#include "parsers/formats/ListReader.h"

namespace guide {

/// The day pages of Prima Max, from today on; one channel. A show's one block of text is taken apart into
/// description, facts, director and cast.
void readPrimaMaxLists(const ListReaderInput& input, ParsedLists& lists);

} // namespace guide
